#include "UI/CKyUITreeView.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeWidget>

namespace
{
QTreeWidget* TreeOf(const CKyUITreeView& tree)
{
    return qobject_cast<QTreeWidget*>(tree.getHandle());
}

// A shown tree of two folders with files, every signal recorded.
struct Files
{
    Files()
    {
        tree.setHeaderLabels({"Name", "Size"});
        drawings = tree.addItem({"drawings"});
        bracket = tree.addItem({"bracket.dxf", "12"}, drawings);
        plate = tree.addItem({"plate.dxf", "30"}, drawings);
        notes = tree.addItem({"notes.txt", "2"});
        tree.setCheckable(plate, true);
        tree.setExpanded(drawings, true);
        recorder.on(tree.currentChanged(), "current")
            .on(tree.itemActivated(), "activated")
            .on(tree.itemCheckChanged(), "checked")
            .on(tree.selectionChanged(), "selection");
        widget()->resize(300, 200);
        widget()->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(widget()));
        recorder.take(); // the focus may have made the first item current
    }
    QTreeWidget* widget() const { return TreeOf(tree); }
    QWidget* viewport() const { return widget()->viewport(); }
    // The row of an item on the viewport.
    QRect row(int item) const
    {
        const auto found = widget()->findItems(tree.text(item, 0), Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QRect() : widget()->visualItemRect(found.first());
    }
    QPoint at(int item) const { return row(item).center(); }

    CKyUITreeView tree;
    int drawings, bracket, plate, notes;
    Recorder recorder;
};
} // namespace

// Numbers, parents and children as added; numbers that name no item (never
// given, removed) are ignored by every operation and answer empty values.
TEST(CKyUITreeViewTest, ItemsAreNamedByNumbersThatNeverCrash)
{
    Files files;
    CKyUITreeView& tree = files.tree;
    EXPECT_EQ(tree.columnCount(), 2);
    EXPECT_EQ(tree.count(), 4);
    EXPECT_EQ(tree.childItems(), QList<int>({files.drawings, files.notes}));
    EXPECT_EQ(tree.childItems(files.drawings), QList<int>({files.bracket, files.plate}));
    EXPECT_EQ(tree.parentItem(files.plate), files.drawings);
    EXPECT_EQ(tree.text(files.bracket, 1), "12");
    EXPECT_EQ(files.widget()->topLevelItem(0)->child(1)->text(0), "plate.dxf");

    tree.setCurrentItem(files.plate);
    files.recorder.take();
    tree.removeItem(files.drawings);
    EXPECT_EQ(files.recorder.count("current"), 1);
    EXPECT_EQ(files.recorder.last("current"), QString::number(tree.currentItem()));
    files.recorder.take();
    EXPECT_EQ(tree.count(), 1);
    EXPECT_EQ(files.widget()->topLevelItemCount(), 1);
    for (int bogus : {CKyUITreeView::NoItem, -5, 999, files.drawings, files.plate}) {
        tree.setText(bogus, 0, "x");
        tree.setIcon(bogus, 0, QIcon());
        tree.setItemData(bogus, 1);
        tree.setCheckable(bogus, true);
        tree.setChecked(bogus, true);
        tree.setExpanded(bogus, true);
        tree.setItemSelected(bogus, true);
        tree.removeItem(bogus);
        EXPECT_EQ(tree.addItem({"orphan"}, bogus == CKyUITreeView::NoItem ? -1 : bogus),
                  CKyUITreeView::NoItem);
        EXPECT_FALSE(tree.contains(bogus));
        EXPECT_EQ(tree.text(bogus, 0), "");
        EXPECT_FALSE(tree.itemData(bogus).isValid());
        EXPECT_FALSE(tree.isChecked(bogus));
    }
    for (int column : {-1, 2, 50}) {
        tree.setColumnWidth(column, 80);
        EXPECT_EQ(tree.columnWidth(column), 0);
    }
    EXPECT_EQ(tree.text(files.notes, 7), "");
    EXPECT_EQ(tree.count(), 1);
    EXPECT_EQ(files.recorder.lines.join(" "), "");
}

