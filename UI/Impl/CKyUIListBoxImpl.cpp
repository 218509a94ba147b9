#include "UI/Impl/CKyUIListBoxImpl.h"

CKyUIListBoxImpl::CKyUIListBoxImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , valueChanged(owner)
{
}

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
    // The stored text stays as it is.
    SetItemTextImpl(row, text);
}

void CKyUIListBoxImpl::ClearSelection()
{
    // The flags stay as they are.
    ClearSelectionImpl();
}

void CKyUIListBoxImpl::AddItemImpl(const QString&)
{
}

void CKyUIListBoxImpl::ClearImpl()
{
}

void CKyUIListBoxImpl::SetItemSelectedImpl(int, bool)
{
}

void CKyUIListBoxImpl::ClearSelectionImpl()
{
}

void CKyUIListBoxImpl::SetItemTextImpl(int, const QString&)
{
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
