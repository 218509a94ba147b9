#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

// A list of text items, each with a value and a selected flag. The list is a
// model kept by the library alone: every query answers from it, and the
// toolkit widget stays empty. No public operation emits valueChanged.
class COMMONUI_EXPORT CKyUIListBox : public CKyUIBaseView
{
public:
    CKyUIListBox();
    ~CKyUIListBox() override;

    void addItem(const QString& text);
    void clear();
    int count() const;
    // The first item with exactly this text, or -1.
    int row(const QString& text) const;
    // Unchecked: the row must be between 0 and count() - 1.
    QString& item(int row);

    void setItemData(int row, const QVariant& value);
    QVariant itemData(int row) const;
    void setItemSelected(int row, bool selected);
    bool isItemSelected(int row) const;

    // Both leave the list as it is.
    void setItemText(int row, const QString& text);
    void clearSelection();

    // Always 0.
    int currentRow() const;
    // Always empty, whatever the flags say.
    QList<int> selectedItems() const;

    // 1 when some item is selected, 0 when none.
    CKyUISignal<void(int)>& valueChanged();
};
