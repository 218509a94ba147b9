#include "support/TestDialogs.h"

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>

#include <memory>

namespace
{
int WindowCount()
{
    return QApplication::topLevelWidgets().size();
}

// The library-wide default, on for one test.
struct ReleaseByDefault
{
    ReleaseByDefault() { CKyUIDialog::setDefaultReleasesToolkitDialog(true); }
    ~ReleaseByDefault() { CKyUIDialog::setDefaultReleasesToolkitDialog(false); }
};

// Runs a new dialog, accepted through its OK button, deletes it and lets the
// deferred deletions run; answers its window, null once released.
QPointer<QDialog> RunAndDelete(bool keepWindow)
{
    auto dialog = std::make_unique<SampleDialog>();
    EXPECT_TRUE(dialog->releasesToolkitDialog());
    dialog->setReleasesToolkitDialog(!keepWindow);
    const QPointer<QDialog> window = dialog->widget();
    EXPECT_EQ(RunModally(*dialog,
                         [](SampleDialog& self) {
                             QTest::mouseClick(self.boxButton(CKyUIDialogButtonBox::Ok), Qt::LeftButton);
                         }),
              1);
    dialog.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return window;
}

class QuitOnHide : public QObject
{
public:
    explicit QuitOnHide(QEventLoop& loop)
        : m_loop(loop)
    {}
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Hide)
            m_loop.quit();
        return false;
    }

private:
    QEventLoop& m_loop;
};
} // namespace

TEST(CKyUIDialogReleaseTest, RunsLeaveNoWindowBehindUnlessTheDialogKeepsIt)
{
    EXPECT_FALSE(CKyUIDialog::defaultReleasesToolkitDialog());
    {
        SampleDialog madeBefore;
        EXPECT_FALSE(madeBefore.releasesToolkitDialog());
        madeBefore.setReleasesToolkitDialog(true);
    }
    const ReleaseByDefault release;
    RunAndDelete(false); // warm-up
    const int windows = WindowCount();
    for (int run = 0; run < 20; ++run)
        EXPECT_TRUE(RunAndDelete(false).isNull());
    EXPECT_EQ(WindowCount(), windows);

    const QPointer<QDialog> kept = RunAndDelete(true);
    ASSERT_FALSE(kept.isNull());
    EXPECT_EQ(WindowCount(), windows + 1);
    delete kept.data();
}

// Deleted while its run goes on, from a slot of its own button or inside a
// loop nested in the run: the run ends, and the window outlives every loop
// inside it, going only as exec() returns.
TEST(CKyUIDialogReleaseTest, DeletedDuringItsRunEndsTheRunThenGoes)
{
    const ReleaseByDefault release;
    const int windows = WindowCount();

    auto* fromSlot = new SampleDialog;
    fromSlot->afterSetup = [](SampleDialog& self) {
        self.button->clicked().connect([&self](bool) { delete &self; });
    };
    QPointer<QDialog> window = fromSlot->widget();
    EXPECT_EQ(RunModally(*fromSlot,
                         [](SampleDialog& self) {
                             QTest::mouseClick(qobject_cast<QWidget*>(self.button->getHandle()),
                                               Qt::LeftButton);
                         }),
              0);
    EXPECT_TRUE(window.isNull());

    auto* inNestedLoop = new SampleDialog;
    window = inNestedLoop->widget();
    bool nestedRuns = true;
    bool goneInNestedLoop = false;
    QObject::connect(window, &QObject::destroyed, [&] { goneInNestedLoop = nestedRuns; });
    EXPECT_EQ(RunModally(*inNestedLoop,
                         [&](SampleDialog& self) {
                             QEventLoop nested;
                             QuitOnHide quit(nested);
                             window->installEventFilter(&quit);
                             QTimer::singleShot(0, &nested, [&self] { delete &self; });
                             QTimer::singleShot(10000, &nested, &QEventLoop::quit);
                             nested.exec();
                             nestedRuns = false;
                             EXPECT_FALSE(window.isNull());
                         }),
              0);
    EXPECT_FALSE(goneInNestedLoop);
    EXPECT_TRUE(window.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(WindowCount(), windows);
}
