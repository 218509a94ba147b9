#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QVector>

// Where a remembered window goes on the screens there are now: monitors come
// and go, change resolution and scale factor between two runs.
namespace KyWindowPlacement
{
struct Screen
{
    QString name;
    QRect available; // without task bars and docks
};

// The screens there are now, in the toolkit's order.
QVector<Screen> Screens();

// The screen at the point, else the one nearest to it; null without screens.
const Screen* Nearest(const QPoint& point, const QVector<Screen>& screens);

// A window stored at `stored` (its frame's top-left corner and inner size) on
// the screen named `screen`: on that screen if it still exists, else on the
// one nearest to where it was; shrunk to fit the screen's available area, but
// not below `minimum`, and moved inside it. Without screens, as stored.
QRect Place(const QRect& stored, const QString& screen, const QVector<Screen>& screens, const QSize& minimum);
} // namespace KyWindowPlacement
