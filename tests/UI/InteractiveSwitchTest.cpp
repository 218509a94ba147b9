#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUITimer.h"
#include "support/TestDialogs.h"

#include <memory>

namespace
{
// Restores the process-wide default whatever a test does with it.
struct DefaultInteractiveGuard
{
    ~DefaultInteractiveGuard() { CKyUIObject::setDefaultInteractive(false); }
};
} // namespace

TEST(InteractiveSwitchTest, OffUnlessSetAndTheDefaultReachesOnlyObjectsMadeAfterIt)
{
    const DefaultInteractiveGuard guard;
    CKyUITimer before;
    CKyUIObject::setDefaultInteractive(true);
    CKyUICheckBox after;
    EXPECT_FALSE(before.isInteractive());
    EXPECT_TRUE(after.isInteractive() && CKyUITimer().isInteractive());
}

// One call per dialog: the views SetupUI() makes, the box, and a view added
// to the tree while the dialog runs all follow; a lone view added to an inert
// container stays inert.
TEST(InteractiveSwitchTest, ADialogsSwitchReachesItsWholeTreeAtExecAndLater)
{
    SampleDialog dialog;
    dialog.setInteractive(true);
    CKyUIGroupBox* group = nullptr;
    CKyUICheckBox* late = nullptr;
    dialog.afterSetup = [&group](SampleDialog& self) {
        group = new CKyUIGroupBox(CKyUIGroupBox::Vertical, false);
        self.GetLayout()->addView(group);
    };
    RunModally(dialog, [&](SampleDialog& self) {
        late = new CKyUICheckBox;
        group->addView(late);
        self.accept();
    });
    for (CKyUIObject* object : std::initializer_list<CKyUIObject*>{dialog.GetLayout(), dialog.label,
                                                                   dialog.button, dialog.box, group, late})
        EXPECT_TRUE(object->isInteractive());

    dialog.setInteractive(false);
    EXPECT_FALSE(late->isInteractive() || dialog.box->isInteractive());

    CKyUIGroupBox inert(CKyUIGroupBox::Vertical, false);
    auto* lone = new CKyUICheckBox;
    inert.addView(lone);
    EXPECT_FALSE(lone->isInteractive());
}
