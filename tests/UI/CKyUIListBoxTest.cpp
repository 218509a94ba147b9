#include "UI/CKyUIListBox.h"
#include "UI/Impl/CKyUIListBoxImpl.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtWidgets/QListWidget>

#include <climits>

namespace
{
struct CKyUIListBoxTest : ::testing::Test
{
    void SetUp() override
    {
        for (const char* text : {"alpha", "beta", "Alpha", "beta", "gamma"})
            list.addItem(text);
        emitted.on(list.valueChanged(), "value");
    }
    CKyUIListBoxImpl* Impl() { return static_cast<CKyUIListBoxImpl*>(list.impl()); }

    CKyUIListBox list;
    Recorder emitted;
};
} // namespace

// The model is kept, the widget stays empty; values and flags are taken only
// in range. Nothing here is announced.
TEST_F(CKyUIListBoxTest, ModelIsKeptAndTheWidgetStaysEmpty)
{
    auto* widget = qobject_cast<QListWidget*>(list.getHandle());
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->styleSheet(), "QListWidget { }");
    EXPECT_EQ(widget->count(), 0);
    EXPECT_EQ(list.impl()->GetFrontendClassName(), "QListWidget");
    EXPECT_EQ(list.count(), 5);
    EXPECT_EQ(list.item(2), "Alpha");
    EXPECT_EQ(list.row("beta"), 1);
    EXPECT_EQ(list.row("Alpha"), 2);
    EXPECT_EQ(list.row("ALPHA"), -1);
    EXPECT_EQ(list.row(""), -1);
    EXPECT_EQ(Impl()->ItemDefs().size(), 5);
    EXPECT_FALSE(list.itemData(0).isValid());

    list.setItemData(4, 42);
    list.setItemData(5, 7);
    list.setItemData(-1, 7);
    EXPECT_EQ(list.itemData(4), QVariant(42));
    EXPECT_FALSE(list.itemData(5).isValid());
    EXPECT_FALSE(list.itemData(-1).isValid());
    list.setItemSelected(5, true);
    list.setItemSelected(-1, true);
    list.setItemSelected(1, true);
    EXPECT_FALSE(list.isItemSelected(5));
    EXPECT_EQ(QList<bool>({list.isItemSelected(0), list.isItemSelected(1), list.isItemSelected(4)}),
              QList<bool>({false, true, false}));

    // Selection queries and edits that do nothing.
    list.setItemSelected(3, true);
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_TRUE(list.selectedItems().isEmpty());
    list.clearSelection();
    EXPECT_TRUE(list.isItemSelected(3));
    list.setItemText(0, "changed");
    EXPECT_EQ(list.item(0), "alpha");
    // The reference is the stored text itself.
    list.item(0) = "renamed";
    EXPECT_EQ(list.row("renamed"), 0);
    EXPECT_TRUE(emitted.lines.isEmpty());
}

// Clearing keeps the capacity; rows that were valid before, and rows that
// never were, change nothing afterwards.
TEST_F(CKyUIListBoxTest, ClearKeepsCapacityAndRowsOutsideTheListChangeNothing)
{
    list.setItemData(0, "x");
    const int capacity = Impl()->ItemDefs().capacity();
    list.clear();
    EXPECT_EQ(Impl()->ItemDefs().capacity(), capacity);
    EXPECT_EQ(list.currentRow(), 0);
    for (int row : {-1, 0, 1, 5, INT_MAX, INT_MIN}) {
        SCOPED_TRACE(row);
        list.setItemData(row, 5);
        list.setItemSelected(row, true);
        list.setItemText(row, "ignored");
        // A scratch string stands for a missing row; writing to it changes no item.
        list.item(row) = "scribble";
        EXPECT_TRUE(list.item(row).isEmpty());
        EXPECT_FALSE(list.itemData(row).isValid());
        EXPECT_FALSE(list.isItemSelected(row));
    }
    EXPECT_EQ(list.count(), 0);
    EXPECT_TRUE(Impl()->ItemDefs().isEmpty());

    list.addItem("fresh");
    EXPECT_FALSE(list.itemData(0).isValid());
    EXPECT_FALSE(list.isItemSelected(0));
    EXPECT_TRUE(emitted.lines.isEmpty());
}

// Out of range changes nothing, but the state is still reported.
TEST_F(CKyUIListBoxTest, ItemSelectedReactionTellsWhetherAnyIsSelected)
{
    Impl()->OnItemSelected(3, true);
    Impl()->OnItemSelected(1, true);
    Impl()->OnItemSelected(3, false);
    Impl()->OnItemSelected(1, false);
    Impl()->OnItemSelected(9, true);
    EXPECT_EQ(emitted.lines, QStringList({"value:1", "value:1", "value:1", "value:0", "value:0"}));
    EXPECT_FALSE(list.isItemSelected(1));
    list.blockSignals(true);
    Impl()->OnItemSelected(0, true);
    EXPECT_EQ(emitted.lines.size(), 5);
    EXPECT_TRUE(list.isItemSelected(0));
}
