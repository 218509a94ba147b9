#include "UI/CKyUICheckBox.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>

namespace
{
// Writes every signal of the box to the log, in the order emitted.
void Record(CKyUICheckBox& box, Recorder& log)
{
    log.on(box.stateChanged(), "state").on(box.toggled(), "toggled").on(box.clicked(), "clicked");
}
} // namespace

TEST(CKyUICheckBoxTest, PlainCheckBoxOfFixedHeightAUsersClickChangesNeitherStateNorSignals)
{
    Recorder log;
    CKyUICheckBox box;
    Record(box, log);
    QCheckBox* widget = HandleAs<QCheckBox>(box);
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

    const QPoint indicator(8, widget->height() / 2);
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, indicator);
    ASSERT_TRUE(widget->isChecked());
    EXPECT_FALSE(box.isChecked());

    // The stored state is still off, so the program's "on" is a change, and the only report.
    box.setChecked(true);
    EXPECT_EQ(log.take(), QStringList({"state:1", "toggled:true"}));
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, indicator);
    EXPECT_FALSE(widget->isChecked());
    EXPECT_TRUE(box.isChecked());
    EXPECT_TRUE(log.lines.isEmpty());
}

// stateChanged as 1 or 0, then toggled, only on a change; blocked signals
// still check the widget and store the state.
TEST(CKyUICheckBoxTest, SetCheckedEmitsStateAsOneOrZeroThenToggledOnlyOnChange)
{
    Recorder log;
    CKyUICheckBox box;
    Record(box, log);

    box.setChecked(false);
    box.setChecked(true);
    box.setChecked(true);
    EXPECT_EQ(log.take(), QStringList({"state:1", "toggled:true"}));
    EXPECT_TRUE(HandleAs<QCheckBox>(box)->isChecked());
    box.setChecked(false);
    EXPECT_EQ(log.take(), QStringList({"state:0", "toggled:false"}));
    EXPECT_FALSE(HandleAs<QCheckBox>(box)->isChecked());

    box.blockSignals(true);
    box.setChecked(true);
    EXPECT_TRUE(HandleAs<QCheckBox>(box)->isChecked());
    box.blockSignals(false);
    box.setChecked(false);
    EXPECT_EQ(log.take(), QStringList({"state:0", "toggled:false"}));
}
