#include "UI/Impl/CKyUIListBoxImpl.h"

#include "UI/CKyUIObject.h"

#include <algorithm>

CKyUIListBoxImpl::CKyUIListBoxImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , valueChanged(owner)
{}

CKyUIListBoxImpl::~CKyUIListBoxImpl() = default;

QString CKyUIListBoxImpl::GetFrontendClassName()
{
    return QStringLiteral("QListWidget");
}

void CKyUIListBoxImpl::AddItem(const QString& text)
{
    m_items.append(text);
    m_itemDefs.append(ItemDef());
    AddItemImpl(text);
}

void CKyUIListBoxImpl::Clear()
{
    m_items.clear();
    // Keeps its capacity for the next filling.
    m_itemDefs.clear();
    ClearImpl();
}

void CKyUIListBoxImpl::SetItemData(int row, const QVariant& value)
{
    if (IsRow(row))
        m_itemDefs[row].data = value;
}

QVariant CKyUIListBoxImpl::ItemData(int row) const
{
    return IsRow(row) ? m_itemDefs.at(row).data : QVariant();
}

void CKyUIListBoxImpl::SetItemSelected(int row, bool selected)
{
    if (!IsRow(row))
        return;
    m_itemDefs[row].selected = selected;
    SetItemSelectedImpl(row, selected);
}

bool CKyUIListBoxImpl::IsItemSelected(int row) const
{
    return IsRow(row) && m_itemDefs.at(row).selected;
}

void CKyUIListBoxImpl::SetItemText(int row, const QString& text)
{
    // The stored text stays as it is unless the list follows its user.
    if (owner()->isInteractive() && IsRow(row))
        m_items[row] = text;
    SetItemTextImpl(row, text);
}

void CKyUIListBoxImpl::ClearSelection()
{
    // The flags stay as they are unless the list follows its user.
    if (owner()->isInteractive()) {
        for (ItemDef& def : m_itemDefs)
            def.selected = false;
    }
    ClearSelectionImpl();
}

int CKyUIListBoxImpl::CurrentRow() const
{
    return owner()->isInteractive() ? m_currentRow : 0;
}

QList<int> CKyUIListBoxImpl::SelectedItems() const
{
    QList<int> rows;
    if (!owner()->isInteractive())
        return rows;
    for (int row = 0; row < m_itemDefs.size(); ++row) {
        if (m_itemDefs.at(row).selected)
            rows << row;
    }
    return rows;
}

void CKyUIListBoxImpl::OnSelectionShown(const QList<int>& selected, const QList<int>& deselected,
                                        int currentRow)
{
    m_currentRow = currentRow;
    bool changed = false;
    const auto mark = [&](const QList<int>& rows, bool flag) {
        for (int row : rows) {
            if (IsRow(row) && m_itemDefs.at(row).selected != flag) {
                m_itemDefs[row].selected = flag;
                changed = true;
            }
        }
    };
    mark(deselected, false);
    mark(selected, true);
    // The program's own selections arrive here too, already stored: silent.
    if (!changed)
        return;
    const bool any =
        std::any_of(m_itemDefs.cbegin(), m_itemDefs.cend(), [](const ItemDef& def) { return def.selected; });
    valueChanged.Emit(any ? 1 : 0);
}

void CKyUIListBoxImpl::OnItemSelected(int row, bool selected)
{
    if (IsRow(row))
        m_itemDefs[row].selected = selected;
    // Tells whether any item is selected, not which.
    for (const ItemDef& def : m_itemDefs) {
        if (def.selected) {
            valueChanged.Emit(1);
            return;
        }
    }
    valueChanged.Emit(0);
}

QString& CKyUIListBoxImpl::Item(int row)
{
    if (!IsRow(row)) {
        m_outOfRangeItem.clear();
        return m_outOfRangeItem;
    }
    return m_items[row];
}
