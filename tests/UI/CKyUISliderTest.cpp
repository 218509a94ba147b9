#include "UI/CKyUISlider.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/CKyUISliderImpl.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QSlider>

const auto SliderOf = [](const CKyUISlider& slider) { return qobject_cast<QSlider*>(slider.getHandle()); };

// The stored maximum of 100 is not applied; the slider stays 25 pixels high
// in a tall layout.
TEST(CKyUISliderTest, CreationKeepsTheToolkitRangeAndAFixedHeight)
{
    CKyUIVerticalLayout column;
    auto* slider = new CKyUISlider;
    QSlider* widget = SliderOf(*slider);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->styleSheet(), "QSlider { }");
    EXPECT_EQ(widget->orientation(), Qt::Horizontal);
    EXPECT_EQ(QSize(widget->minimumHeight(), widget->maximumHeight()), QSize(25, 25));
    EXPECT_EQ(slider->impl()->GetFrontendClassName(), "QSlider");
    auto* impl = static_cast<CKyUISliderImpl*>(slider->impl());
    EXPECT_EQ(impl->Minimum(), 0);
    EXPECT_EQ(impl->Maximum(), 100);
    EXPECT_EQ(widget->minimum(), 0);
    EXPECT_EQ(widget->maximum(), 99);
    EXPECT_EQ(slider->value(), 0);

    column.addView(slider, 1.0f);
    auto* box = static_cast<QWidget*>(column.getHandle());
    box->resize(300, 400);
    box->show();
    QCoreApplication::processEvents();
    EXPECT_EQ(widget->height(), 25);
}

// Blocked: the value still follows the user, nothing is emitted.
TEST(CKyUISliderTest, ArrowKeysMoveTheValueAndEmitEachStep)
{
    CKyUISlider slider;
    Recorder values;
    values.on(slider.valueChanged(), "value");
    QSlider* widget = SliderOf(slider);
    widget->show();
    for (Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_End, Qt::Key_Left})
        QTest::keyClick(widget, key);
    EXPECT_EQ(values.take(), QStringList({"value:1", "value:2", "value:99", "value:98"}));
    EXPECT_EQ(slider.value(), 98);
    slider.blockSignals(true);
    QTest::keyClick(widget, Qt::Key_Home);
    EXPECT_EQ(slider.value(), 0);
    EXPECT_TRUE(values.lines.isEmpty());
    slider.blockSignals(false);
    QTest::keyClick(widget, Qt::Key_Right);
    EXPECT_EQ(values.lines, QStringList({"value:1"}));
}

// The value is stored as given and the clamped value reported back; the range
// is set in two steps.
TEST(CKyUISliderTest, SetValueAndSetRange)
{
    CKyUISlider slider;
    Recorder values;
    values.on(slider.valueChanged(), "value");
    slider.setValue(150);
    EXPECT_EQ(SliderOf(slider)->value(), 99);
    EXPECT_EQ(slider.value(), 99);
    // Already at the maximum: nothing moves, so the larger number stays.
    slider.setValue(500);
    EXPECT_EQ(slider.value(), 500);
    slider.setValue(99);
    EXPECT_EQ(slider.value(), 99);
    slider.setValue(-3);
    EXPECT_EQ(slider.value(), 0);
    EXPECT_EQ(values.take(), QStringList({"value:99", "value:0"}));

    // Raising the minimum lifts maximum and value with it first.
    slider.setRange(200, 300);
    EXPECT_EQ(values.take(), QStringList({"value:200"}));
    EXPECT_EQ(SliderOf(slider)->minimum(), 200);
    EXPECT_EQ(SliderOf(slider)->maximum(), 300);
    EXPECT_EQ(slider.value(), 200);
    // An inverted range ends where the maximum step puts it, not where a
    // single toolkit call would.
    slider.setRange(50, 20);
    EXPECT_EQ(SliderOf(slider)->minimum(), 20);
    EXPECT_EQ(SliderOf(slider)->maximum(), 20);
    EXPECT_EQ(values.lines, QStringList({"value:20"}));
    auto* impl = static_cast<CKyUISliderImpl*>(slider.impl());
    EXPECT_EQ(impl->Minimum(), 50);
    EXPECT_EQ(impl->Maximum(), 20);
}

TEST(CKyUISliderTest, WidgetOutlivingTheSliderNoLongerReports)
{
    auto* slider = new CKyUISlider;
    QPointer<QSlider> widget(SliderOf(*slider));
    delete slider;
    ASSERT_FALSE(widget.isNull());
    widget->setValue(40);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}
