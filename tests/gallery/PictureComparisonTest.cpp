// The tolerance of the comparison: small shifts of every pixel pass, a few
// wrong pixels pass, a visible change does not.

#include "PictureComparison.h"

#include <gtest/gtest.h>

namespace
{

QImage Plain(QColor colour, int width = 100, int height = 100)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

void Paint(QImage& image, int pixels, QColor colour)
{
    for (int i = 0; i < pixels; ++i)
        image.setPixel(i % image.width(), i / image.width(), colour.rgb());
}

} // namespace

TEST(PictureComparison, ToleratesSmallLevelsEverywhereAndAFewWrongPixels)
{
    const QImage expected = Plain(QColor(0x33, 0x35, 0x38));
    EXPECT_TRUE(ComparePictures(expected, Plain(QColor(0x3b, 0x3d, 0x30))).matches());

    QImage speckled = expected;
    Paint(speckled, 50, Qt::white); // 0.5 % of 10000
    const PictureComparison result = ComparePictures(expected, speckled);
    EXPECT_EQ(result.differing, 50);
    EXPECT_TRUE(result.matches());
    EXPECT_EQ(result.summary(), "50 of 10000 pixels (0.50 %)");
}

TEST(PictureComparison, RejectsAVisibleChangeAndMarksItInRed)
{
    const QImage expected = Plain(QColor(0x33, 0x35, 0x38));
    QImage changed = expected;
    Paint(changed, 51, QColor(0x33, 0x35, 0x38 + 9)); // one channel, one level too far
    const PictureComparison result = ComparePictures(expected, changed);
    EXPECT_FALSE(result.matches());
    EXPECT_EQ(result.difference.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_NE(result.difference.pixel(99, 99), qRgb(255, 0, 0));
}

TEST(PictureComparison, RejectsAnotherSize)
{
    const PictureComparison result = ComparePictures(Plain(Qt::black), Plain(Qt::black, 100, 101));
    EXPECT_FALSE(result.sameSize);
    EXPECT_FALSE(result.matches());
}
