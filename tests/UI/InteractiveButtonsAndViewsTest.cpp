#include "UI/CKyUIAction.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUISlider.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITimer.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>

#include <functional>
#include <memory>

TEST(InteractiveButtonsAndViewsTest, PushButtonReportsPressReleaseAndTheCheckedStateWhileInteractive)
{
    CKyUIPushButton button;
    auto* widget = HandleAs<QPushButton>(button);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
    Recorder log;
    log.on(button.pressed(), "pressed").on(button.released(), "released").on(button.clicked(), "clicked");
    const auto clickTwice = [&] {
        QTest::mouseClick(widget, Qt::LeftButton);
        QTest::mouseClick(widget, Qt::LeftButton);
        return log.take();
    };

    button.setInteractive(true);
    EXPECT_EQ(clickTwice().filter("clicked"), QStringList({"clicked:true", "clicked:true"}));
    button.setCheckable(true);
    EXPECT_EQ(clickTwice(),
              QStringList({"pressed", "released", "clicked:true", "pressed", "released", "clicked:false"}));
    button.setInteractive(false);
    EXPECT_EQ(clickTwice(), QStringList({"clicked:true", "clicked:true"}));
}

// Given before the switch, a resource icon loads when it goes on, unless an
// icon was set after it.
TEST(InteractiveButtonsAndViewsTest, ResourceIconsLoadWhileInteractive)
{
    CKyUIPushButton now, later, replaced;
    CKyUIAction action;
    // The toolkit action outlives its public object: it belongs to the test.
    const std::unique_ptr<QAction> entry(HandleAs<QAction>(action));
    now.setInteractive(true);
    for (CKyUIPushButton* button : {&now, &later, &replaced})
        button->setResourceIcon(":/commonui/resources/icons/chevron_down.png");
    action.setResourceIcon(":/commonui/resources/icons/chevron_down.png");
    replaced.setIcon(QIcon());
    EXPECT_FALSE(HandleAs<QPushButton>(now)->icon().isNull());
    EXPECT_TRUE(HandleAs<QPushButton>(later)->icon().isNull());
    EXPECT_TRUE(HandleAs<QAction>(action)->icon().isNull());
    for (CKyUIObject* object : std::initializer_list<CKyUIObject*>{&later, &replaced, &action})
        object->setInteractive(true);
    EXPECT_FALSE(HandleAs<QPushButton>(later)->icon().isNull());
    EXPECT_TRUE(HandleAs<QPushButton>(replaced)->icon().isNull());
    EXPECT_FALSE(HandleAs<QAction>(action)->icon().isNull());
}

TEST(InteractiveButtonsAndViewsTest, ActionEnabledFlagReachesTheMenuEntryWhileInteractive)
{
    CKyUIAction action;
    const std::unique_ptr<QAction> entry(HandleAs<QAction>(action));
    action.setText("Pad");
    QMenu menu;
    menu.addAction(entry.get());
    Recorder log;
    log.on(action.triggered(), "triggered");
    const auto click = [&] {
        menu.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&menu));
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(entry.get()).center());
        return log.take();
    };

    action.setEnabled(false);
    EXPECT_EQ(click(), QStringList({"triggered:false"}));
    action.setInteractive(true);
    EXPECT_TRUE(click().isEmpty());
    action.setEnabled(true);
    EXPECT_EQ(click(), QStringList({"triggered:false"}));
}

TEST(InteractiveButtonsAndViewsTest, TimerStaysActiveUntilStopAndSliderTakesItsRangeWhileInteractive)
{
    CKyUITimer timer;
    timer.setInteractive(true);
    int timeouts = 0;
    timer.timeout().connect([&] { ++timeouts; });
    timer.start(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return timeouts >= 2; }));
    EXPECT_TRUE(timer.isActive());
    timer.stop();
    EXPECT_FALSE(timer.isActive());

    CKyUISlider slider;
    Recorder log;
    log.on(slider.valueChanged(), "value");
    slider.setInteractive(true);
    EXPECT_TRUE(log.lines.isEmpty());
    QTest::keyClick(HandleAs<QSlider>(slider), Qt::Key_End);
    EXPECT_EQ(log.take(), QStringList({"value:100"}));
}

