#include "UI/Impl/CKyUITreeViewImpl.h"

#include "UI/Impl/KySettingsStore.h"

#include <algorithm>

CKyUITreeViewImpl::CKyUITreeViewImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , currentChanged(owner)
    , itemActivated(owner)
    , itemCheckChanged(owner)
    , selectionChanged(owner)
{}

QString CKyUITreeViewImpl::GetFrontendClassName()
{
    return QStringLiteral("QTreeWidget");
}

void CKyUITreeViewImpl::SetHeaderLabels(const QStringList& labels)
{
    m_headerLabels = labels;
    m_columnWidths.resize(std::max(1, int(labels.size())));
    SetHeaderLabelsImpl(labels);
}

int CKyUITreeViewImpl::AddItem(const QStringList& texts, int parent)
{
    if (parent != CKyUITreeView::NoItem && !Contains(parent))
        return CKyUITreeView::NoItem;
    const int item = m_nextItem++;
    Node node;
    node.parent = parent;
    node.texts = texts;
    m_nodes.insert(item, node);
    (parent == CKyUITreeView::NoItem ? m_topLevel : m_nodes[parent].children).append(item);
    AddItemImpl(item);
    return item;
}

QList<int> CKyUITreeViewImpl::Subtree(int item) const
{
    QList<int> items{item};
    for (int i = 0; i < items.size(); ++i)
        items += m_nodes.value(items[i]).children;
    return items;
}

void CKyUITreeViewImpl::RemoveItem(int item)
{
    if (!Contains(item))
        return;
    const QList<int> removed = Subtree(item);
    const int parent = m_nodes.value(item).parent;
    (parent == CKyUITreeView::NoItem ? m_topLevel : m_nodes[parent].children).removeAll(item);
    for (int each : removed)
        m_nodes.remove(each);
    // The widget reports the current item and the selection it moves to.
    const Lifetime lifetime = GetLifetime();
    RemoveItemImpl(item, removed);
    if (lifetime.Alive())
        ForgetRemoved();
}

void CKyUITreeViewImpl::Clear()
{
    m_nodes.clear();
    m_topLevel.clear();
    const Lifetime lifetime = GetLifetime();
    ClearImpl();
    if (lifetime.Alive())
        ForgetRemoved();
}

void CKyUITreeViewImpl::ForgetRemoved()
{
    const bool currentGone = m_current != CKyUITreeView::NoItem && !Contains(m_current);
    if (currentGone)
        m_current = CKyUITreeView::NoItem;
    const int selected = m_selected.size();
    m_selected.erase(
        std::remove_if(m_selected.begin(), m_selected.end(), [this](int item) { return !Contains(item); }),
        m_selected.end());
    const bool selectionShrank = m_selected.size() != selected;
    EmitInOrder(
        [&] {
            if (currentGone)
                currentChanged.Emit(CKyUITreeView::NoItem);
        },
        [&] {
            if (selectionShrank)
                selectionChanged.Emit();
        });
}

QList<int> CKyUITreeViewImpl::ChildItems(int item) const
{
    return item == CKyUITreeView::NoItem ? m_topLevel : m_nodes.value(item).children;
}

void CKyUITreeViewImpl::SetText(int item, int column, const QString& text)
{
    auto node = m_nodes.find(item);
    if (node == m_nodes.end() || column < 0 || node->texts.value(column) == text)
        return;
    while (node->texts.size() <= column)
        node->texts.append(QString());
    node->texts[column] = text;
    SetTextImpl(item, column, text);
}

void CKyUITreeViewImpl::SetIcon(int item, int column, const QIcon& icon)
{
    auto node = m_nodes.find(item);
    if (node == m_nodes.end() || column < 0)
        return;
    node->icons.insert(column, icon);
    SetIconImpl(item, column, icon);
}

void CKyUITreeViewImpl::SetItemData(int item, const QVariant& data)
{
    auto node = m_nodes.find(item);
    if (node != m_nodes.end())
        node->data = data;
}

void CKyUITreeViewImpl::SetCheckable(int item, bool checkable)
{
    auto node = m_nodes.find(item);
    if (node == m_nodes.end() || node->checkable == checkable)
        return;
    node->checkable = checkable;
    SetCheckImpl(item);
}

void CKyUITreeViewImpl::SetChecked(int item, bool checked)
{
    auto node = m_nodes.find(item);
    if (node == m_nodes.end() || node->checked == checked)
        return;
    node->checked = checked;
    const bool shown = node->checkable;
    // The widget reports the state just stored, which is no change.
    const Lifetime lifetime = GetLifetime();
    SetCheckImpl(item);
    if (shown && lifetime.Alive())
        itemCheckChanged.Emit(item, checked);
}

