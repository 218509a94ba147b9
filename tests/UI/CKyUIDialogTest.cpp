#include "UI/CKyUIStyle.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestDialogs.h"

#include <QtCore/QPointer>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QVBoxLayout>

namespace
{
// Records the dialog's and the box's signals, in order.
void RecordSignals(SampleDialog& dialog, Recorder& log)
{
    log.on(dialog.accepted(), "dialog accepted").on(dialog.rejected(), "dialog rejected");
    log.on(dialog.finished(), "dialog finished");
    dialog.afterSetup = [&log](SampleDialog& self) {
        CKyUIDialogButtonBox* box = self.box;
        log.on(box->accepted(), "box accepted").on(box->rejected(), "box rejected");
        log.on(box->helpRequest(), "box helpRequest");
        box->clicked().connect([&log, box](CKyUIPushButton* which) {
            log.add("box clicked", which == box->button(CKyUIDialogButtonBox::Help) ? "Help" : "?");
        });
    };
}
} // namespace

// OK and Cancel end the run through the client's slots; Escape and closing
// the window take the toolkit's reject path, which tells neither the host of
// the end nor any signal. accept() itself emits neither accepted nor finished.
TEST(CKyUIDialogTest, EachWayOutGivesItsResultNotificationsAndSignals)
{
    struct Row
    {
        std::function<void(SampleDialog&)> during;
        int result;
        std::vector<bool> hostCalls;
        QStringList emitted;
    };
    const auto click = [](CKyUIDialogButtonBox::StandardButton which) {
        return [which](SampleDialog& self) { QTest::mouseClick(self.boxButton(which), Qt::LeftButton); };
    };
    const Row rows[] = {
        {click(CKyUIDialogButtonBox::Ok), 1, {true, false}, {"box clicked:Help", "box accepted"}},
        {click(CKyUIDialogButtonBox::Cancel), 0, {true, false}, {"box clicked:Help", "box rejected"}},
        {[](SampleDialog& self) { QTest::keyClick(self.widget(), Qt::Key_Escape); }, 0, {true}, {}},
        {[](SampleDialog& self) { self.widget()->close(); }, 0, {true}, {}},
    };
    for (const Row& row : rows) {
        RecordingHost host;
        SampleDialog dialog;
        Recorder log;
        RecordSignals(dialog, log);
        dialog.setResult(4);
        const int result = RunModally(dialog, [&](SampleDialog& self) {
            EXPECT_EQ(host.calls, std::vector<bool>{true});
            row.during(self);
        });
        EXPECT_EQ(result, row.result);
        EXPECT_EQ(dialog.result(), row.result);
        EXPECT_EQ(host.calls, row.hostCalls);
        EXPECT_EQ(log.lines, row.emitted);
        EXPECT_FALSE(dialog.widget()->isVisible());
    }
}

TEST(CKyUIDialogTest, DoneAndHideCloseWithTheGivenOrStoredCode)
{
    const std::pair<std::function<void(SampleDialog&)>, int> rows[] = {
        {[](SampleDialog& self) { self.done(7); }, 7},
        {[](SampleDialog& self) {
             self.setResult(5);
             // Stored only: the toolkit learns the code when the dialog closes.
             EXPECT_EQ(self.widget()->result(), 0);
             EXPECT_TRUE(self.widget()->isVisible());
             self.hide();
         },
         5},
        {[](SampleDialog& self) {
             self.setResult(3);
             self.setVisible(false);
         },
         3},
    };
    for (const auto& row : rows) {
        RecordingHost host;
        SampleDialog dialog;
        EXPECT_EQ(RunModally(dialog, row.first), row.second);
        EXPECT_EQ(host.calls, (std::vector<bool>{true, false}));
    }
}

TEST(CKyUIDialogTest, ShowingWithoutExecRunsNoSetUpAndOnlyTheReactionsEmit)
{
    RecordingHost host;
    SampleDialog dialog;
    dialog.setVisible(true);
    EXPECT_TRUE(dialog.widget()->isVisible());
    EXPECT_EQ(dialog.setups, 0);
    EXPECT_EQ(dialog.GetLayout(), nullptr);
    EXPECT_TRUE(host.calls.empty());

    // Hiding is a closing path, though: the host hears of it.
    dialog.setResult(2);
    dialog.setVisible(false);
    EXPECT_FALSE(dialog.widget()->isVisible());
    EXPECT_EQ(dialog.widget()->result(), 2);
    EXPECT_EQ(host.calls, std::vector<bool>{false});

    // Only the reactions emit, and blocking silences them.
    auto* impl = static_cast<CKyUIDialogImpl*>(dialog.impl());
    Recorder log;
    log.on(dialog.accepted(), "accepted").on(dialog.rejected(), "rejected");
    impl->OnAccepted();
    impl->OnAcceptPressed();
    impl->OnRejected();
    impl->OnRejectPressed();
    dialog.blockSignals(true);
    impl->OnAccepted();
    impl->OnRejectPressed();
    EXPECT_EQ(log.lines, (QStringList{"accepted", "accepted", "rejected", "rejected"}));
}

