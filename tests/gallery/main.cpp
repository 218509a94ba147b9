#include "GalleryRendering.h"

#include <gtest/gtest.h>

#include <QtWidgets/QApplication>

// The pictures are made on the offscreen platform, so the comparison is too;
// with --scale=2 at 200 %.
int main(int argc, char** argv)
{
    GalleryRendering::UseOffscreenPlatform(GalleryRendering::ScaleFromArguments(argc, argv));
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
