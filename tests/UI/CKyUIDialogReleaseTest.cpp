#include "support/TestDialogs.h"

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>

TEST(CKyUIDialogReleaseTest, RunsLeaveNoWindowBehind)
{
    CKyUIDialog::setDefaultReleasesToolkitDialog(true);
    int windows = 0;
    for (int run = 0; run <= 20; ++run) {
        auto* dialog = new SampleDialog;
        EXPECT_TRUE(dialog->releasesToolkitDialog());
        const QPointer<QDialog> window = dialog->widget();
        EXPECT_EQ(RunModally(*dialog, [](SampleDialog& self) { self.accept(); }), 1);
        delete dialog;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(window.isNull());
        if (run == 0) // after a warm-up
            windows = QApplication::topLevelWidgets().size();
    }
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
    CKyUIDialog::setDefaultReleasesToolkitDialog(false);
}

// Deleted from a slot of its own button while its run goes on, also inside a
// loop nested in the run, or deleted while shown without a run: the run ends,
// and the window is hidden once every loop inside the run has returned. It
// goes as exec() returns when released (on), else stays behind hidden (off,
// also after being turned on and off again).
TEST(CKyUIDialogReleaseTest, DeletedWhileShownEndsTheRunAndHidesOrReleasesTheWindow)
{
    for (const int release : {1, 0, 2}) { // on, off, on and then off
        for (const int way : {0, 1, 2}) { // a click in the run, in a loop nested in it, no run
            SCOPED_TRACE(release * 10 + way);
            auto* dialog = new SampleDialog;
            dialog->setReleasesToolkitDialog(release != 0);
            dialog->setReleasesToolkitDialog(release == 1);
            dialog->afterSetup = [](SampleDialog& self) {
                self.button->clicked().connect([&self](bool) { delete &self; });
            };
            const QPointer<QDialog> window = dialog->widget();
            if (way == 2) {
                SetUpAndShow(*dialog);
                delete dialog;
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            } else {
                EXPECT_EQ(RunModally(*dialog,
                                     [&](SampleDialog& self) {
                                         QWidget* button = qobject_cast<QWidget*>(self.button->getHandle());
                                         if (way == 0)
                                             return QTest::mouseClick(button, Qt::LeftButton);
                                         QEventLoop loop;
                                         QTimer poll;
                                         QObject::connect(&poll, &QTimer::timeout, [&] {
                                             if (!window || !window->isVisible())
                                                 loop.quit();
                                         });
                                         QTimer::singleShot(0, [&] {
                                             QTest::mouseClick(button, Qt::LeftButton);
                                             poll.start(0);
                                         });
                                         loop.exec();
                                         EXPECT_FALSE(window.isNull());
                                     }),
                          0);
            }
            EXPECT_EQ(window.isNull(), release == 1);
            EXPECT_FALSE(window && window->isVisible());
            delete window.data();
        }
    }
}
