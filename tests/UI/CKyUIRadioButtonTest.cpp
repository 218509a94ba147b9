#include "UI/CKyUIRadioButton.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>
#include <QtTest/QTest>
#include <QtWidgets/QRadioButton>

namespace
{
void Record(CKyUIRadioButton& button, Recorder& log)
{
    log.on(button.toggled(), "toggled").on(button.clicked(), "clicked").on(button.released(), "released");
}
} // namespace

TEST(CKyUIRadioButtonTest, TextIsAReferenceToTheStoredTextAUsersClickChangesNothing)
{
    Recorder log;
    CKyUIRadioButton button;
    Record(button, log);
    QRadioButton* widget = HandleAs<QRadioButton>(button);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->styleSheet(), "QRadioButton { }");
    EXPECT_FALSE(button.isChecked());

    const QString& text = button.text();
    EXPECT_TRUE(text.isEmpty());
    button.setText("Metric");
    EXPECT_EQ(text, "Metric");
    EXPECT_EQ(widget->text(), "Metric");

    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
    ASSERT_TRUE(widget->isChecked());
    EXPECT_FALSE(button.isChecked());
    EXPECT_TRUE(log.lines.isEmpty());
}

// The widget always follows, signals only a change of the stored state, also
// while blocked.
TEST(CKyUIRadioButtonTest, SetCheckedAlwaysReachesTheWidgetButEmitsOnlyOnChange)
{
    Recorder log;
    CKyUIRadioButton button;
    Record(button, log);
    QRadioButton* widget = HandleAs<QRadioButton>(button);

    button.setChecked(true);
    EXPECT_TRUE(widget->isChecked());
    // Switched off behind the model's back, then set again: the widget
    // follows, the unchanged model stays silent.
    widget->setAutoExclusive(false);
    widget->setChecked(false);
    button.setChecked(true);
    EXPECT_TRUE(widget->isChecked());
    EXPECT_EQ(log.take(), QStringList({"toggled:true"}));
    button.setChecked(false);
    EXPECT_FALSE(widget->isChecked());
    EXPECT_EQ(log.take(), QStringList({"toggled:false"}));

    button.blockSignals(true);
    button.setChecked(true);
    EXPECT_TRUE(button.isChecked());
    EXPECT_TRUE(widget->isChecked());
    button.blockSignals(false);
    button.setChecked(false);
    EXPECT_EQ(log.take(), QStringList({"toggled:false"}));
}
