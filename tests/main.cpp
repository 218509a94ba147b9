#include <gtest/gtest.h>

#include <QtCore/QStandardPaths>
#include <QtWidgets/QApplication>

#include <cstdlib>

// Every test runs with a QApplication under the offscreen platform unless the
// caller chose another one; test discovery runs this program too. Settings a
// test leaves in the default store go to a folder of the toolkit's for tests,
// not to the user's own.
int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    return RUN_ALL_TESTS();
}
