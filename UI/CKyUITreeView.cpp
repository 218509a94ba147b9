#include "UI/CKyUITreeView.h"

#include "UI/Impl/CKyUITreeViewImpl.h"

CKyUITreeView::CKyUITreeView()
{
    createImpl<CKyUITreeViewImpl>(this);
}

CKyUITreeView::~CKyUITreeView() = default;

void CKyUITreeView::setHeaderLabels(const QStringList& labels)
{
    implAs<CKyUITreeViewImpl>()->SetHeaderLabels(labels);
}

QStringList CKyUITreeView::headerLabels() const
{
    return implAs<CKyUITreeViewImpl>()->HeaderLabels();
}

int CKyUITreeView::columnCount() const
{
    return implAs<CKyUITreeViewImpl>()->ColumnCount();
}

int CKyUITreeView::addItem(const QStringList& texts, int parent)
{
    return implAs<CKyUITreeViewImpl>()->AddItem(texts, parent);
}

void CKyUITreeView::removeItem(int item)
{
    implAs<CKyUITreeViewImpl>()->RemoveItem(item);
}

void CKyUITreeView::clear()
{
    implAs<CKyUITreeViewImpl>()->Clear();
}

bool CKyUITreeView::contains(int item) const
{
    return implAs<CKyUITreeViewImpl>()->Contains(item);
}

int CKyUITreeView::count() const
{
    return implAs<CKyUITreeViewImpl>()->Count();
}

int CKyUITreeView::parentItem(int item) const
{
    return implAs<CKyUITreeViewImpl>()->ParentItem(item);
}

QList<int> CKyUITreeView::childItems(int item) const
{
    return implAs<CKyUITreeViewImpl>()->ChildItems(item);
}

void CKyUITreeView::setText(int item, int column, const QString& text)
{
    implAs<CKyUITreeViewImpl>()->SetText(item, column, text);
}

QString CKyUITreeView::text(int item, int column) const
{
    return implAs<CKyUITreeViewImpl>()->Text(item, column);
}

void CKyUITreeView::setIcon(int item, int column, const QIcon& icon)
{
    implAs<CKyUITreeViewImpl>()->SetIcon(item, column, icon);
}

QIcon CKyUITreeView::icon(int item, int column) const
{
    return implAs<CKyUITreeViewImpl>()->Icon(item, column);
}

void CKyUITreeView::setItemData(int item, const QVariant& data)
{
    implAs<CKyUITreeViewImpl>()->SetItemData(item, data);
}

QVariant CKyUITreeView::itemData(int item) const
{
    return implAs<CKyUITreeViewImpl>()->ItemData(item);
}

void CKyUITreeView::setCheckable(int item, bool checkable)
{
    implAs<CKyUITreeViewImpl>()->SetCheckable(item, checkable);
}

bool CKyUITreeView::isCheckable(int item) const
{
    return implAs<CKyUITreeViewImpl>()->IsCheckable(item);
}

void CKyUITreeView::setChecked(int item, bool checked)
{
    implAs<CKyUITreeViewImpl>()->SetChecked(item, checked);
}

bool CKyUITreeView::isChecked(int item) const
{
    return implAs<CKyUITreeViewImpl>()->IsChecked(item);
}

QList<int> CKyUITreeView::checkedItems() const
{
    return implAs<CKyUITreeViewImpl>()->CheckedItems();
}

void CKyUITreeView::setExpanded(int item, bool expanded)
{
    implAs<CKyUITreeViewImpl>()->SetExpanded(item, expanded);
}

bool CKyUITreeView::isExpanded(int item) const
{
    return implAs<CKyUITreeViewImpl>()->IsExpanded(item);
}

void CKyUITreeView::setSortingEnabled(bool enabled)
{
    implAs<CKyUITreeViewImpl>()->SetSortingEnabled(enabled);
}

bool CKyUITreeView::isSortingEnabled() const
{
    return implAs<CKyUITreeViewImpl>()->IsSortingEnabled();
}

void CKyUITreeView::sortByColumn(int column, bool ascending)
{
    implAs<CKyUITreeViewImpl>()->SortByColumn(column, ascending);
}

int CKyUITreeView::sortColumn() const
{
    return implAs<CKyUITreeViewImpl>()->SortColumn();
}

bool CKyUITreeView::sortAscending() const
{
    return implAs<CKyUITreeViewImpl>()->SortAscending();
}

void CKyUITreeView::setSelectionMode(SelectionMode mode)
{
    implAs<CKyUITreeViewImpl>()->SetSelectionMode(mode);
}

CKyUITreeView::SelectionMode CKyUITreeView::selectionMode() const
{
    return implAs<CKyUITreeViewImpl>()->GetSelectionMode();
}

int CKyUITreeView::currentItem() const
{
    return implAs<CKyUITreeViewImpl>()->CurrentItem();
}

void CKyUITreeView::setCurrentItem(int item)
{
    implAs<CKyUITreeViewImpl>()->SetCurrentItem(item);
}

void CKyUITreeView::setItemSelected(int item, bool selected)
{
    implAs<CKyUITreeViewImpl>()->SetItemSelected(item, selected);
}

bool CKyUITreeView::isItemSelected(int item) const
{
    return implAs<CKyUITreeViewImpl>()->IsItemSelected(item);
}

QList<int> CKyUITreeView::selectedItems() const
{
    return implAs<CKyUITreeViewImpl>()->SelectedItems();
}

int CKyUITreeView::columnWidth(int column) const
{
    return implAs<CKyUITreeViewImpl>()->ColumnWidth(column);
}

void CKyUITreeView::setColumnWidth(int column, int width)
{
    implAs<CKyUITreeViewImpl>()->SetColumnWidth(column, width);
}

QList<int> CKyUITreeView::columnWidths() const
{
    return implAs<CKyUITreeViewImpl>()->ColumnWidths();
}

void CKyUITreeView::setColumnWidths(const QList<int>& widths)
{
    implAs<CKyUITreeViewImpl>()->SetColumnWidths(widths);
}

CKyUISignal<void(int)>& CKyUITreeView::currentChanged()
{
    return implAs<CKyUITreeViewImpl>()->currentChanged;
}

CKyUISignal<void(int)>& CKyUITreeView::itemActivated()
{
    return implAs<CKyUITreeViewImpl>()->itemActivated;
}

CKyUISignal<void(int, bool)>& CKyUITreeView::itemCheckChanged()
{
    return implAs<CKyUITreeViewImpl>()->itemCheckChanged;
}

CKyUISignal<void()>& CKyUITreeView::selectionChanged()
{
    return implAs<CKyUITreeViewImpl>()->selectionChanged;
}
