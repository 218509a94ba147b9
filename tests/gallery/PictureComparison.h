#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>

// Pixel-by-pixel comparison with a tolerance for font rendering: a pixel
// differs when one of its colour channels is more than `levels` apart, and the
// pictures match when at most `share` of the pixels differ.
struct PictureComparison
{
    static constexpr int DefaultLevels = 8;
    static constexpr double DefaultShare = 0.005;

    bool sameSize = false;
    int differing = 0;
    int total = 0;
    QImage difference; // the expected picture dimmed, differing pixels in red

    bool matches(double share = DefaultShare) const;
    QString summary() const; // "123 of 317440 pixels (0.04 %)"
};

PictureComparison ComparePictures(const QImage& expected, const QImage& actual,
                                  int levels = PictureComparison::DefaultLevels);
