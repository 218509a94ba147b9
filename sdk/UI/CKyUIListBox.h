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

    /// Leaves the list as it is: the text does not change.
    void setItemText(int row, const QString& text);
    /// Leaves the list as it is: the flags are not reset.
    void clearSelection();

    /// Always 0.
    int currentRow() const;
    /// Always empty, whatever the flags say.
    QList<int> selectedItems() const;

    /// 1 when some item is selected, 0 when none. Offered for connection; no
    /// public operation emits it.
    CKyUISignal<void(int)>& valueChanged();
};
