#include "UI/CKyUIListBox.h"

#include "UI/Impl/CKyUIListBoxImpl.h"

CKyUIListBox::CKyUIListBox()
{
    createImpl<CKyUIListBoxImpl>(this);
}

CKyUIListBox::~CKyUIListBox() = default;

void CKyUIListBox::addItem(const QString& text)
{
    implAs<CKyUIListBoxImpl>()->AddItem(text);
}

void CKyUIListBox::clear()
{
    implAs<CKyUIListBoxImpl>()->Clear();
}

int CKyUIListBox::count() const
{
    return implAs<CKyUIListBoxImpl>()->Count();
}

int CKyUIListBox::row(const QString& text) const
{
    return implAs<CKyUIListBoxImpl>()->Row(text);
}

QString& CKyUIListBox::item(int row)
{
    return implAs<CKyUIListBoxImpl>()->Item(row);
}

void CKyUIListBox::setItemData(int row, const QVariant& value)
{
    implAs<CKyUIListBoxImpl>()->SetItemData(row, value);
}

QVariant CKyUIListBox::itemData(int row) const
{
    return implAs<CKyUIListBoxImpl>()->ItemData(row);
}

void CKyUIListBox::setItemSelected(int row, bool selected)
{
    implAs<CKyUIListBoxImpl>()->SetItemSelected(row, selected);
}

bool CKyUIListBox::isItemSelected(int row) const
{
    return implAs<CKyUIListBoxImpl>()->IsItemSelected(row);
}

void CKyUIListBox::setItemText(int row, const QString& text)
{
    implAs<CKyUIListBoxImpl>()->SetItemText(row, text);
}

void CKyUIListBox::clearSelection()
{
    implAs<CKyUIListBoxImpl>()->ClearSelection();
}

int CKyUIListBox::currentRow() const
{
    return implAs<CKyUIListBoxImpl>()->CurrentRow();
}

QList<int> CKyUIListBox::selectedItems() const
{
    return implAs<CKyUIListBoxImpl>()->SelectedItems();
}

CKyUISignal<void(int)>& CKyUIListBox::valueChanged()
{
    return implAs<CKyUIListBoxImpl>()->valueChanged;
}