// Clicks, a click on a box, a double click and Return reach the stored state
// and the signals once per real change.
TEST(CKyUITreeViewTest, TheUsersClicksAndKeysAreStoredAndReportedOnce)
{
    Files files;
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, files.at(files.bracket));
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, files.at(files.bracket));
    EXPECT_EQ(files.recorder.take().join(" "), QString("current:%1 selection").arg(files.bracket));
    EXPECT_EQ(files.tree.currentItem(), files.bracket);
    EXPECT_EQ(files.tree.selectedItems(), QList<int>({files.bracket}));

    // The box sits at the left of the first cell, after the indentation.
    const QRect plate = files.row(files.plate);
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, QPoint(plate.left() + 10, plate.center().y()));
    EXPECT_TRUE(files.recorder.has(QString("checked:%1,true").arg(files.plate)));
    EXPECT_EQ(files.tree.checkedItems(), QList<int>({files.plate}));
    files.recorder.take();
    files.tree.setChecked(files.plate, true);
    files.tree.setChecked(files.plate, false);
    EXPECT_EQ(files.recorder.take().join(" "), QString("checked:%1,false").arg(files.plate));

    files.tree.setCurrentItem(files.notes); // in the toolkit's order
    EXPECT_EQ(files.recorder.take().join(" "), QString("selection current:%1").arg(files.notes));
    // A double click is a click, then the toolkit's double-click event.
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, files.at(files.notes));
    QTest::mouseDClick(files.viewport(), Qt::LeftButton, {}, files.at(files.notes));
    QTest::keyClick(files.widget(), Qt::Key_Return);
    EXPECT_EQ(files.recorder.take().join(" "), QString("activated:%1 activated:%1").arg(files.notes));
}

// Sorting changes the order on screen only; extended selection takes Ctrl.
TEST(CKyUITreeViewTest, SortingAndExtendedSelection)
{
    Files files;
    files.tree.setSortingEnabled(true);
    files.tree.sortByColumn(0, false);
    EXPECT_EQ(files.widget()->topLevelItem(0)->text(0), "notes.txt");
    EXPECT_EQ(files.tree.childItems(), QList<int>({files.drawings, files.notes}));
    EXPECT_EQ(files.tree.sortColumn(), 0);
    EXPECT_FALSE(files.tree.sortAscending());

    files.tree.setSelectionMode(CKyUITreeView::ExtendedSelection);
    QTest::mouseClick(files.viewport(), Qt::LeftButton, {}, files.at(files.notes));
    QTest::mouseClick(files.viewport(), Qt::LeftButton, Qt::ControlModifier, files.at(files.bracket));
    EXPECT_EQ(files.tree.selectedItems(), QList<int>({files.bracket, files.notes}));
    files.tree.setItemSelected(files.notes, false);
    EXPECT_EQ(files.tree.selectedItems(), QList<int>({files.bracket}));
    EXPECT_EQ(files.widget()->selectedItems().size(), 1);
    EXPECT_EQ(files.recorder.count("selection"), 3);
}

// Removing the current item reports the item that takes its place, or none;
// a slot may delete the tree while the removal reports.
TEST(CKyUITreeViewTest, RemovingTheCurrentItemReportsTheNewOneAndMayDeleteTheTree)
{
    Files files;
    files.tree.setCurrentItem(files.notes);
    files.recorder.take();
    files.tree.clear();
    EXPECT_EQ(files.recorder.count("current"), 1);
    EXPECT_EQ(files.recorder.last("current"), "0");
    EXPECT_EQ(files.tree.currentItem(), CKyUITreeView::NoItem);
    EXPECT_TRUE(files.tree.selectedItems().isEmpty());

    auto* tree = new CKyUITreeView;
    const int first = tree->addItem({"first"});
    tree->addItem({"second"});
    tree->setCurrentItem(first);
    tree->currentChanged().connect([tree](int) { delete tree; });
    tree->removeItem(first);
    SUCCEED();
}

// Widths are stored, given to the header, and follow a drag of the header.
TEST(CKyUITreeViewTest, ColumnWidthsCanBeKeptAndRestored)
{
    Files files;
    files.tree.setColumnWidths({150, 60, 70});
    EXPECT_EQ(files.tree.columnWidth(0), 150);
    EXPECT_EQ(files.widget()->columnWidth(0), 150);
    files.widget()->header()->resizeSection(0, 120); // as a drag ends
    EXPECT_EQ(files.tree.columnWidths().value(0), 120);
    EXPECT_EQ(files.tree.columnWidths().size(), 2);
}
