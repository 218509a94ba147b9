// Paints the nine icons of the theme into the directory given on the command
// line. The PNGs it writes are committed under resources/icons; run it again
// only when an icon is meant to change.

#include <QtCore/QDir>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>

#include <cstdio>
#include <functional>

namespace {

// The palette's colours, as in resources/qss/style.colors.
const QColor kClone(0x64, 0x64, 0x64);
const QColor kJango(0x33, 0x35, 0x38);
const QColor kVader(0x14, 0x15, 0x18);
const QColor kObi(0x21, 0x4B, 0x98);
const QColor kLight(0xFF, 0xFF, 0xFF);
const QColor kDark(0x00, 0x00, 0x00);
const QColor kChevron(0xD0, 0xD0, 0xD0);

// Indicators are painted at 72x72 and shown at 30x30: a 40 px figure with a
// 16 px transparent margin, and strokes thick enough to survive the scaling.
const int kIndicatorSize = 72;
const qreal kMargin = 16.0;
const qreal kFigure = 40.0;
const qreal kOutline = 3.0;
const qreal kMarkWidth = 5.0;

// The stroke is centred on the path, so inset the shape by half of it to keep
// the whole figure inside the 40 px square.
QRectF FigureRect()
{
    const qreal inset = kOutline / 2.0;
    return QRectF(kMargin + inset, kMargin + inset, kFigure - kOutline, kFigure - kOutline);
}

QImage Paint(int width, int height, const std::function<void(QPainter&)>& draw)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    draw(painter);
    painter.end();
    return image;
}

void DrawSquare(QPainter& painter, const QColor& fill, const QColor& outline)
{
    painter.setPen(QPen(outline, kOutline, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(fill);
    painter.drawRoundedRect(FigureRect(), 3.0, 3.0);
}

void DrawCircle(QPainter& painter, const QColor& fill, const QColor& ring)
{
    painter.setPen(QPen(ring, kOutline));
    painter.setBrush(fill);
    painter.drawEllipse(FigureRect());
}

void DrawCheckMark(QPainter& painter, const QColor& colour)
{
    QPainterPath mark;
    mark.moveTo(25.0, 36.5);
    mark.lineTo(32.5, 44.0);
    mark.lineTo(47.0, 28.0);
    painter.setPen(QPen(colour, kMarkWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(mark);
}

void DrawCentreDot(QPainter& painter, const QColor& colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(kIndicatorSize / 2.0, kIndicatorSize / 2.0), 8.0, 8.0);
}

// A chevron in a 16x10 box; the tip points down unless pointUp is set.
void DrawChevron(QPainter& painter, bool pointUp)
{
    const qreal top = 2.5;
    const qreal bottom = 7.5;
    QPainterPath chevron;
    chevron.moveTo(2.5, pointUp ? bottom : top);
    chevron.lineTo(8.0, pointUp ? top : bottom);
    chevron.lineTo(13.5, pointUp ? bottom : top);
    painter.setPen(QPen(kChevron, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(chevron);
}

struct Icon
{
    const char* name;
    int width;
    int height;
    std::function<void(QPainter&)> draw;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <output directory>\n", argv[0]);
        return 2;
    }
    const QDir output(QString::fromLocal8Bit(argv[1]));
    if (!output.exists() && !QDir().mkpath(output.path())) {
        std::fprintf(stderr, "cannot create %s\n", argv[1]);
        return 1;
    }

    const int n = kIndicatorSize;
    const Icon icons[] = {
        {"checkbox_inactive.png", n, n, [](QPainter& p) { DrawSquare(p, kVader, kDark); }},
        {"checkbox_active.png", n, n,
         [](QPainter& p) {
             DrawSquare(p, kObi, kObi);
             DrawCheckMark(p, kLight);
         }},
        {"checkbox_disabled_inactive.png", n, n, [](QPainter& p) { DrawSquare(p, kJango, kClone); }},
        {"checkbox_disabled_active.png", n, n,
         [](QPainter& p) {
             DrawSquare(p, kJango, kClone);
             DrawCheckMark(p, kClone);
         }},
        {"radiobutton_inactive.png", n, n, [](QPainter& p) { DrawCircle(p, kVader, kDark); }},
        {"radiobutton_active.png", n, n,
         [](QPainter& p) {
             DrawCircle(p, kObi, kObi);
             DrawCentreDot(p, kLight);
         }},
        {"radiobutton_disabled.png", n, n, [](QPainter& p) { DrawCircle(p, kJango, kClone); }},
        {"chevron_down.png", 16, 10, [](QPainter& p) { DrawChevron(p, false); }},
        {"chevron_up.png", 16, 10, [](QPainter& p) { DrawChevron(p, true); }},
    };

    int failures = 0;
    for (const Icon& icon : icons) {
        const QString path = output.filePath(QString::fromLatin1(icon.name));
        const QImage image = Paint(icon.width, icon.height, icon.draw);
        if (!image.save(path, "PNG")) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            ++failures;
            continue;
        }
        std::printf("%s\n", qPrintable(path));
    }
    return failures == 0 ? 0 : 1;
}
