#include "UI/CKyUIStyle.h"
#include "support/TestDialogs.h"

#include <QtCore/QPointer>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QVBoxLayout>

namespace
{
// Records the dialog's and the box's signals, in order.
void RecordSignals(SampleDialog& dialog, Log& log)
{
    dialog.accepted().connect([&log]() { log.push_back("dialog accepted"); });
    dialog.rejected().connect([&log]() { log.push_back("dialog rejected"); });
    dialog.finished().connect([&log](int code) { log.push_back("dialog finished " + std::to_string(code)); });
    dialog.afterSetup = [&log](SampleDialog& self) {
        CKyUIDialogButtonBox* box = self.box;
        box->accepted().connect([&log]() { log.push_back("box accepted"); });
        box->rejected().connect([&log]() { log.push_back("box rejected"); });
        box->helpRequest().connect([&log]() { log.push_back("box helpRequest"); });
        box->clicked().connect([&log, box](CKyUIPushButton* which) {
            log.push_back(which == box->button(CKyUIDialogButtonBox::Help) ? "box clicked Help"
                                                                           : "box clicked ?");
        });
    };
}
} // namespace

TEST(CKyUIDialogTest, ClickingOkReturnsOneAndTellsTheHostStartAndEnd)
{
    RecordingHost host;
    SampleDialog dialog;
    Log log;
    RecordSignals(dialog, log);

    const int result = RunModally(dialog, [&host](SampleDialog& self) {
        EXPECT_EQ(host.calls, std::vector<bool>{true});
        QTest::mouseClick(self.boxButton(CKyUIDialogButtonBox::Ok), Qt::LeftButton);
    });

    EXPECT_EQ(result, 1);
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(host.calls, (std::vector<bool>{true, false}));
    // accept() itself emits neither accepted nor finished.
    EXPECT_EQ(log, (Log{"box clicked Help", "box accepted"}));
    EXPECT_FALSE(dialog.widget()->isVisible());
}

TEST(CKyUIDialogTest, ClickingCancelReturnsZeroAndDeliversTheHelpWrapper)
{
    RecordingHost host;
    SampleDialog dialog;
    Log log;
    RecordSignals(dialog, log);

    const int result = RunModally(dialog, [](SampleDialog& self) {
        QTest::mouseClick(self.boxButton(CKyUIDialogButtonBox::Cancel), Qt::LeftButton);
    });

    EXPECT_EQ(result, 0);
    EXPECT_EQ(host.calls, (std::vector<bool>{true, false}));
    EXPECT_EQ(log, (Log{"box clicked Help", "box rejected"}));
}

TEST(CKyUIDialogTest, EscapeReturnsZeroWithoutClosingNotificationOrSignal)
{
    RecordingHost host;
    SampleDialog dialog;
    Log log;
    RecordSignals(dialog, log);
    dialog.setResult(4);

    const int result =
        RunModally(dialog, [](SampleDialog& self) { QTest::keyClick(self.widget(), Qt::Key_Escape); });

    EXPECT_EQ(result, 0);
    EXPECT_EQ(dialog.result(), 0);
    EXPECT_EQ(host.calls, std::vector<bool>{true});
    EXPECT_TRUE(log.empty());
}

TEST(CKyUIDialogTest, ClosingTheWindowTakesTheToolkitsRejectPathToo)
{
    RecordingHost host;
    SampleDialog dialog;
    Log log;
    RecordSignals(dialog, log);

    const int result = RunModally(dialog, [](SampleDialog& self) { self.widget()->close(); });

    EXPECT_EQ(result, 0);
    EXPECT_EQ(host.calls, std::vector<bool>{true});
    EXPECT_TRUE(log.empty());
}

