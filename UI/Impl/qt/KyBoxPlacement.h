#pragma once

#include <QtWidgets/QSizePolicy>

class CKyUIBaseView;
class QBoxLayout;

// Where box layouts and group boxes put a child view's widget: the child's
// size policy is overridden, the stretch truncated to an integer, and radio
// groups, which have no widget, take no place.
namespace KyBoxPlacement
{
// Appends at the end. A vertical box inserts at its count, a horizontal one
// adds; both end up last.
void Add(QBoxLayout* layout, CKyUIBaseView* view, float stretch, bool vertical,
         QSizePolicy::Policy verticalPolicy);
// A position past the end is the end.
void Insert(QBoxLayout* layout, CKyUIBaseView* view, int index, float stretch,
            QSizePolicy::Policy verticalPolicy);
} // namespace KyBoxPlacement
