#include "UI/CKyUICheckBox.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>

namespace
{
QCheckBox* WidgetOf(const CKyUICheckBox& box)
{
    return qobject_cast<QCheckBox*>(box.getHandle());
}

// Writes every signal of the box to the log, in the order emitted.
void Record(CKyUICheckBox& box, QStringList& log)
{
    box.stateChanged().connect([&log](int state) { log.append(QString("state %1").arg(state)); });
    box.toggled().connect([&log](bool on) { log.append(on ? "toggled on" : "toggled off"); });
    box.clicked().connect([&log](bool) { log.append("clicked"); });
}
} // namespace

TEST(CKyUICheckBoxTest, WidgetIsAPlainCheckBoxOfFixedHeight)
{
    CKyUICheckBox box;
    QCheckBox* widget = WidgetOf(box);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->styleSheet(), "QCheckBox { }");
    EXPECT_FALSE(box.isChecked());

    box.setText("First line\nsecond line\nthird line");
    EXPECT_EQ(widget->text(), "First line\nsecond line\nthird line");
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
    EXPECT_EQ(widget->height(), 25);
    EXPECT_EQ(widget->minimumHeight(), 25);
    EXPECT_EQ(widget->maximumHeight(), 25);
}

TEST(CKyUICheckBoxTest, SetCheckedEmitsStateAsOneOrZeroThenToggledOnlyOnChange)
{
    QStringList log;
    CKyUICheckBox box;
    Record(box, log);

    box.setChecked(false);
    EXPECT_TRUE(log.isEmpty());

    box.setChecked(true);
    box.setChecked(true);
    EXPECT_EQ(log, QStringList({"state 1", "toggled on"}));
    EXPECT_TRUE(box.isChecked());
    EXPECT_TRUE(WidgetOf(box)->isChecked());

    log.clear();
    box.setChecked(false);
    EXPECT_EQ(log, QStringList({"state 0", "toggled off"}));
    EXPECT_FALSE(WidgetOf(box)->isChecked());
}

TEST(CKyUICheckBoxTest, UsersClickShowsButChangesNeitherStateNorSignals)
{
    QStringList log;
    CKyUICheckBox box;
    box.setText("Option");
    Record(box, log);
    QCheckBox* widget = WidgetOf(box);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));

    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
    ASSERT_TRUE(widget->isChecked());
    EXPECT_FALSE(box.isChecked());
    EXPECT_TRUE(log.isEmpty());

    // The stored state is still off, so the program's "on" is a change.
    box.setChecked(true);
    EXPECT_EQ(log, QStringList({"state 1", "toggled on"}));
    log.clear();
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
    EXPECT_FALSE(widget->isChecked());
    EXPECT_TRUE(box.isChecked());
    EXPECT_TRUE(log.isEmpty());
}

TEST(CKyUICheckBoxTest, BlockedSignalsStillCheckTheWidgetAndStoreTheState)
{
    QStringList log;
    CKyUICheckBox box;
    Record(box, log);

    box.blockSignals(true);
    box.setChecked(true);
    EXPECT_TRUE(box.isChecked());
    EXPECT_TRUE(WidgetOf(box)->isChecked());
    EXPECT_TRUE(log.isEmpty());

    box.blockSignals(false);
    box.setChecked(false);
    EXPECT_EQ(log, QStringList({"state 0", "toggled off"}));
}
