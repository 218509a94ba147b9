#pragma once

#include "UI/CKyUISignal.h"
#include "UI/CKyUITreeView.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QHash>
#include <QtCore/QMetaObject>
#include <QtCore/QVector>

class QTreeWidgetItem;

// The tree's items, kept here by number; the widget shows them and reports
// what its user does, which is stored before it is reported.
class CKyUITreeViewImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUITreeViewImpl(CKyUIObject* owner);
    ~CKyUITreeViewImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetHeaderLabels(const QStringList& labels);
    const QStringList& HeaderLabels() const { return m_headerLabels; }
    int ColumnCount() const { return m_columnWidths.size(); }
    int AddItem(const QStringList& texts, int parent);
    void RemoveItem(int item);
    void Clear();
    bool Contains(int item) const { return m_nodes.contains(item); }
    int Count() const { return m_nodes.size(); }
    int ParentItem(int item) const { return m_nodes.value(item).parent; }
    QList<int> ChildItems(int item) const;
    void SetText(int item, int column, const QString& text);
    QString Text(int item, int column) const { return m_nodes.value(item).texts.value(column); }
    void SetIcon(int item, int column, const QIcon& icon);
    QIcon Icon(int item, int column) const { return m_nodes.value(item).icons.value(column); }
    void SetItemData(int item, const QVariant& data);
    QVariant ItemData(int item) const { return m_nodes.value(item).data; }
    void SetCheckable(int item, bool checkable);
    bool IsCheckable(int item) const { return m_nodes.value(item).checkable; }
    void SetChecked(int item, bool checked);
    bool IsChecked(int item) const { return m_nodes.value(item).checked; }
    QList<int> CheckedItems() const;
    void SetExpanded(int item, bool expanded);
    bool IsExpanded(int item) const { return m_nodes.value(item).expanded; }
    void SetSortingEnabled(bool enabled);
    bool IsSortingEnabled() const { return m_sortingEnabled; }
    void SortByColumn(int column, bool ascending);
    int SortColumn() const { return m_sortColumn; }
    bool SortAscending() const { return m_sortAscending; }
    void SetSelectionMode(CKyUITreeView::SelectionMode mode);
    CKyUITreeView::SelectionMode GetSelectionMode() const { return m_selectionMode; }
    int CurrentItem() const { return m_current; }
    void SetCurrentItem(int item);
    void SetItemSelected(int item, bool selected);
    bool IsItemSelected(int item) const { return m_selected.contains(item); }
    QList<int> SelectedItems() const { return m_selected; }
    int ColumnWidth(int column) const { return m_columnWidths.value(column); }
    void SetColumnWidth(int column, int width);
    QList<int> ColumnWidths() const { return m_columnWidths.toList(); }
    void SetColumnWidths(const QList<int>& widths);
    // A tree keeps the widths of its columns.
    QVariant RememberedValue() const override;
    bool RestoreRememberedValue(const QVariant& value) override;

    // What the widget reports.
    void OnCurrentShown(int item);
    void OnItemActivated(int item);
    void OnCheckShown(int item, bool checked);
    void OnSelectionShown(QList<int> items);
    void OnExpandedShown(int item, bool expanded);
    void OnColumnResized(int column, int width);
    void OnSortShown(int column, bool ascending);

    // Toolkit steps; each does nothing unless the handle is a QTreeWidget.
    void SetHeaderLabelsImpl(const QStringList& labels);
    void AddItemImpl(int item);
    // Deletes the widget's items of the numbers given (an item and those
    // under it); reports from the widget may come meanwhile.
    void RemoveItemImpl(int item, const QList<int>& removed);
    void ClearImpl();
    void SetTextImpl(int item, int column, const QString& text);
    void SetIconImpl(int item, int column, const QIcon& icon);
    void SetCheckImpl(int item);
    void SetExpandedImpl(int item, bool expanded);
    void SetSortingImpl();
    void SetSelectionModeImpl(CKyUITreeView::SelectionMode mode);
    void SetCurrentItemImpl(int item);
    void SetSelectionImpl();
    void SetColumnWidthImpl(int column, int width);

    CKyUISignal<void(int)> currentChanged;
    CKyUISignal<void(int)> itemActivated;
    CKyUISignal<void(int, bool)> itemCheckChanged;
    CKyUISignal<void()> selectionChanged;

private:
    struct Node
    {
        int parent = CKyUITreeView::NoItem;
        QList<int> children;
        QStringList texts;
        QHash<int, QIcon> icons;
        QVariant data;
        bool checkable = false;
        bool checked = false;
        bool expanded = false;
    };

    // The item and every item under it, parents first.
    QList<int> Subtree(int item) const;
    // After a removal: drops numbers that name no item any more from the
    // current item and the selection, reporting what the widget did not.
    void ForgetRemoved();

    QHash<int, Node> m_nodes;
    QList<int> m_topLevel;
    int m_nextItem = 1;
    QStringList m_headerLabels;
    QVector<int> m_columnWidths = QVector<int>(1, 0);
    bool m_sortingEnabled = false;
    int m_sortColumn = 0;
    bool m_sortAscending = true;
    CKyUITreeView::SelectionMode m_selectionMode = CKyUITreeView::SingleSelection;
    int m_current = CKyUITreeView::NoItem;
    QList<int> m_selected; // ascending
    bool m_currentUnreported = false;

    // The widget's items by number; kept by the toolkit steps.
    QHash<int, QTreeWidgetItem*> m_widgetItems;
    std::vector<QMetaObject::Connection> m_connections;
};
