#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// A list of text items, each with a value and a selected flag, that its widget
/// never shows (see \ref behaviours_controls "behaviours"). The list is a model
/// kept by the library alone: every query answers from it, and the toolkit
/// widget stays empty. No public operation emits valueChanged.
///
/// Under setInteractive(true) the widget shows the model: its items, texts
/// and selected flags, at once and as they change. The user's selection
/// (mouse or keyboard) sets the flags, currentRow() and selectedItems(), and
/// emits valueChanged once; setItemText and clearSelection take effect.
///
/// \image html choices.png "The list box, coloured through setPalette, among the choices"
class COMMONUI_EXPORT CKyUIListBox : public CKyUIBaseView
{
public:
    /// An empty list.
    CKyUIListBox();
    ~CKyUIListBox() override;

    /// Appends an item with an invalid value, not selected.
    void addItem(const QString& text);
    /// Removes every item.
    void clear();
    /// The number of items.
    int count() const;
    /// The first item with exactly this text, or -1.
    int row(const QString& text) const;
    /// Unchecked: the row must be between 0 and count() - 1.
    QString& item(int row);

    /// Replaces the item's value; a row out of range is ignored.
    void setItemData(int row, const QVariant& value);
    /// A copy of the item's value; invalid for a row out of range.
    QVariant itemData(int row) const;
    /// Sets the item's selected flag; a row out of range is ignored. Emits
    /// nothing.
    void setItemSelected(int row, bool selected);
    /// The item's flag; false for a row out of range.
    bool isItemSelected(int row) const;

    /// Leaves the list as it is: the text does not change. Interactive:
    /// renames the item (a row out of range is ignored).
    void setItemText(int row, const QString& text);
    /// Leaves the list as it is: the flags are not reset. Interactive:
    /// unselects every item, silently.
    void clearSelection();

    /// Always 0. Interactive: the row the user last moved to, -1 for none.
    int currentRow() const;
    /// Always empty, whatever the flags say. Interactive: the selected rows,
    /// in order.
    QList<int> selectedItems() const;

    /// 1 when some item is selected, 0 when none. No public operation emits
    /// it; an interactive list emits it when the user's selection changes.
    CKyUISignal<void(int)>& valueChanged();
};
