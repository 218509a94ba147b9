#include "UI/Impl/qt/KyWindowPlacement.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace KyWindowPlacement
{
QVector<Screen> Screens()
{
    QVector<Screen> screens;
    const QList<QScreen*> all = QGuiApplication::screens();
    for (const QScreen* screen : all)
        screens.append(Screen{screen->name(), screen->availableGeometry()});
    return screens;
}

const Screen* Nearest(const QPoint& point, const QVector<Screen>& screens)
{
    const Screen* nearest = nullptr;
    qint64 best = 0;
    for (const Screen& screen : screens) {
        const QRect& area = screen.available;
        const qint64 dx = qMax(0, qMax(area.left() - point.x(), point.x() - area.right()));
        const qint64 dy = qMax(0, qMax(area.top() - point.y(), point.y() - area.bottom()));
        const qint64 distance = dx * dx + dy * dy;
        if (!nearest || distance < best) {
            nearest = &screen;
            best = distance;
        }
    }
    return nearest;
}

QRect Place(const QRect& stored, const QString& screen, const QVector<Screen>& screens, const QSize& minimum)
{
    const Screen* target = nullptr;
    for (const Screen& candidate : screens) {
        if (!screen.isEmpty() && candidate.name == screen) {
            target = &candidate;
            break;
        }
    }
    if (!target)
        target = Nearest(stored.center(), screens);
    if (!target)
        return stored;
    const QRect& area = target->available;
    const QSize size = stored.size().boundedTo(area.size()).expandedTo(minimum);
    // A window larger than the area keeps its top-left corner, and with it
    // its title bar, on the screen.
    const int x = qMax(area.left(), qMin(stored.x(), area.left() + area.width() - size.width()));
    const int y = qMax(area.top(), qMin(stored.y(), area.top() + area.height() - size.height()));
    return QRect(QPoint(x, y), size);
}
} // namespace KyWindowPlacement