TEST(CKyUIDialogTest, DoneAndHideCloseWithTheGivenOrStoredCode)
{
    RecordingHost host;
    SampleDialog withDone;
    EXPECT_EQ(RunModally(withDone, [](SampleDialog& self) { self.done(7); }), 7);
    EXPECT_EQ(host.calls, (std::vector<bool>{true, false}));

    host.calls.clear();
    SampleDialog withHide;
    EXPECT_EQ(RunModally(withHide,
                         [](SampleDialog& self) {
                             self.setResult(5);
                             // Stored only: the toolkit learns the code when the dialog closes.
                             EXPECT_EQ(self.widget()->result(), 0);
                             EXPECT_TRUE(self.widget()->isVisible());
                             self.hide();
                         }),
              5);
    EXPECT_EQ(host.calls, (std::vector<bool>{true, false}));

    host.calls.clear();
    SampleDialog withSetVisible;
    EXPECT_EQ(RunModally(withSetVisible,
                         [](SampleDialog& self) {
                             self.setResult(3);
                             self.setVisible(false);
                         }),
              3);
    EXPECT_EQ(host.calls, (std::vector<bool>{true, false}));
}

TEST(CKyUIDialogTest, TheFlagOfExecMakesNoDifference)
{
    RecordingHost host;
    SampleDialog modal;
    SampleDialog modeless;
    EXPECT_EQ(RunModally(
                  modal, [](SampleDialog& self) { self.reject(); }, true),
              0);
    EXPECT_EQ(RunModally(
                  modeless, [](SampleDialog& self) { self.reject(); }, false),
              0);
    EXPECT_EQ(host.calls, (std::vector<bool>{true, false, true, false}));
    EXPECT_EQ(modal.setups, 1);
    EXPECT_EQ(modeless.setups, 1);
}

TEST(CKyUIDialogTest, WithoutAHostObjectNobodyIsToldAndTheRunIsTheSame)
{
    CKyDocumentHost* const previous = ACTIVE_DOCUMENT()->host;
    ACTIVE_DOCUMENT()->host = nullptr;
    SampleDialog dialog;
    const int result = RunModally(dialog, [](SampleDialog& self) {
        QTest::mouseClick(self.boxButton(CKyUIDialogButtonBox::Ok), Qt::LeftButton);
    });
    ACTIVE_DOCUMENT()->host = previous;
    EXPECT_EQ(result, 1);
}

TEST(CKyUIDialogTest, SetUpAppliesTheThemeAndBuildsTheRootLayout)
{
    SampleDialog dialog;
    EXPECT_EQ(dialog.GetLayout(), nullptr);
    EXPECT_EQ(dialog.widget()->layout(), nullptr);
    EXPECT_EQ(dialog.widget()->parentWidget(), nullptr);

    RunModally(dialog, [](SampleDialog& self) {
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
}

TEST(CKyUIDialogTest, ShowingWithoutExecRunsNoSetUpAndTellsNobody)
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
}

TEST(CKyUIDialogTest, OnlyTheReactionsEmitAndBlockingSilencesThem)
{
    SampleDialog dialog;
    auto* impl = static_cast<CKyUIDialogImpl*>(dialog.impl());
    Log log;
    dialog.accepted().connect([&log]() { log.push_back("accepted"); });
    dialog.rejected().connect([&log]() { log.push_back("rejected"); });

    impl->OnAccepted();
    impl->OnAcceptPressed();
    impl->OnRejected();
    impl->OnRejectPressed();
    dialog.blockSignals(true);
    impl->OnAccepted();
    impl->OnRejectPressed();
    EXPECT_EQ(log, (Log{"accepted", "accepted", "rejected", "rejected"}));
}

TEST(CKyUIDialogTest, DestructionForgetsTheQDialogAndReleasesTheContent)
{
    QPointer<QDialog> widget;
    QPointer<QWidget> root;
    QPointer<QWidget> label;
    QPointer<QWidget> boxWidget;
    {
        SampleDialog dialog;
        RunModally(dialog, [](SampleDialog& self) { self.accept(); });
        widget = dialog.widget();
        root = qobject_cast<QWidget*>(dialog.GetLayout()->getHandle());
        label = qobject_cast<QWidget*>(dialog.label->getHandle());
        boxWidget = qobject_cast<QWidget*>(dialog.box->getHandle());
        EXPECT_EQ(dialog.box->parent(), &dialog);
        EXPECT_EQ(dialog.label->parent(), dialog.GetLayout());
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    // The window and the root layout's box stay, without an owner; the views'
    // widgets are gone.
    ASSERT_FALSE(widget.isNull());
    EXPECT_FALSE(widget->isVisible());
    EXPECT_FALSE(root.isNull());
    EXPECT_TRUE(label.isNull());
    EXPECT_TRUE(boxWidget.isNull());
    delete widget.data();
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
