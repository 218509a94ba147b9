#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

// The list box's model. The hooks that mirror it into the widget do nothing
// unless the list follows its user, so the widget stays empty.
class CKyUIListBoxImpl : public CKyUIBaseViewImpl
{
public:
    struct ItemDef
    {
        QVariant data;
        bool selected = false;
    };

    explicit CKyUIListBoxImpl(CKyUIObject* owner);
    ~CKyUIListBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void AddItem(const QString& text);
    void Clear();
    int Count() const { return m_items.size(); }
    int Row(const QString& text) const { return m_items.indexOf(text); }
    QString& Item(int row);
    void SetItemData(int row, const QVariant& value);
    QVariant ItemData(int row) const;
    void SetItemSelected(int row, bool selected);
    bool IsItemSelected(int row) const;
    void SetItemText(int row, const QString& text);
    void ClearSelection();
    // 0 and an empty list unless the list follows its user.
    int CurrentRow() const;
    QList<int> SelectedItems() const;
    const QVector<ItemDef>& ItemDefs() const { return m_itemDefs; }

    void AddItemImpl(const QString& text);
    void ClearImpl();
    void SetItemSelectedImpl(int row, bool selected);
    void ClearSelectionImpl();
    void SetItemTextImpl(int row, const QString& text);

    // Not connected to anything: the widget never reports a selection.
    void OnItemSelected(int row, bool selected);
    // The user's selection while the list follows its user: the flags follow,
    // and valueChanged reports once whether any item is selected.
    void OnSelectionShown(const QList<int>& selected, const QList<int>& deselected, int currentRow);
    void OnCurrentRowShown(int row) { m_currentRow = row; }
    void SetInteractiveImpl(bool interactive) override;

    CKyUISignal<void(int)> valueChanged;

private:
    bool IsRow(int row) const { return row >= 0 && row < m_items.size(); }

    QList<QString> m_items;
    QVector<ItemDef> m_itemDefs;
    int m_currentRow = -1;
    // Answers a row outside the list instead of undefined behaviour.
    QString m_outOfRangeItem;
};
