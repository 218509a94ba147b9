#include "UI/CKyUIRadioButton.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>
#include <QtTest/QTest>
#include <QtWidgets/QRadioButton>

namespace
{
QRadioButton* WidgetOf(const CKyUIRadioButton& button)
{
    return qobject_cast<QRadioButton*>(button.getHandle());
}

void Record(CKyUIRadioButton& button, QStringList& log)
{
    button.toggled().connect([&log](bool on) { log.append(on ? "toggled on" : "toggled off"); });
    button.clicked().connect([&log] { log.append("clicked"); });
    button.released().connect([&log] { log.append("released"); });
}
} // namespace

TEST(CKyUIRadioButtonTest, TextIsAReferenceToTheStoredText)
{
    CKyUIRadioButton button;
    ASSERT_NE(WidgetOf(button), nullptr);
    EXPECT_EQ(WidgetOf(button)->styleSheet(), "QRadioButton { }");
    EXPECT_FALSE(button.isChecked());

    const QString& text = button.text();
    EXPECT_TRUE(text.isEmpty());
    button.setText("Metric");
    EXPECT_EQ(text, "Metric");
    EXPECT_EQ(WidgetOf(button)->text(), "Metric");
}

TEST(CKyUIRadioButtonTest, SetCheckedAlwaysReachesTheWidgetButEmitsOnlyOnChange)
{
    QStringList log;
    CKyUIRadioButton button;
    Record(button, log);
    QRadioButton* widget = WidgetOf(button);

    button.setChecked(true);
    EXPECT_TRUE(widget->isChecked());
    EXPECT_EQ(log, QStringList({"toggled on"}));

    // Switched off behind the model's back, then set again: the widget
    // follows, the unchanged model stays silent.
    widget->setAutoExclusive(false);
    widget->setChecked(false);
    button.setChecked(true);
    EXPECT_TRUE(widget->isChecked());
    EXPECT_EQ(log, QStringList({"toggled on"}));

    button.setChecked(false);
    EXPECT_FALSE(widget->isChecked());
    EXPECT_EQ(log, QStringList({"toggled on", "toggled off"}));
}

TEST(CKyUIRadioButtonTest, UsersClickShowsButChangesNeitherStateNorSignals)
{
    QStringList log;
    CKyUIRadioButton button;
    button.setText("Imperial");
    Record(button, log);
    QRadioButton* widget = WidgetOf(button);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));

    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
    ASSERT_TRUE(widget->isChecked());
    EXPECT_FALSE(button.isChecked());
    EXPECT_TRUE(log.isEmpty());
}

TEST(CKyUIRadioButtonTest, BlockedSignalsStillCheckTheWidgetAndStoreTheState)
{
    QStringList log;
    CKyUIRadioButton button;
    Record(button, log);

    button.blockSignals(true);
    button.setChecked(true);
    EXPECT_TRUE(button.isChecked());
    EXPECT_TRUE(WidgetOf(button)->isChecked());
    EXPECT_TRUE(log.isEmpty());

    button.blockSignals(false);
    button.setChecked(false);
    EXPECT_EQ(log, QStringList({"toggled off"}));
}
