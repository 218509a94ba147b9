#include "UI/Impl/CKyUITreeViewImpl.h"

#include "UI/Impl/qt/KyControlSheet.h"

#include <QtCore/QItemSelection>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeWidget>

namespace
{
// Where a widget item keeps its number.
constexpr int kItemRole = Qt::UserRole + 1;

QTreeWidget* TreeOf(const CKyUIObject* owner)
{
    return qobject_cast<QTreeWidget*>(owner->getHandle());
}

int NumberOf(const QTreeWidgetItem* item)
{
    return item ? item->data(0, kItemRole).toInt() : CKyUITreeView::NoItem;
}

// The model index of a widget item, from the public rows of its ancestors.
QModelIndex IndexOf(const QTreeWidget* tree, QTreeWidgetItem* item)
{
    if (!item)
        return QModelIndex();
    QTreeWidgetItem* parent = item->parent();
    const int row = parent ? parent->indexOfChild(item) : tree->indexOfTopLevelItem(item);
    return tree->model()->index(row, 0, IndexOf(tree, parent));
}
} // namespace

CKyUITreeViewImpl::~CKyUITreeViewImpl()
{
    // The widget outlives this object until its deferred deletion.
    for (const QMetaObject::Connection& connection : m_connections)
        QObject::disconnect(connection);
}

void CKyUITreeViewImpl::CreateFrontendControl()
{
    auto* tree = new QTreeWidget(nullptr);
    KyControlSheet::Apply(tree, QStringLiteral("treeview"));
    tree->setColumnCount(1);
    tree->setHeaderLabels(QStringList(QString()));
    tree->setUniformRowHeights(true);
    tree->setAllColumnsShowFocus(true);
    owner()->setHandle(tree);
    m_columnWidths[0] = tree->columnWidth(0);

    QHeaderView* header = tree->header();
    m_connections = {
        QObject::connect(tree, &QTreeWidget::currentItemChanged,
                         [this](QTreeWidgetItem* current) { OnCurrentShown(NumberOf(current)); }),
        QObject::connect(tree, &QTreeWidget::itemActivated,
                         [this](QTreeWidgetItem* item) { OnItemActivated(NumberOf(item)); }),
        QObject::connect(tree, &QTreeWidget::itemChanged,
                         [this](QTreeWidgetItem* item, int column) {
                             if (column == 0)
                                 OnCheckShown(NumberOf(item), item->checkState(0) == Qt::Checked);
                         }),
        QObject::connect(tree, &QTreeWidget::itemSelectionChanged,
                         [this, tree]() {
                             QList<int> items;
                             for (const QTreeWidgetItem* item : tree->selectedItems())
                                 items.append(NumberOf(item));
                             OnSelectionShown(items);
                         }),
        QObject::connect(tree, &QTreeWidget::itemExpanded,
                         [this](QTreeWidgetItem* item) { OnExpandedShown(NumberOf(item), true); }),
        QObject::connect(tree, &QTreeWidget::itemCollapsed,
                         [this](QTreeWidgetItem* item) { OnExpandedShown(NumberOf(item), false); }),
        QObject::connect(header, &QHeaderView::sectionResized,
                         [this](int column, int, int width) { OnColumnResized(column, width); }),
        QObject::connect(
            header, &QHeaderView::sortIndicatorChanged,
            [this](int column, Qt::SortOrder order) { OnSortShown(column, order == Qt::AscendingOrder); }),
    };
}

void CKyUITreeViewImpl::SetHeaderLabelsImpl(const QStringList& labels)
{
    QTreeWidget* tree = TreeOf(owner());
    if (!tree)
        return;
    tree->setColumnCount(ColumnCount());
    tree->setHeaderLabels(labels.isEmpty() ? QStringList(QString()) : labels);
    // New columns start at the toolkit's width.
    for (int column = 0; column < ColumnCount(); ++column)
        OnColumnResized(column, tree->columnWidth(column));
}