QList<int> CKyUITreeViewImpl::CheckedItems() const
{
    QList<int> checked;
    QList<int> pending = m_topLevel;
    std::reverse(pending.begin(), pending.end());
    while (!pending.isEmpty()) {
        const int item = pending.takeLast();
        const Node node = m_nodes.value(item);
        if (node.checkable && node.checked)
            checked.append(item);
        for (auto child = node.children.crbegin(); child != node.children.crend(); ++child)
            pending.append(*child);
    }
    return checked;
}

void CKyUITreeViewImpl::SetExpanded(int item, bool expanded)
{
    auto node = m_nodes.find(item);
    if (node == m_nodes.end())
        return;
    node->expanded = expanded;
    SetExpandedImpl(item, expanded);
}

void CKyUITreeViewImpl::SetSortingEnabled(bool enabled)
{
    m_sortingEnabled = enabled;
    SetSortingImpl();
}

void CKyUITreeViewImpl::SortByColumn(int column, bool ascending)
{
    if (column < 0 || column >= ColumnCount())
        return;
    m_sortColumn = column;
    m_sortAscending = ascending;
    SetSortingImpl();
}

void CKyUITreeViewImpl::SetSelectionMode(CKyUITreeView::SelectionMode mode)
{
    if (mode != CKyUITreeView::SingleSelection && mode != CKyUITreeView::ExtendedSelection)
        return;
    m_selectionMode = mode;
    SetSelectionModeImpl(mode);
}

void CKyUITreeViewImpl::SetCurrentItem(int item)
{
    if ((item != CKyUITreeView::NoItem && !Contains(item)) || item == m_current)
        return;
    m_current = item;
    // Reported when the widget reports it, in the widget's order with the
    // selection's report.
    m_currentUnreported = true;
    const Lifetime lifetime = GetLifetime();
    SetCurrentItemImpl(item);
    if (lifetime.Alive() && m_currentUnreported) {
        m_currentUnreported = false;
        currentChanged.Emit(item);
    }
}

void CKyUITreeViewImpl::SetItemSelected(int item, bool selected)
{
    if (!Contains(item))
        return;
    QList<int> next = m_selected;
    next.removeAll(item);
    if (selected) {
        if (m_selectionMode == CKyUITreeView::SingleSelection)
            next.clear();
        next.insert(std::lower_bound(next.begin(), next.end(), item), item);
    }
    if (next == m_selected)
        return;
    m_selected = next;
    const Lifetime lifetime = GetLifetime();
    SetSelectionImpl();
    if (lifetime.Alive())
        selectionChanged.Emit();
}

void CKyUITreeViewImpl::SetColumnWidth(int column, int width)
{
    if (column < 0 || column >= ColumnCount() || width < 0)
        return;
    m_columnWidths[column] = width;
    SetColumnWidthImpl(column, width);
}

void CKyUITreeViewImpl::SetColumnWidths(const QList<int>& widths)
{
    for (int column = 0; column < widths.size(); ++column)
        SetColumnWidth(column, widths[column]);
}

void CKyUITreeViewImpl::OnCurrentShown(int item)
{
    if (item == m_current && !m_currentUnreported)
        return;
    m_currentUnreported = false;
    m_current = item;
    currentChanged.Emit(item);
}

void CKyUITreeViewImpl::OnItemActivated(int item)
{
    if (Contains(item))
        itemActivated.Emit(item);
}

void CKyUITreeViewImpl::OnCheckShown(int item, bool checked)
{
    auto node = m_nodes.find(item);
    if (node == m_nodes.end() || !node->checkable || node->checked == checked)
        return;
    node->checked = checked;
    itemCheckChanged.Emit(item, checked);
}

void CKyUITreeViewImpl::OnSelectionShown(QList<int> items)
{
    std::sort(items.begin(), items.end());
    if (items == m_selected)
        return;
    m_selected = items;
    selectionChanged.Emit();
}

void CKyUITreeViewImpl::OnExpandedShown(int item, bool expanded)
{
    auto node = m_nodes.find(item);
    if (node != m_nodes.end())
        node->expanded = expanded;
}

void CKyUITreeViewImpl::OnColumnResized(int column, int width)
{
    if (column >= 0 && column < ColumnCount())
        m_columnWidths[column] = width;
}

void CKyUITreeViewImpl::OnSortShown(int column, bool ascending)
{
    m_sortColumn = column;
    m_sortAscending = ascending;
}

QVariant CKyUITreeViewImpl::RememberedValue() const
{
    return KySettingsStore::IntListValue(ColumnWidths());
}

bool CKyUITreeViewImpl::RestoreRememberedValue(const QVariant& value)
{
    QList<int> widths;
    if (!KySettingsStore::ReadIntList(value, &widths, 0, 100000))
        return false;
    SetColumnWidths(widths);
    return true;
}