// Each row: a base-view operation, inert off, and what the widget shows while
// interactive; a kept value is applied by the switch itself.
TEST(InteractiveButtonsAndViewsTest, BaseViewOperationsReachTheWidgetWhileInteractive)
{
    const std::tuple<std::function<void(CKyUIBaseView&)>, bool, std::function<bool(QLineEdit*)>> rows[] = {
        {[](CKyUIBaseView& v) { v.setCornerRadius(10), v.setCornerRadius(2.5f); }, true,
         [](QLineEdit* w) { return w->styleSheet() == "QLineEdit { border-radius:2.5px;}"; }},
        {[](CKyUIBaseView& v) { v.setPreferableSize(120, 40); }, true,
         [](QLineEdit* w) { return w->minimumSize() == QSize(120, 40) && w->size() == QSize(120, 40); }},
        {[](CKyUIBaseView& v) { v.resize(200, 30); }, true,
         [](QLineEdit* w) { return w->size() == QSize(200, 30); }},
        {[](CKyUIBaseView& v) { v.setWidth(180), v.setHeight(35); }, true,
         [](QLineEdit* w) { return w->size() == QSize(180, 35); }},
        // The tab reason makes a line edit select its text.
        {[](CKyUIBaseView& v) { v.setFocus(int(Qt::TabFocusReason)), v.setFocus(99); }, false,
         [](QLineEdit* w) { return w->hasFocus() && w->selectedText() == "abc"; }},
    };
    for (const auto& row : rows) {
        CKyUITextEdit view(CKyUITextEdit::Tiny);
        QLineEdit* widget = HandleAs<QLineEdit>(view);
        view.setText("abc");
        widget->show();
        widget->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(widget));
        widget->clearFocus();
        std::get<0>(row)(view);
        EXPECT_FALSE(std::get<2>(row)(widget)) << &row - rows;
        view.setInteractive(true);
        EXPECT_EQ(std::get<2>(row)(widget), std::get<1>(row)) << &row - rows;
        std::get<0>(row)(view);
        EXPECT_TRUE(std::get<2>(row)(widget)) << &row - rows;
    }
}

TEST(InteractiveButtonsAndViewsTest, HorizontalLayoutRemovesTheWidgetOnlyWhileInteractive)
{
    CKyUIHorizontalLayout row;
    CKyUILabel kept, removed;
    row.addView(&kept);
    row.addView(&removed);
    row.removeView(&kept);
    row.setInteractive(true);
    row.removeView(&removed);
    QLayout* layout = HandleAs<QGroupBox>(row)->layout();
    EXPECT_GE(layout->indexOf(HandleAs<QWidget>(kept)), 0);
    EXPECT_EQ(layout->indexOf(HandleAs<QWidget>(removed)), -1);
}

// Off, a value with a 0 in it is never removed again and the sheet grows;
// interactive, any earlier declaration goes, whatever its digits.
TEST(InteractiveButtonsAndViewsTest, RestylingKeepsOneDeclarationWhileInteractive)
{
    for (const bool interactive : {false, true}) {
        CKyUILabel label;
        CKyUIPushButton button;
        label.setInteractive(interactive);
        button.setInteractive(interactive);
        HandleAs<QWidget>(label)->setStyleSheet("QLabel { font-weight: 700; }");
        HandleAs<QWidget>(button)->setStyleSheet("QPushButton { font-weight: 600; }");
        for (int size : {10, 10, 20, 12})
            label.setFontSize(size);
        label.setBoldText(true);
        button.setBoldText(false);
        EXPECT_EQ(HandleAs<QWidget>(label)->styleSheet(),
                  interactive ? "QLabel {  font-size:12px;font-weight: bold;}"
                              : "QLabel { font-weight: 700; font-size:10px;font-size:10px;font-size:20px;"
                                "font-size:12px;font-weight: bold;}");
        EXPECT_EQ(HandleAs<QWidget>(button)->styleSheet(),
                  interactive ? "QPushButton {  font-weight: normal;}"
                              : "QPushButton { font-weight: 600; font-weight: normal;}");
    }
}
