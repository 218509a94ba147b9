#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtGui/QIcon>

/// Rows of text columns with parent and child items, icons, a check box per
/// item, sorting and selection; items are named by plain numbers that stay
/// valid until the item is removed.
///
/// addItem() returns the new item's number (never 0, never reused); 0
/// (NoItem) stands for "no item", and as a parent for the top level. Every
/// operation takes any number: one that names no item (never given, or
/// removed) does nothing, and its getters answer an empty value.
///
/// It follows its user: a click makes an item current and selects it, a click
/// on a check box checks it, a click on a column header sorts when sorting is
/// on, and a drag of a header's edge resizes the column; each is stored and
/// reported. Every signal is emitted once per real change, whether the user
/// or the program made it. The items are not editable in place.
///
/// The last column takes the width left over.
///
/// \code
/// auto* files = new CKyUITreeView;
/// files->setHeaderLabels({"Name", "Size"});
/// const int folder = files->addItem({"drawings"});
/// const int part = files->addItem({"bracket.dxf", "12 kB"}, folder);
/// files->setCheckable(part, true);
/// files->itemActivated().connect([files](int item) { open(files->text(item, 0)); });
/// \endcode
///
/// \image html choosers-and-trees.png "A tree of parameters with check boxes"
class COMMONUI_EXPORT CKyUITreeView : public CKyUIBaseView
{
public:
    /// How many items the user may select.
    enum SelectionMode {
        SingleSelection,  ///< one at a time (the default)
        ExtendedSelection ///< several, with Ctrl and Shift
    };
    /// The number that names no item; as a parent, the top level.
    static constexpr int NoItem = 0;

    /// An empty tree with one column and no header text, created with its
    /// widget.
    CKyUITreeView();
    ~CKyUITreeView() override;

    /// Sets the column titles; their number is the number of columns.
    void setHeaderLabels(const QStringList& labels);
    /// The titles last set.
    QStringList headerLabels() const;
    /// The number of columns: 1 until headers are set.
    int columnCount() const;

    /// Adds an item with one text per column at the end of @p parent's
    /// children and returns its number; 0 when @p parent names no item.
    int addItem(const QStringList& texts, int parent = NoItem);
    /// Removes the item and everything under it.
    void removeItem(int item);
    /// Removes every item.
    void clear();
    /// Whether @p item names an item.
    bool contains(int item) const;
    /// The number of items at every level.
    int count() const;
    /// The item's parent; NoItem for a top-level item.
    int parentItem(int item) const;
    /// The children of @p item (the top-level items for NoItem), in the order
    /// they were added, whatever the sorting on screen.
    QList<int> childItems(int item = NoItem) const;

    /// Sets the text in one column.
    void setText(int item, int column, const QString& text);
    /// The text in one column; empty outside the columns.
    QString text(int item, int column) const;
    /// Sets the icon in one column.
    void setIcon(int item, int column, const QIcon& icon);
    /// The icon in one column; a null icon unless set.
    QIcon icon(int item, int column) const;
    /// Keeps any value with the item, for the program's own use.
    void setItemData(int item, const QVariant& data);
    /// The value kept; invalid unless set.
    QVariant itemData(int item) const;

    /// Gives the item a check box (true) or takes it away (false).
    void setCheckable(int item, bool checkable);
    /// Whether the item has a check box.
    bool isCheckable(int item) const;
    /// Checks or unchecks the item's box; emits itemCheckChanged if that
    /// changes it. Stored as well for an item without a box, which shows it
    /// once given one.
    void setChecked(int item, bool checked);
    /// Whether the item is checked.
    bool isChecked(int item) const;
    /// The checked items that have a box, in the order they were added.
    QList<int> checkedItems() const;
    /// Shows (true) or hides the item's children.
    void setExpanded(int item, bool expanded);
    /// Whether the item's children are shown.
    bool isExpanded(int item) const;

    /// Sorts the items and lets a click on a header sort by its column.
    void setSortingEnabled(bool enabled);
    /// Whether sorting is on; off unless set.
    bool isSortingEnabled() const;
    /// Which column sorts, and which way; takes effect while sorting is on.
    void sortByColumn(int column, bool ascending = true);
    /// The column that sorts: 0 unless set or clicked.
    int sortColumn() const;
    /// Whether the sorting is ascending: true unless set or clicked.
    bool sortAscending() const;

    /// Sets how many items the user may select.
    void setSelectionMode(SelectionMode mode);
    /// The selection mode; SingleSelection unless set.
    SelectionMode selectionMode() const;
    /// The current item (the one with the focus frame); NoItem when none.
    int currentItem() const;
    /// Makes the item current (NoItem: none); emits currentChanged if that
    /// changes it. In SingleSelection it is selected too.
    void setCurrentItem(int item);
    /// Selects or deselects the item; in SingleSelection selecting one
    /// deselects the other. Emits selectionChanged if that changes the
    /// selection.
    void setItemSelected(int item, bool selected);
    /// Whether the item is selected.
    bool isItemSelected(int item) const;
    /// The selected items, in ascending order of their numbers.
    QList<int> selectedItems() const;

    /// The column's width in pixels, as last set or dragged; 0 outside the
    /// columns.
    int columnWidth(int column) const;
    /// Sets the column's width; ignored outside the columns and for a
    /// negative width.
    void setColumnWidth(int column, int width);
    /// Every column's width, for keeping and restoring.
    QList<int> columnWidths() const;
    /// Sets the widths of the first columns, one per value given.
    void setColumnWidths(const QList<int>& widths);

    /// Emitted with the new current item (NoItem when none) whenever it changes.
    CKyUISignal<void(int)>& currentChanged();
    /// Emitted with the item the user double-clicked or pressed Return on.
    CKyUISignal<void(int)>& itemActivated();
    /// Emitted with the item and its new state whenever its box is checked or
    /// unchecked.
    CKyUISignal<void(int, bool)>& itemCheckChanged();
    /// Emitted whenever the set of selected items changes.
    CKyUISignal<void()>& selectionChanged();
};
