#include "PictureComparison.h"

#include <QtGui/QColor>

#include <cstdlib>

bool PictureComparison::matches(double share) const
{
    return sameSize && differing <= share * total;
}

QString PictureComparison::summary() const
{
    return QString("%1 of %2 pixels (%3 %)")
        .arg(differing)
        .arg(total)
        .arg(total ? 100.0 * differing / total : 0.0, 0, 'f', 2);
}

PictureComparison ComparePictures(const QImage& expectedImage, const QImage& actualImage, int levels)
{
    PictureComparison result;
    const QImage expected = expectedImage.convertToFormat(QImage::Format_RGB32);
    const QImage actual = actualImage.convertToFormat(QImage::Format_RGB32);
    result.sameSize = expected.size() == actual.size();
    if (!result.sameSize)
        return result;

    result.total = expected.width() * expected.height();
    result.difference = QImage(expected.size(), QImage::Format_RGB32);
    for (int y = 0; y < expected.height(); ++y) {
        const auto* want = reinterpret_cast<const QRgb*>(expected.constScanLine(y));
        const auto* got = reinterpret_cast<const QRgb*>(actual.constScanLine(y));
        auto* out = reinterpret_cast<QRgb*>(result.difference.scanLine(y));
        for (int x = 0; x < expected.width(); ++x) {
            const bool differs = std::abs(qRed(want[x]) - qRed(got[x])) > levels ||
                                 std::abs(qGreen(want[x]) - qGreen(got[x])) > levels ||
                                 std::abs(qBlue(want[x]) - qBlue(got[x])) > levels;
            if (differs) {
                ++result.differing;
                out[x] = qRgb(255, 0, 0);
            } else {
                const int grey = qGray(want[x]) / 3;
                out[x] = qRgb(grey, grey, grey);
            }
        }
    }
    return result;
}
