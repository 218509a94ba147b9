#include "UI/CKyUIComboBox.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>
#include <QtGui/QPixmap>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>

namespace
{
QComboBox* WidgetOf(const CKyUIComboBox& box)
{
    return qobject_cast<QComboBox*>(box.getHandle());
}

QIcon RedIcon()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

void Record(CKyUIComboBox& box, Recorder& log)
{
    log.on(box.activated(), "activated").on(box.currentIndexChanged(), "index");
    log.on(box.currentStringChanged(), "string").on(box.editTextChanged(), "edit");
    log.on(box.editingFinished(), "finished");
}
} // namespace

TEST(CKyUIComboBoxTest, NewBoxIsEmptyNotEditableAndFixedAtHundredByTwentyFive)
{
    CKyUIComboBox box;
    QComboBox* widget = WidgetOf(box);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->styleSheet(), "QComboBox { }");
    EXPECT_EQ(widget->minimumSize(), QSize(100, 25));
    EXPECT_EQ(widget->maximumSize(), QSize(100, 25));
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_FALSE(widget->isEditable());
    box.setEditable(true);
    EXPECT_TRUE(widget->isEditable());
}

TEST(CKyUIComboBoxTest, CurrentIndexEmitsIndexThenStringAndAlwaysSetsTheWidget)
{
    Recorder log;
    CKyUIComboBox box;
    Record(box, log);

    box.setCurrentIndex(0);
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_TRUE(log.lines.isEmpty());

    box.addItem(RedIcon(), "Millimetres", 1);
    box.addItem(RedIcon(), "Inches", 2);
    box.setCurrentIndex(1);
    EXPECT_EQ(log.take(), QStringList({"index:1", "string:Inches"}));
    EXPECT_EQ(box.currentIndex(), 1);
    EXPECT_EQ(box.currentText(), "Inches");
    EXPECT_EQ(WidgetOf(box)->currentIndex(), 1);

    WidgetOf(box)->setCurrentIndex(0);
    box.setCurrentIndex(1);
    EXPECT_TRUE(log.lines.isEmpty());
    EXPECT_EQ(WidgetOf(box)->currentIndex(), 1);

    box.setCurrentIndex(2);
    box.setCurrentIndex(-1);
    EXPECT_EQ(box.currentIndex(), 1);
    EXPECT_TRUE(log.lines.isEmpty());
}

TEST(CKyUIComboBoxTest, CurrentTextChangesTheTextOnly)
{
    Recorder log;
    CKyUIComboBox box;
    box.addItem(RedIcon(), "Millimetres");
    box.addItem(RedIcon(), "Inches");
    box.setCurrentIndex(0);
    Record(box, log);

    box.setCurrentText("Millimetres");
    EXPECT_TRUE(log.lines.isEmpty());
    box.setCurrentText("Inches");
    EXPECT_EQ(log.take(), QStringList({"string:Inches"}));
    EXPECT_EQ(box.currentText(), "Inches");
    EXPECT_EQ(box.currentIndex(), 0);

    box.setEditable(true);
    box.setCurrentText("Feet");
    EXPECT_EQ(WidgetOf(box)->currentText(), "Feet");
    EXPECT_EQ(log.take(), QStringList({"string:Feet"}));

    box.setEditText("Yards");
    EXPECT_EQ(box.currentText(), "Yards");
    EXPECT_EQ(WidgetOf(box)->currentText(), "Yards");
    box.clearEditText();
    EXPECT_TRUE(box.currentText().isEmpty());
    EXPECT_EQ(WidgetOf(box)->currentText(), "Yards");
    EXPECT_TRUE(log.lines.isEmpty());
}

TEST(CKyUIComboBoxTest, QueriesAnswerFromTheModelWhateverRoleOrFlags)
{
    CKyUIComboBox box;
    box.addItem(RedIcon(), "Inches", QVariant(25.4));
    box.addItem(RedIcon(), "inches", QVariant("lower"));

    EXPECT_EQ(box.findText("inches", Qt::MatchContains), 1);
    EXPECT_EQ(box.findText("INCHES", Qt::MatchFixedString), -1);
    EXPECT_EQ(box.findText("Inch", Qt::MatchStartsWith), -1);
    EXPECT_EQ(box.findData(QVariant("lower")), 1);
    EXPECT_EQ(box.findData(QVariant(25.4), Qt::DisplayRole), 0);
    EXPECT_EQ(box.findData(QVariant("Inches")), -1);

    EXPECT_EQ(box.itemData(0, Qt::DisplayRole), QVariant(25.4));
    EXPECT_EQ(box.itemText(1), "inches");
    // The user data never reaches the widget.
    EXPECT_FALSE(WidgetOf(box)->itemData(0, Qt::UserRole).isValid());

    box.setItemData(1, QVariant(3), Qt::DisplayRole);
    box.setItemData(2, QVariant(4));
    EXPECT_EQ(box.itemData(1), QVariant(3));
    EXPECT_EQ(box.count(), 2);

    box.setItemText(0, "Thou");
    EXPECT_EQ(box.itemText(0), "Inches");
    EXPECT_EQ(WidgetOf(box)->itemText(0), "Inches");
}

