#include <gtest/gtest.h>

#include <QtWidgets/QApplication>

#include <cstdlib>

// The pictures are made on the offscreen platform, so the comparison is too.
int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
