#include "UI/CKyUISpinBox.h"
#include "UI/CKyUIDoubleSpinBox.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace
{
template <class Widget, class View> Widget* BoxOf(const View& view)
{
    return qobject_cast<Widget*>(view.getHandle());
}

// A window holding the box and a neighbour to move the focus to.
struct Window
{
    explicit Window(QWidget* box)
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(box);
        layout->addWidget(neighbour);
        window.show();
        window.activateWindow();
    }
    ~Window()
    {
        // The box belongs to its view, which releases it.
        if (QLayoutItem* item = window.layout()->itemAt(0))
            item->widget()->setParent(nullptr);
    }
    bool Focus(QWidget* widget)
    {
        widget->setFocus();
        return QTest::qWaitFor([widget] { return widget->hasFocus(); });
    }
    QWidget window;
    QLineEdit* neighbour = new QLineEdit;
};

void Retype(QAbstractSpinBox* box, const QString& text)
{
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClicks(box, text);
}

void Wheel(QWidget* widget, int notches)
{
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}
} // namespace

// Each row: the widget's locale, the text typed, how it ends (Return or
// leaving), the value and the text shown afterwards. Either separator reads
// as one; out of range is brought to the bound; an empty field goes back.
TEST(CKyUISpinBoxTest, TypedNumbersReadInEitherNotationAndClampWhenDone)
{
    QStringList log; // outlives the window, whose end may still report
    CKyUIDoubleSpinBox view;
    view.setRange(-10, 100);
    view.setSuffix(" mm");
    auto* box = BoxOf<QDoubleSpinBox>(view);
    Window window(box);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window.window));
    view.valueChanged().connect([&log](double value) { log << QString::number(value); });
    view.editingFinished().connect([&log]() { log << "finished"; });
    const struct
    {
        QLocale::Language language;
        const char* typed;
        bool pressReturn;
        double value;
        const char* shown;
    } rows[] = {
        {QLocale::English, "12,5", true, 12.5, "12.50 mm"},
        {QLocale::English, "7.25", false, 7.25, "7.25 mm"},
        {QLocale::German, "12.5", true, 12.5, "12,50 mm"},
        {QLocale::German, "3,75", false, 3.75, "3,75 mm"},
        {QLocale::German, "500", true, 100, "100,00 mm"},
        {QLocale::English, "-80", false, -10, "-10.00 mm"},
        {QLocale::English, "", true, 1, "1.00 mm"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        box->setLocale(QLocale(row.language));
        view.setValue(1);
        log.clear();
        ASSERT_TRUE(window.Focus(box));
        Retype(box, row.typed);
        EXPECT_TRUE(log.isEmpty()) << "typing alone reports nothing";
        if (row.pressReturn)
            QTest::keyClick(box, Qt::Key_Return);
        else
            ASSERT_TRUE(window.Focus(window.neighbour));
        EXPECT_EQ(view.value(), row.value);
        EXPECT_EQ(box->text(), row.shown);
        const QStringList expected =
            row.value == 1 ? QStringList{"finished"} : QStringList{QString::number(row.value), "finished"};
        EXPECT_EQ(log, expected);
    }
    // A third decimal, a letter and a second separator are refused as typed.
    box->setLocale(QLocale(QLocale::English));
    ASSERT_TRUE(window.Focus(box));
    Retype(box, "1.2x3,4.56");
    EXPECT_EQ(box->findChild<QLineEdit*>()->text(), "1.23 mm");
}

// Arrows, page keys and the wheel count once per step; a step past a bound,
// and a setter that changes nothing, count not at all.
TEST(CKyUISpinBoxTest, StepsAndSettersReportEachRealChangeOnce)
{
    Recorder log;
    CKyUISpinBox view;
    view.setRange(0, 30);
    view.setSingleStep(2);
    auto* box = BoxOf<QSpinBox>(view);
    Window window(box);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window.window));
    ASSERT_TRUE(window.Focus(box));
    log.on(view.valueChanged(), "value");
    QTest::keyClick(box, Qt::Key_Up);
    QTest::keyClick(box, Qt::Key_PageUp); // ten steps
    Wheel(box, 1);
    QTest::keyClick(box, Qt::Key_PageUp);
    QTest::keyClick(box, Qt::Key_Up);
    Wheel(box, -1);
    EXPECT_EQ(log.take(), QStringList({"value:2", "value:22", "value:24", "value:30", "value:28"}));

    view.setValue(28);
    view.setValue(-5);
    view.setValue(-9);
    view.setRange(10, 20);
    view.setMaximum(5); // lowers the minimum with it
    EXPECT_EQ(log.take(), QStringList({"value:0", "value:10", "value:5"}));
    EXPECT_EQ(std::make_pair(view.minimum(), view.maximum()), std::make_pair(5, 5));
    EXPECT_EQ(std::make_pair(box->minimum(), box->maximum()), std::make_pair(5, 5));
    view.setPrefix("M");
    EXPECT_EQ(box->text(), "M5");
    view.setSingleStep(-1);
    EXPECT_EQ(view.singleStep(), 2);
}

// The stored value agrees with the widget: bounded and rounded the same way.
TEST(CKyUISpinBoxTest, DecimalsRoundTheValueAndTheBounds)
{
    CKyUIDoubleSpinBox view;
    auto* box = BoxOf<QDoubleSpinBox>(view);
    EXPECT_EQ(std::make_tuple(view.minimum(), view.maximum(), view.decimals(), view.value()),
              std::make_tuple(0.0, 99.0, 2, 0.0));
    view.setValue(12.3456);
    EXPECT_EQ(view.value(), 12.35);
    view.setDecimals(1);
    EXPECT_EQ(view.value(), box->value());
    view.setDecimals(40);
    EXPECT_EQ(std::make_pair(view.decimals(), box->decimals()), std::make_pair(15, 15));
    view.setRange(0.004, 50);
    view.setValue(-1);
    EXPECT_EQ(view.value(), box->value());
}

// A slot may delete the box that reports to it, also in the middle of Return.
TEST(CKyUISpinBoxTest, DeletedFromItsOwnSlot)
{
    auto* view = new CKyUIDoubleSpinBox;
    auto* box = BoxOf<QDoubleSpinBox>(*view);
    QPointer<QDoubleSpinBox> widget(box);
    box->show();
    int calls = 0;
    view->valueChanged().connect([&](double) {
        ++calls;
        delete view;
    });
    Retype(box, "42");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(calls, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}