TEST(CKyUIComboBoxTest, ItemWithoutIconReachesTheModelOnly)
{
    CKyUIComboBox box;
    box.addItem(RedIcon(), "A");
    box.addItem("B", QVariant(2));
    EXPECT_EQ(box.count(), 2);
    EXPECT_EQ(WidgetOf(box)->count(), 1);
    EXPECT_EQ(box.findText("B"), 1);
    EXPECT_EQ(box.itemData(1), QVariant(2));

    box.insertItem(0, "Z");
    EXPECT_EQ(box.itemText(0), "Z");
    EXPECT_EQ(WidgetOf(box)->itemText(0), "Z");
    EXPECT_TRUE(WidgetOf(box)->itemIcon(0).isNull());
    box.insertItem(1, RedIcon(), "Y", QVariant(9));
    EXPECT_FALSE(WidgetOf(box)->itemIcon(1).isNull());
    EXPECT_EQ(box.itemData(1), QVariant(9));
}

TEST(CKyUIComboBoxTest, InsertItemsKeepListOrderAndRemovalKeepsTheCurrentItem)
{
    CKyUIComboBox box;
    box.addItem(RedIcon(), "0");
    box.addItem(RedIcon(), "1");
    box.addItem(RedIcon(), "5");
    box.insertItems(2, {"2", "3", "4"});
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts.append(box.itemText(i));
    EXPECT_EQ(texts, QStringList({"0", "1", "2", "3", "4", "5"}));
    EXPECT_EQ(WidgetOf(box)->itemText(4), "4");

    box.setCurrentIndex(5);
    box.removeItem(5);
    EXPECT_EQ(box.count(), 5);
    EXPECT_EQ(WidgetOf(box)->count(), 5);
    EXPECT_EQ(box.currentIndex(), 5);
    EXPECT_EQ(box.currentText(), "5");
    box.removeItem(7);
    EXPECT_EQ(box.count(), 5);

    box.clear();
    EXPECT_EQ(box.count(), 0);
    EXPECT_EQ(WidgetOf(box)->count(), 0);
    EXPECT_EQ(box.currentIndex(), 5);
    EXPECT_EQ(box.currentText(), "5");
}

TEST(CKyUIComboBoxTest, UsersChoiceInTheWidgetMovesNeitherModelNorSignals)
{
    Recorder log;
    CKyUIComboBox box;
    box.addItem(RedIcon(), "Millimetres");
    box.addItem(RedIcon(), "Inches");
    box.setCurrentIndex(0);
    Record(box, log);
    QComboBox* widget = WidgetOf(box);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));

    QTest::keyClick(widget, Qt::Key_Down);
    ASSERT_EQ(widget->currentIndex(), 1);
    EXPECT_EQ(box.currentIndex(), 0);
    EXPECT_EQ(box.currentText(), "Millimetres");
    EXPECT_TRUE(log.lines.isEmpty());
}

TEST(CKyUIComboBoxTest, BlockedSignalsStillMoveTheModel)
{
    Recorder log;
    CKyUIComboBox box;
    box.addItem(RedIcon(), "Millimetres");
    box.addItem(RedIcon(), "Inches");
    Record(box, log);

    box.blockSignals(true);
    box.setCurrentIndex(1);
    box.setCurrentText("Feet");
    EXPECT_EQ(box.currentIndex(), 1);
    EXPECT_EQ(box.currentText(), "Feet");
    EXPECT_EQ(WidgetOf(box)->currentIndex(), 1);
    EXPECT_TRUE(log.lines.isEmpty());

    box.blockSignals(false);
    box.setCurrentIndex(0);
    EXPECT_EQ(log.take(), QStringList({"index:0", "string:Millimetres"}));
}

// After a clear, indexes that were valid and ones that never were change
// nothing; insertions outside the list go to its nearest end, in the model
// and on screen alike.
TEST(CKyUIComboBoxTest, IndexesOutsideTheListAndInsertionsPastItsEnds)
{
    CKyUIComboBox combo;
    Recorder log;
    combo.addItem(QIcon(), "a", 1);
    combo.addItem(QIcon(), "b", 2);
    combo.setCurrentIndex(1);
    combo.clear();
    Record(combo, log);
    for (int index : {-1, 0, 1, 2, INT_MAX, INT_MIN}) {
        combo.removeItem(index);
        combo.setCurrentIndex(index);
        combo.setItemData(index, 5);
        combo.setItemText(index, "ignored");
        EXPECT_TRUE(combo.itemText(index).isEmpty());
        EXPECT_FALSE(combo.itemData(index).isValid());
    }
    EXPECT_TRUE(log.lines.isEmpty());
    EXPECT_EQ(combo.currentText(), "b");

    combo.insertItem(INT_MIN, "first");
    combo.insertItem(INT_MAX, QIcon(), "last");
    combo.insertItems(INT_MAX, {"x", "y"});
    combo.insertItems(-5, {"p", "q"});
    const QStringList expected{"p", "q", "first", "last", "x", "y"};
    QStringList model, screen;
    for (int i = 0; i < combo.count(); ++i)
        model << combo.itemText(i);
    for (int i = 0; i < WidgetOf(combo)->count(); ++i)
        screen << WidgetOf(combo)->itemText(i);
    EXPECT_EQ(model, expected);
    EXPECT_EQ(screen, expected);
}
