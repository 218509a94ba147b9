#include "UI/Impl/qt/CKyUIPushButtonFrontend.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestDialogs.h"
#include "support/TestViews.h"

#include <QtCore/QPointer>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

namespace
{
// Records the box's four signals and the three wrappers' clicked().
void Record(CKyUIDialogButtonBox& box, Recorder& log)
{
    log.on(box.accepted(), "accepted").on(box.rejected(), "rejected").on(box.helpRequest(), "helpRequest");
    box.clicked().connect([&log, &box](CKyUIPushButton* which) {
        log.add("clicked", which == box.button(CKyUIDialogButtonBox::Help) ? "Help" : "another");
    });
    log.on(box.button(CKyUIDialogButtonBox::Ok)->clicked(), "Ok wrapper clicked");
    log.on(box.button(CKyUIDialogButtonBox::Cancel)->clicked(), "Cancel wrapper clicked");
    log.on(box.button(CKyUIDialogButtonBox::Help)->clicked(), "Help wrapper clicked");
}

// A dialog set up and shown without a modal loop. It counts accept() and
// reject() instead of closing, so each press can be looked at alone.
class ShownDialog : public SampleDialog
{
public:
    ShownDialog() { SetUpAndShow(*this); }
    void accept() override { ++accepts; }
    void reject() override { ++rejects; }
    int accepts = 0;
    int rejects = 0;
};
} // namespace

TEST(CKyUIDialogButtonBoxTest, HasOkCancelAndHelpWrappingTheToolkitButtons)
{
    ShownDialog dialog;
    CKyUIDialogButtonBox& box = *dialog.box;
    QDialogButtonBox* toolkit = HandleAs<QDialogButtonBox>(box);
    ASSERT_NE(toolkit, nullptr);
    EXPECT_EQ(int(toolkit->standardButtons()), 0x01400400);
    EXPECT_EQ(toolkit->minimumHeight(), 30);

    // Each wrapper holds its plain toolkit button, not a frontend of its own.
    for (auto which : {CKyUIDialogButtonBox::Ok, CKyUIDialogButtonBox::Cancel, CKyUIDialogButtonBox::Help}) {
        ASSERT_NE(box.button(which), nullptr);
        EXPECT_EQ(box.button(which)->getHandle(), toolkit->button(QDialogButtonBox::StandardButton(which)));
        EXPECT_EQ(HandleAs<CKyUIPushButtonFrontend>(*box.button(which)), nullptr);
    }
    // Owned by the dialog; its widget is the last in the root layout.
    EXPECT_EQ(box.parent(), &dialog);
    QLayout* column = qobject_cast<QWidget*>(dialog.GetLayout()->getHandle())->layout();
    EXPECT_EQ(column->itemAt(column->count() - 1)->widget(), toolkit);

    // Ok | Cancel, none, and a button the box does not have.
    for (int which : {0x00400400, 0, 0x00000800})
        EXPECT_EQ(box.button(static_cast<CKyUIDialogButtonBox::StandardButton>(which)), nullptr);

    box.setStandardButtons(CKyUIDialogButtonBox::Ok);
    EXPECT_EQ(toolkit->buttons().size(), 3);
    for (QAbstractButton* button : toolkit->buttons())
        EXPECT_TRUE(button->isVisible());
}

