#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QPixmap>

class CKyUIBaseView;
class CKyUIHorizontalLayout;
class CKyUILabel;
class CKyUIPushButton;
class CKyUIVerticalLayout;

// Helpers that give every page the same shape: a column of rows, each with the
// control's name on the left and its examples on the right.
namespace GalleryRows
{

// Colours of the theme, for the pictures the gallery draws itself.
extern const QColor Panel;  // dialog background
extern const QColor Field;  // button and field background
extern const QColor Accent; // selected tab, checked boxes
extern const QColor Text;

CKyUIVerticalLayout* NewPage();
// A row on the page: the name label, then whatever the caller adds.
CKyUIHorizontalLayout* AddRow(CKyUIVerticalLayout* page, const QString& name);
// A blank that takes the rest of a row, so that the examples keep their width.
void AddFiller(CKyUIBaseView* row);
// A blank that takes the rest of a page's height.
void AddPageFiller(CKyUIVerticalLayout* page);
CKyUILabel* NewLabel(const QString& text);
// A bold label that names a box.
CKyUILabel* Caption(const QString& text);
CKyUIPushButton* NewButton(const QString& text);
// A small drawing of a drilled hole with its centre lines.
QPixmap HoleIcon(int size);

} // namespace GalleryRows
