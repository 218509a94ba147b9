#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestDialogs.h"

namespace
{
// The dialog's signals and the box's, in order; the box's clicked names the
// wrapper it carries.
void RecordSignals(SampleDialog& dialog, Recorder& log)
{
    log.on(dialog.finished(), "finished").on(dialog.accepted(), "accepted").on(dialog.rejected(), "rejected");
    dialog.afterSetup = [&log](SampleDialog& self) {
        CKyUIDialogButtonBox* box = self.box;
        log.on(box->accepted(), "box accepted").on(box->rejected(), "box rejected");
        box->clicked().connect([&log, box](CKyUIPushButton* which) {
            log.add("box clicked", which == box->button(CKyUIDialogButtonBox::Ok) ? "Ok" : "Cancel?");
        });
    };
}
} // namespace

// With the usual wiring (the box relays the dialog's signals, the client
// answers the box with accept()/reject()), every way out ends the run with
// one finished, one accepted or rejected, and one word to the host.
TEST(InteractiveDialogTest, EveryWayOutReportsOnceAndTellsTheHostOnce)
{
    struct Row
    {
        std::function<void(SampleDialog&)> during;
        int result;
        QStringList emitted;
    };
    const Row rows[] = {
        {[](SampleDialog& self) {
             QTest::mouseClick(self.boxButton(CKyUIDialogButtonBox::Ok), Qt::LeftButton);
         },
         1,
         {"box clicked:Ok", "finished:1", "accepted", "box accepted"}},
        {[](SampleDialog& self) { QTest::keyClick(self.widget(), Qt::Key_Escape); },
         0,
         {"finished:0", "rejected", "box rejected"}},
        {[](SampleDialog& self) { self.widget()->close(); }, 0, {"finished:0", "rejected", "box rejected"}},
        {[](SampleDialog& self) { self.accept(); }, 1, {"finished:1", "accepted", "box accepted"}},
        {[](SampleDialog& self) { self.done(7); }, 7, {"finished:7"}},
    };
    for (const Row& row : rows) {
        RecordingHost host;
        SampleDialog dialog;
        dialog.setInteractive(true);
        Recorder log;
        RecordSignals(dialog, log);
        EXPECT_EQ(RunModally(dialog, row.during), row.result);
        EXPECT_EQ(dialog.result(), row.result);
        EXPECT_EQ(host.calls, (std::vector<bool>{true, false}));
        EXPECT_EQ(log.lines, row.emitted);
        EXPECT_FALSE(dialog.widget()->isVisible());
    }
}

// exec(false) returns at once and leaves the host alone; the user's close
// is reported later. Switched off again, the next close reports nothing.
TEST(InteractiveDialogTest, ANonModalRunReportsItsCloseAndOffIsInertAgain)
{
    RecordingHost host;
    SampleDialog dialog;
    dialog.setInteractive(true);
    Recorder log;
    RecordSignals(dialog, log);
    dialog.setResult(3);
    EXPECT_EQ(dialog.exec(false), 3);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.widget()));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(log.lines.isEmpty());

    QTest::keyClick(dialog.widget(), Qt::Key_Escape);
    EXPECT_EQ(log.take(), (QStringList{"finished:0", "rejected", "box rejected"}));
    EXPECT_TRUE(host.calls.empty());

    dialog.setInteractive(false);
    dialog.setVisible(true);
    dialog.widget()->close();
    EXPECT_FALSE(dialog.widget()->isVisible());
    EXPECT_TRUE(log.lines.isEmpty());
}

// A slot of the report may delete the dialog: the report stops there.
TEST(InteractiveDialogTest, AFinishedSlotMayDeleteTheDialog)
{
    auto* dialog = new SampleDialog;
    dialog->setInteractive(true);
    dialog->setReleasesToolkitDialog(true);
    int rejected = 0;
    dialog->finished().connect([dialog](int) { delete dialog; });
    dialog->rejected().connect([&rejected]() { ++rejected; });
    dialog->exec(false);
    QTest::keyClick(dialog->widget(), Qt::Key_Escape);
    EXPECT_EQ(rejected, 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
