// Paints the nine icons of the theme into the directory given on the command
// line. The PNGs it writes are committed under resources/icons; run it again
// only when an icon is meant to change. With --variants it paints the icons of
// the dark and light variants instead, each at 1x and 2x (name@2x.png, which
// the toolkit picks on a screen scaled above 100 %), into <dir>/dark and
// <dir>/light; those are committed under resources/variants/icons.

#include <QtCore/QDir>
#include <QtCore/QList>
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
#include <utility>

namespace
{

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

// The variants' indicators: an 18-unit square, strokes on half units so that
// a 1-unit outline falls on whole pixels at 1x and at 2x.
struct VariantColours
{
    QColor fill, frame, checkedFill, mark, disabledFill, disabledFrame, disabledMark, chevron,
        disabledChevron;
};

const VariantColours kDarkVariant = {
    QColor(0x14, 0x15, 0x18), QColor(0x85, 0x88, 0x8E), QColor(0x2B, 0x63, 0xC9),
    QColor(0xFF, 0xFF, 0xFF), QColor(0x2A, 0x2C, 0x2F), QColor(0x5A, 0x5D, 0x62),
    QColor(0x8A, 0x8D, 0x92), QColor(0xD0, 0xD0, 0xD0), QColor(0x6E, 0x71, 0x76)};
const VariantColours kLightVariant = {
    QColor(0xFF, 0xFF, 0xFF), QColor(0x76, 0x76, 0x76), QColor(0x1F, 0x5C, 0xC4),
    QColor(0xFF, 0xFF, 0xFF), QColor(0xEB, 0xEB, 0xEB), QColor(0xBD, 0xBD, 0xBD),
    QColor(0x9A, 0x9A, 0x9A), QColor(0x3A, 0x3A, 0x3A), QColor(0xA8, 0xA8, 0xA8)};

const int kVariantIndicator = 18;
const QRectF kVariantFigure(2.5, 2.5, 13.0, 13.0);

void DrawVariantBox(QPainter& painter, bool round, const QColor& fill, const QColor& frame)
{
    painter.setPen(QPen(frame, 1.0));
    painter.setBrush(fill);
    if (round)
        painter.drawEllipse(kVariantFigure);
    else
        painter.drawRoundedRect(kVariantFigure, 2.0, 2.0);
}

void DrawVariantMark(QPainter& painter, bool round, const QColor& colour)
{
    if (round) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(QPointF(9.0, 9.0), 3.0, 3.0);
        return;
    }
    QPainterPath mark;
    mark.moveTo(5.5, 9.0);
    mark.lineTo(8.0, 11.5);
    mark.lineTo(12.5, 6.5);
    painter.setPen(QPen(colour, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(mark);
}

// A chevron in a 12x8 box, pointing down unless pointUp is set.
void DrawVariantChevron(QPainter& painter, const QColor& colour, bool pointUp)
{
    QPainterPath chevron;
    chevron.moveTo(2.5, pointUp ? 5.5 : 2.5);
    chevron.lineTo(6.0, pointUp ? 2.5 : 5.5);
    chevron.lineTo(9.5, pointUp ? 5.5 : 2.5);
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(chevron);
}

struct Icon
{
    const char* name;
    int width;
    int height;
    std::function<void(QPainter&)> draw;
    QString variantName = QString();
};

QList<Icon> VariantIcons(const VariantColours& c)
{
    QList<Icon> icons;
    const int n = kVariantIndicator;
    for (const bool round : {false, true}) {
        const char* shape = round ? "radiobutton" : "checkbox";
        const auto add = [&](const char* state, const QColor& fill, const QColor& frame, const QColor& mark) {
            icons.append({nullptr, n, n, [=](QPainter& p) {
                              DrawVariantBox(p, round, fill, frame);
                              if (mark.isValid())
                                  DrawVariantMark(p, round, mark);
                          }});
            icons.last().variantName =
                QStringLiteral("%1_%2").arg(QLatin1String(shape), QLatin1String(state));
        };
        add("unchecked", c.fill, c.frame, QColor());
        add("checked", c.checkedFill, c.checkedFill, c.mark);
        add("unchecked_disabled", c.disabledFill, c.disabledFrame, QColor());
        add("checked_disabled", c.disabledFill, c.disabledFrame, c.disabledMark);
    }
    const auto chevron = [&](const QString& name, const QColor& colour, bool up) {
        icons.append({nullptr, 12, 8, [=](QPainter& p) { DrawVariantChevron(p, colour, up); }});
        icons.last().variantName = name;
    };
    chevron(QStringLiteral("chevron_down"), c.chevron, false);
    chevron(QStringLiteral("chevron_up"), c.chevron, true);
    chevron(QStringLiteral("chevron_down_disabled"), c.disabledChevron, false);
    return icons;
}

// Each icon at 1x and 2x: the same figure, painted on a grid twice as fine.
int PaintVariants(const QDir& output)
{
    int failures = 0;
    const std::pair<const char*, VariantColours> variants[] = {{"dark", kDarkVariant},
                                                               {"light", kLightVariant}};
    for (const auto& variant : variants) {
        const QDir folder(output.filePath(QLatin1String(variant.first)));
        if (!QDir().mkpath(folder.path())) {
            std::fprintf(stderr, "cannot create %s\n", qPrintable(folder.path()));
            return 1;
        }
        for (const Icon& icon : VariantIcons(variant.second)) {
            for (const int scale : {1, 2}) {
                const QString path = folder.filePath(icon.variantName + (scale == 2 ? "@2x.png" : ".png"));
                const QImage image = Paint(icon.width * scale, icon.height * scale, [&](QPainter& p) {
                    p.scale(scale, scale);
                    icon.draw(p);
                });
                if (!image.save(path, "PNG")) {
                    std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
                    ++failures;
                    continue;
                }
                std::printf("%s\n", qPrintable(path));
            }
        }
    }
    return failures == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const bool variants = argc == 3 && QLatin1String(argv[1]) == QLatin1String("--variants");
    if (argc != 2 && !variants) {
        std::fprintf(stderr, "usage: %s [--variants] <output directory>\n", argv[0]);
        return 2;
    }
    const QDir output(QString::fromLocal8Bit(argv[argc - 1]));
    if (!output.exists() && !QDir().mkpath(output.path())) {
        std::fprintf(stderr, "cannot create %s\n", argv[argc - 1]);
        return 1;
    }
    if (variants)
        return PaintVariants(output);

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