void CKyUITreeViewImpl::AddItemImpl(int item)
{
    QTreeWidget* tree = TreeOf(owner());
    if (!tree)
        return;
    const int parent = ParentItem(item);
    QTreeWidgetItem* parentItem = m_widgetItems.value(parent);
    if (parent != CKyUITreeView::NoItem && !parentItem)
        return;
    auto* shown = new QTreeWidgetItem(m_nodes.value(item).texts);
    shown->setData(0, kItemRole, item);
    shown->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    m_widgetItems.insert(item, shown);
    if (parentItem)
        parentItem->addChild(shown);
    else
        tree->addTopLevelItem(shown);
}

void CKyUITreeViewImpl::RemoveItemImpl(int item, const QList<int>& removed)
{
    QTreeWidgetItem* shown = m_widgetItems.value(item);
    for (int each : removed)
        m_widgetItems.remove(each);
    // Last: the reports it causes may delete this object.
    delete shown;
}

void CKyUITreeViewImpl::ClearImpl()
{
    m_widgetItems.clear();
    if (QTreeWidget* tree = TreeOf(owner()))
        tree->clear();
}

void CKyUITreeViewImpl::SetTextImpl(int item, int column, const QString& text)
{
    if (QTreeWidgetItem* shown = m_widgetItems.value(item))
        shown->setText(column, text);
}

void CKyUITreeViewImpl::SetIconImpl(int item, int column, const QIcon& icon)
{
    if (QTreeWidgetItem* shown = m_widgetItems.value(item))
        shown->setIcon(column, icon);
}

void CKyUITreeViewImpl::SetCheckImpl(int item)
{
    QTreeWidgetItem* shown = m_widgetItems.value(item);
    QTreeWidget* tree = TreeOf(owner());
    if (!shown || !tree)
        return;
    // Each step below reports a change of the item, in a state half made.
    const QSignalBlocker quiet(tree);
    if (!IsCheckable(item)) {
        shown->setFlags(shown->flags() & ~Qt::ItemIsUserCheckable);
        shown->setData(0, Qt::CheckStateRole, QVariant());
        return;
    }
    shown->setFlags(shown->flags() | Qt::ItemIsUserCheckable);
    shown->setCheckState(0, IsChecked(item) ? Qt::Checked : Qt::Unchecked);
}

void CKyUITreeViewImpl::SetExpandedImpl(int item, bool expanded)
{
    if (QTreeWidgetItem* shown = m_widgetItems.value(item))
        shown->setExpanded(expanded);
}

void CKyUITreeViewImpl::SetSortingImpl()
{
    QTreeWidget* tree = TreeOf(owner());
    if (!tree)
        return;
    // The indicator first: switching sorting on sorts by it.
    tree->header()->setSortIndicator(m_sortColumn,
                                     m_sortAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
    tree->setSortingEnabled(m_sortingEnabled);
}

void CKyUITreeViewImpl::SetSelectionModeImpl(CKyUITreeView::SelectionMode mode)
{
    if (QTreeWidget* tree = TreeOf(owner()))
        tree->setSelectionMode(mode == CKyUITreeView::ExtendedSelection ? QAbstractItemView::ExtendedSelection
                                                                        : QAbstractItemView::SingleSelection);
}

void CKyUITreeViewImpl::SetCurrentItemImpl(int item)
{
    if (QTreeWidget* tree = TreeOf(owner()))
        tree->setCurrentItem(m_widgetItems.value(item));
}

void CKyUITreeViewImpl::SetSelectionImpl()
{
    QTreeWidget* tree = TreeOf(owner());
    if (!tree || !tree->selectionModel())
        return;
    // In one step, so that the widget reports only the final selection.
    QItemSelection selection;
    for (int item : qAsConst(m_selected)) {
        if (QTreeWidgetItem* shown = m_widgetItems.value(item)) {
            const QModelIndex index = IndexOf(tree, shown);
            selection.select(index, index);
        }
    }
    tree->selectionModel()->select(selection,
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void CKyUITreeViewImpl::SetColumnWidthImpl(int column, int width)
{
    if (QTreeWidget* tree = TreeOf(owner()))
        tree->setColumnWidth(column, width);
}