// Destruction forgets the window, which stays without an owner with the
// root layout's box; the views' widgets go.
TEST(CKyUIDialogTest, SetUpAppliesTheThemeBuildsTheRootLayoutAndDestructionReleasesTheContent)
{
    QPointer<QDialog> window;
    QPointer<QWidget> rootWidget, labelWidget, boxWidget;
    {
        SampleDialog dialog;
        EXPECT_EQ(dialog.GetLayout(), nullptr);
        EXPECT_EQ(dialog.widget()->layout(), nullptr);
        EXPECT_EQ(dialog.widget()->parentWidget(), nullptr);

        // Without a host object nobody is told, and the run is the same.
        CKyDocumentHost* const previous = ACTIVE_DOCUMENT()->host;
        ACTIVE_DOCUMENT()->host = nullptr;
        const int result = RunModally(dialog, [](SampleDialog& self) {
            QDialog* widget = self.widget();
            EXPECT_FALSE(widget->styleSheet().isEmpty());
            EXPECT_EQ(widget->styleSheet(), GetStyle()->styleSheet);
            EXPECT_EQ(widget->sizePolicy(),
                      QSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding));

            auto* mainLayout = qobject_cast<QVBoxLayout*>(widget->layout());
            ASSERT_NE(mainLayout, nullptr);
            EXPECT_EQ(mainLayout->objectName(), "mainLayout");
            EXPECT_EQ(mainLayout->contentsMargins(), QMargins(0, 0, 0, 0));
            ASSERT_EQ(mainLayout->count(), 1);

            auto* root = qobject_cast<QGroupBox*>(mainLayout->itemAt(0)->widget());
            ASSERT_NE(root, nullptr);
            EXPECT_EQ(root, self.GetLayout()->getHandle());
            EXPECT_EQ(root->objectName(), "main_layout");
            EXPECT_EQ(self.GetLayout()->objectName(), "main_layout");
            EXPECT_EQ(root->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
            EXPECT_EQ(mainLayout->stretch(0), 0);
            EXPECT_EQ(mainLayout->itemAt(0)->alignment(), Qt::Alignment());

            // The client's content in order, the box last.
            QLayout* column = root->layout();
            ASSERT_EQ(column->count(), 3);
            EXPECT_EQ(column->itemAt(0)->widget(), self.label->getHandle());
            EXPECT_EQ(column->itemAt(1)->widget(), self.button->getHandle());
            EXPECT_EQ(column->itemAt(2)->widget(), self.box->getHandle());

            // Every control carries only its empty rule; the look comes from the dialog.
            EXPECT_EQ(qobject_cast<QWidget*>(self.button->getHandle())->styleSheet(), "QPushButton { }");
            self.accept();
        });
        ACTIVE_DOCUMENT()->host = previous;
        EXPECT_EQ(result, 1);
        window = dialog.widget();
        rootWidget = qobject_cast<QWidget*>(dialog.GetLayout()->getHandle());
        labelWidget = qobject_cast<QWidget*>(dialog.label->getHandle());
        boxWidget = qobject_cast<QWidget*>(dialog.box->getHandle());
        EXPECT_EQ(dialog.box->parent(), &dialog);
        EXPECT_EQ(dialog.label->parent(), dialog.GetLayout());
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_FALSE(window.isNull());
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(rootWidget.isNull());
    EXPECT_TRUE(labelWidget.isNull());
    EXPECT_TRUE(boxWidget.isNull());
    delete window.data();
}

// The window outlives the dialog; children going with the dialog must not
// find it through the dialog any more.
TEST(CKyUIDialogTest, ChildrenGoingWithTheDialogFindNoWindow)
{
    struct Child : CKyUIObject
    {
        QObject** seen = nullptr;
        ~Child() override { *seen = parent()->getHandle(); }
    };
    QObject* seen = nullptr;
    QPointer<QDialog> window;
    {
        SampleDialog dialog;
        window = dialog.widget();
        auto* child = new Child;
        child->seen = &seen;
        child->setParent(&dialog);
    }
    EXPECT_EQ(seen, nullptr);
    ASSERT_FALSE(window.isNull());
    delete window.data();
}
