#include <gtest/gtest.h>

#include <QtWidgets/QApplication>

#include <cstdlib>

// Every test runs with a QApplication under the offscreen platform unless the
// caller chose another one; test discovery runs this program too.
int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
