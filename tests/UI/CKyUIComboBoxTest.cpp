#include "UI/CKyUIComboBox.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>
#include <QtGui/QPixmap>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>

namespace
{
QIcon RedIcon()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

void AddUnits(CKyUIComboBox& box)
{
    box.addItem(RedIcon(), "Millimetres", 1);
    box.addItem(RedIcon(), "Inches", 2);
}

void Record(CKyUIComboBox& box, Recorder& log)
{
    log.on(box.activated(), "activated").on(box.currentIndexChanged(), "index");
    log.on(box.currentStringChanged(), "string").on(box.editTextChanged(), "edit");
    log.on(box.editingFinished(), "finished");
}

// The model's index and text, then the index the widget shows.
QString Current(const CKyUIComboBox& box)
{
    return QString("%1 %2 | %3")
        .arg(box.currentIndex())
        .arg(box.currentText())
        .arg(HandleAs<QComboBox>(box)->currentIndex());
}

// The model's item texts, then the widget's.
QStringList Texts(const CKyUIComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts << box.itemText(i);
    texts << "|";
    for (int i = 0; i < HandleAs<QComboBox>(box)->count(); ++i)
        texts << HandleAs<QComboBox>(box)->itemText(i);
    return texts;
}
} // namespace

TEST(CKyUIComboBoxTest, CurrentIndexEmitsIndexThenStringAndAlwaysSetsTheWidget)
{
    Recorder log;
    CKyUIComboBox box;
    Record(box, log);
    QComboBox* widget = HandleAs<QComboBox>(box);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->styleSheet(), "QComboBox { }");
    EXPECT_EQ(widget->minimumSize(), QSize(100, 25));
    EXPECT_EQ(widget->maximumSize(), QSize(100, 25));
    EXPECT_FALSE(widget->isEditable());

    box.setCurrentIndex(0);
    EXPECT_EQ(box.currentIndex(), -1);
    AddUnits(box);
    box.setCurrentIndex(1);
    EXPECT_EQ(log.take(), QStringList({"index:1", "string:Inches"}));
    EXPECT_EQ(Current(box), "1 Inches | 1");

    // Unchanged or out of range: silent, but an unchanged index still reaches the widget.
    widget->setCurrentIndex(0);
    box.setCurrentIndex(1);
    box.setCurrentIndex(2);
    box.setCurrentIndex(-1);
    EXPECT_EQ(Current(box), "1 Inches | 1");

    // Blocked signals still move the model and the widget.
    box.blockSignals(true);
    box.setCurrentIndex(0);
    box.setCurrentText("Feet");
    EXPECT_EQ(Current(box), "0 Feet | 0");
    box.blockSignals(false);
    box.setCurrentIndex(1);
    // Nothing since the first change but this one.
    EXPECT_EQ(log.take(), QStringList({"index:1", "string:Inches"}));

    // The user's choice on screen moves neither the model nor the signals.
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
    QTest::keyClick(widget, Qt::Key_Up);
    EXPECT_EQ(Current(box), "1 Inches | 0");
    EXPECT_TRUE(log.lines.isEmpty());

    box.setEditable(true);
    EXPECT_TRUE(widget->isEditable());
}

TEST(CKyUIComboBoxTest, CurrentTextChangesTheTextOnly)
{
    Recorder log;
    CKyUIComboBox box;
    AddUnits(box);
    box.setCurrentIndex(0);
    Record(box, log);

    box.setCurrentText("Millimetres");
    box.setCurrentText("Inches");
    EXPECT_EQ(log.take(), QStringList({"string:Inches"}));
    EXPECT_EQ(Current(box), "0 Inches | 0");

    box.setEditable(true);
    box.setCurrentText("Feet");
    EXPECT_EQ(HandleAs<QComboBox>(box)->currentText(), "Feet");
    EXPECT_EQ(log.take(), QStringList({"string:Feet"}));

    box.setEditText("Yards");
    EXPECT_EQ(box.currentText(), "Yards");
    EXPECT_EQ(HandleAs<QComboBox>(box)->currentText(), "Yards");
    box.clearEditText();
    EXPECT_TRUE(box.currentText().isEmpty());
    EXPECT_EQ(HandleAs<QComboBox>(box)->currentText(), "Yards");
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
    // The user data never reaches the widget.
    EXPECT_FALSE(HandleAs<QComboBox>(box)->itemData(0, Qt::UserRole).isValid());

    box.setItemData(1, QVariant(3), Qt::DisplayRole);
    box.setItemData(2, QVariant(4));
    EXPECT_EQ(box.itemData(1), QVariant(3));
    box.setItemText(0, "Thou");
    EXPECT_EQ(Texts(box), QStringList({"Inches", "inches", "|", "Inches", "inches"}));
}

// An item without an icon reaches the model only; indexes outside the list
// change nothing, and insertions past its ends go to the nearest end.
TEST(CKyUIComboBoxTest, ItemsInsertionsRemovalsAndIndexesOutsideTheList)
{
    {
        CKyUIComboBox box;
        box.addItem(RedIcon(), "A");
        box.addItem("B", QVariant(2));
        EXPECT_EQ(Texts(box), QStringList({"A", "B", "|", "A"}));
        EXPECT_EQ(box.findText("B"), 1);
        EXPECT_EQ(box.itemData(1), QVariant(2));
        box.insertItem(0, "Z");
        EXPECT_EQ(HandleAs<QComboBox>(box)->itemText(0), "Z");
        EXPECT_TRUE(HandleAs<QComboBox>(box)->itemIcon(0).isNull());
        box.insertItem(1, RedIcon(), "Y", QVariant(9));
        EXPECT_FALSE(HandleAs<QComboBox>(box)->itemIcon(1).isNull());
        EXPECT_EQ(box.itemData(1), QVariant(9));
    }
    CKyUIComboBox box;
    for (const char* text : {"0", "1", "5"})
        box.addItem(RedIcon(), text);
    box.insertItems(2, {"2", "3", "4"});
    EXPECT_EQ(Texts(box), QStringList({"0", "1", "2", "3", "4", "5", "|", "0", "1", "2", "3", "4", "5"}));

    // Removal and clearing keep the current item.
    box.setCurrentIndex(5);
    box.removeItem(5);
    box.removeItem(7);
    EXPECT_EQ(Texts(box), QStringList({"0", "1", "2", "3", "4", "|", "0", "1", "2", "3", "4"}));
    EXPECT_EQ(box.currentIndex(), 5);
    box.clear();
    EXPECT_EQ(Texts(box), QStringList({"|"}));
    EXPECT_EQ(box.currentIndex(), 5);
    EXPECT_EQ(box.currentText(), "5");

    Recorder log;
    Record(box, log);
    for (int index : {-1, 0, 1, 2, INT_MAX, INT_MIN}) {
        box.removeItem(index);
        box.setCurrentIndex(index);
        box.setItemData(index, 5);
        box.setItemText(index, "ignored");
        EXPECT_TRUE(box.itemText(index).isEmpty());
        EXPECT_FALSE(box.itemData(index).isValid());
    }
    EXPECT_TRUE(log.lines.isEmpty());
    EXPECT_EQ(box.currentText(), "5");

    box.insertItem(INT_MIN, "first");
    box.insertItem(INT_MAX, QIcon(), "last");
    box.insertItems(INT_MAX, {"x", "y"});
    box.insertItems(-5, {"p", "q"});
    EXPECT_EQ(Texts(box),
              QStringList({"p", "q", "first", "last", "x", "y", "|", "p", "q", "first", "last", "x", "y"}));
}
