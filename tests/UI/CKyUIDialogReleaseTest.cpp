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
// loop nested in the run: the run ends, and the window outlives every loop
// inside it, going only as exec() returns.
TEST(CKyUIDialogReleaseTest, DeletedDuringItsRunEndsTheRunThenGoes)
{
    CKyUIDialog::setDefaultReleasesToolkitDialog(true);
    for (const bool nested : {false, true}) {
        auto* dialog = new SampleDialog;
        dialog->afterSetup = [](SampleDialog& self) {
            self.button->clicked().connect([&self](bool) { delete &self; });
        };
        const QPointer<QDialog> window = dialog->widget();
        EXPECT_EQ(RunModally(*dialog,
                             [&](SampleDialog& self) {
                                 QWidget* button = qobject_cast<QWidget*>(self.button->getHandle());
                                 if (!nested)
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
        EXPECT_TRUE(window.isNull());
    }
    CKyUIDialog::setDefaultReleasesToolkitDialog(false);
}