TEST(CKyUIDialogButtonBoxTest, PressesAndTheDialogsSignalsReachClientsAsTheBoxsSignals)
{
    ShownDialog dialog;
    Recorder log;
    Record(*dialog.box, log);

    QTest::mouseClick(dialog.boxButton(CKyUIDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_EQ(log.take(), (QStringList{"clicked:Help", "accepted"}));

    QTest::mouseClick(dialog.boxButton(CKyUIDialogButtonBox::Cancel), Qt::LeftButton);
    EXPECT_EQ(log.take(), (QStringList{"clicked:Help", "rejected"}));

    // Help: no helpRequest, ever.
    QTest::mouseClick(dialog.boxButton(CKyUIDialogButtonBox::Help), Qt::LeftButton);
    EXPECT_EQ(log.take(), (QStringList{"clicked:Help"}));

    EXPECT_EQ(dialog.accepts, 1);
    EXPECT_EQ(dialog.rejects, 1);

    dialog.box->blockSignals(true);
    QTest::mouseClick(dialog.boxButton(CKyUIDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_TRUE(log.lines.isEmpty());
    EXPECT_EQ(dialog.accepts, 1);
    dialog.box->blockSignals(false);

    // The dialog's own signals are reported as clicks of Ok and Cancel.
    // The box's own slot on the wrapper's clicked was connected before the
    // recording one, so its accepted comes first, inside that emission.
    dialog.accepted().Emit();
    EXPECT_EQ(log.take(), (QStringList{"accepted", "Ok wrapper clicked:true"}));
    dialog.rejected().Emit();
    EXPECT_EQ(log.take(), (QStringList{"rejected", "Cancel wrapper clicked:true"}));

    // Blocking the box leaves the wrapper's report alone.
    dialog.box->blockSignals(true);
    dialog.accepted().Emit();
    EXPECT_EQ(log.take(), (QStringList{"Ok wrapper clicked:true"}));

    // Blocking the wrapper stops the chain at its start.
    dialog.box->blockSignals(false);
    dialog.box->button(CKyUIDialogButtonBox::Cancel)->blockSignals(true);
    dialog.rejected().Emit();
    EXPECT_TRUE(log.lines.isEmpty());
}

TEST(CKyUIDialogButtonBoxTest, TheBoxNeverClosesTheDialogByItself)
{
    SampleDialog dialog;
    dialog.afterSetup = [](SampleDialog& self) {
        // A client that listens to nothing.
        self.box->blockSignals(true);
    };
    SetUpAndShow(dialog);
    QTest::mouseClick(dialog.boxButton(CKyUIDialogButtonBox::Ok), Qt::LeftButton);
    QTest::mouseClick(dialog.boxButton(CKyUIDialogButtonBox::Cancel), Qt::LeftButton);
    EXPECT_TRUE(dialog.widget()->isVisible());
    dialog.widget()->hide();
}

TEST(CKyUIDialogButtonBoxTest, DestroyingTheBoxLeavesTheToolkitButtonsToTheToolkitBox)
{
    ShownDialog dialog;
    CKyUIDialogButtonBox* box = dialog.box;
    QPointer<QDialogButtonBox> toolkit = HandleAs<QDialogButtonBox>(*box);
    QPointer<QPushButton> ok = toolkit->button(QDialogButtonBox::Ok);
    QPointer<QPushButton> help = toolkit->button(QDialogButtonBox::Help);

    delete box;
    dialog.box = nullptr;
    EXPECT_FALSE(dialog.children().contains(box));
    // The wrappers went without taking the buttons; the box goes later.
    ASSERT_FALSE(toolkit.isNull());
    EXPECT_FALSE(ok.isNull());
    EXPECT_FALSE(help.isNull());

    // A press before the toolkit box is gone reaches nobody; the dialog's
    // signals, still connected to the box, do no harm either.
    QTest::mouseClick(ok.data(), Qt::LeftButton);
    dialog.accepted().Emit();
    dialog.rejected().Emit();
    EXPECT_EQ(dialog.accepts, 0);

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(toolkit.isNull());
    EXPECT_TRUE(ok.isNull());
}

TEST(CKyUIDialogButtonBoxTest, ABoxMadeBeforeTheSetUpOrWithoutDialogStillWorks)
{
    RecordingHost host;
    SampleDialog dialog;
    auto* early = new CKyUIDialogButtonBox(&dialog);
    EXPECT_EQ(early->parent(), &dialog);
    EXPECT_EQ(HandleAs<QDialogButtonBox>(*early)->parentWidget(), dialog.widget());

    CKyUIDialogButtonBox orphan(nullptr);
    EXPECT_EQ(orphan.parent(), nullptr);
    ASSERT_NE(HandleAs<QDialogButtonBox>(orphan), nullptr);
    EXPECT_EQ(HandleAs<QDialogButtonBox>(orphan)->parentWidget(), nullptr);
    EXPECT_NE(orphan.button(CKyUIDialogButtonBox::Help), nullptr);
    EXPECT_TRUE(host.calls.empty());
}
