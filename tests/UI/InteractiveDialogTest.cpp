#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestDialogs.h"

namespace
{
// The dialog's signals and the box's, in order.
void RecordSignals(SampleDialog& dialog, Recorder& log)
{
    log.on(dialog.finished(), "finished").on(dialog.accepted(), "accepted").on(dialog.rejected(), "rejected");
    dialog.afterSetup = [&log](SampleDialog& self) {
        log.on(self.box->accepted(), "box accepted").on(self.box->rejected(), "box rejected");
        self.box->clicked().connect([&log](CKyUIPushButton*) { log.add("box clicked"); });
    };
}
} // namespace

// With the usual wiring (the box relays the dialog's signals, the client
// answers the box with accept()/reject()), every way out ends the run with
// one finished, one accepted or rejected, and one word to the host.
TEST(InteractiveDialogTest, EveryWayOutReportsOnceAndTellsTheHostOnce)
{
    const std::tuple<std::function<void(SampleDialog&)>, int, QStringList> rows[] = {
        {[](SampleDialog& self) {
             QTest::mouseClick(self.boxButton(CKyUIDialogButtonBox::Ok), Qt::LeftButton);
         },
         1,
         {"box clicked", "finished:1", "accepted", "box accepted"}},
        {[](SampleDialog& self) { QTest::keyClick(self.widget(), Qt::Key_Escape); },
         0,
         {"finished:0", "rejected", "box rejected"}},
        {[](SampleDialog& self) { self.widget()->close(); }, 0, {"finished:0", "rejected", "box rejected"}},
        {[](SampleDialog& self) { self.accept(); }, 1, {"finished:1", "accepted", "box accepted"}},
        {[](SampleDialog& self) { self.done(7); }, 7, {"finished:7"}},
    };
    for (const auto& [during, result, emitted] : rows) {
        RecordingHost host;
        SampleDialog dialog;
        dialog.setInteractive(true);
        Recorder log;
        RecordSignals(dialog, log);
        EXPECT_EQ(RunModally(dialog, during), result);
        EXPECT_EQ(host.calls, (std::vector<bool>{true, false}));
        EXPECT_EQ(log.lines, emitted);
    }
}

// exec(false) returns at once and leaves the host alone; the user's close is
// reported later, and a slot of that report may delete the dialog. Switched
// off, a close reports nothing.
TEST(InteractiveDialogTest, ANonModalRunReportsItsCloseAndOffIsInertAgain)
{
    RecordingHost host;
    auto* dialog = new SampleDialog;
    dialog->setInteractive(true);
    Recorder log;
    RecordSignals(*dialog, log);
    dialog->setResult(3);
    EXPECT_EQ(dialog->exec(false), 3);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog->widget()));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    QTest::keyClick(dialog->widget(), Qt::Key_Escape);
    EXPECT_EQ(log.take(), (QStringList{"finished:0", "rejected", "box rejected"}));
    EXPECT_TRUE(host.calls.empty());

    dialog->setInteractive(false);
    dialog->setVisible(true);
    dialog->widget()->close();
    EXPECT_TRUE(log.lines.isEmpty());

    dialog->setInteractive(true);
    dialog->setReleasesToolkitDialog(true);
    dialog->setVisible(true);
    dialog->finished().connect([dialog](int) { delete dialog; });
    QTest::keyClick(dialog->widget(), Qt::Key_Escape);
    EXPECT_EQ(log.take(), (QStringList{"finished:0"}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
