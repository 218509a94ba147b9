#include "UI/CKyUIDockWidget.h"
#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIScrollableArea.h"
#include "UI/CKyUIStackedWidget.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestDialogs.h"
#include "support/TestViews.h"

#include <QtCore/QPointer>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

namespace
{
// Interactive, and kept open whatever is pressed.
class OpenDialog : public SampleDialog
{
public:
    OpenDialog() { setInteractive(true); }
    void accept() override {}
    void reject() override {}
};

QWidget* Widget(const CKyUIObject* object)
{
    return qobject_cast<QWidget*>(object->getHandle());
}
} // namespace

// The chosen buttons, each press with its own wrapper, Help's request; off
// again, all three buttons are back and every press carries Help.
TEST(InteractiveContainersTest, TheBoxShowsTheChosenButtonsAndNamesThePressedOne)
{
    OpenDialog dialog;
    dialog.afterSetup = [](SampleDialog& self) {
        self.box->setStandardButtons(CKyUIDialogButtonBox::Ok | CKyUIDialogButtonBox::Help);
    };
    SetUpAndShow(dialog);
    CKyUIDialogButtonBox* box = dialog.box;
    EXPECT_EQ(HandleAs<QDialogButtonBox>(*box)->buttons().size(), 2);
    EXPECT_EQ(box->button(CKyUIDialogButtonBox::Cancel), nullptr);
    CKyUIPushButton* ok = box->button(CKyUIDialogButtonBox::Ok);
    EXPECT_TRUE(ok->isInteractive());
    Recorder log;
    log.on(box->accepted(), "accepted").on(box->helpRequest(), "helpRequest");
    box->clicked().connect([&](CKyUIPushButton* which) { log.add("clicked", which == ok ? "Ok" : "Help"); });
    const auto pressOkAndHelp = [&dialog] {
        for (auto which : {CKyUIDialogButtonBox::Ok, CKyUIDialogButtonBox::Help})
            QTest::mouseClick(dialog.boxButton(which), Qt::LeftButton);
    };
    pressOkAndHelp();
    EXPECT_EQ(log.take(), (QStringList{"clicked:Ok", "accepted", "clicked:Help", "helpRequest"}));

    dialog.setInteractive(false);
    EXPECT_FALSE(ok->isInteractive());
    EXPECT_NE(box->button(CKyUIDialogButtonBox::Cancel)->getHandle(), nullptr);
    pressOkAndHelp();
    EXPECT_EQ(log.take(), (QStringList{"clicked:Help", "accepted", "clicked:Help"}));
    dialog.widget()->hide();
}

// Collapsed, the content hides (a child its client hid stays hidden when the
// box opens); under the theme a title gets room above the children. Off
// again, both go.
TEST(InteractiveContainersTest, AGroupBoxHidesItsContentAndMakesRoomForItsTitle)
{
    OpenDialog dialog;
    auto* box = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
    auto* shown = new HandleView(new QLabel("shown"));
    auto* hidden = new HandleView(new QLabel("hidden"));
    dialog.afterSetup = [&](SampleDialog& self) {
        self.GetLayout()->insertView(box, 0, 0.0f);
        box->setTitle("Units");
        box->addView(shown);
        box->addView(hidden);
        Widget(hidden)->hide();
        box->setCollapsed(true);
    };
    SetUpAndShow(dialog);
    auto* late = new HandleView(new QLabel("late"));
    box->addView(late);
    EXPECT_TRUE(Widget(box)->isVisible());
    EXPECT_FALSE(Widget(shown)->isVisible() || Widget(late)->isVisible());

    box->setCollapsed(false);
    EXPECT_TRUE(Widget(shown)->isVisible() && Widget(late)->isVisible());
    EXPECT_FALSE(Widget(hidden)->isVisible());
    const int titleHeight = QFontMetrics(Widget(box)->font()).height();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Widget(shown)->y() >= titleHeight; })) << Widget(shown)->y();

    box->setCollapsed(true);
    box->setInteractive(false);
    EXPECT_TRUE(Widget(shown)->isVisible());
    EXPECT_EQ(Widget(box)->styleSheet(), "QGroupBox { }");
    dialog.widget()->hide();
}

// Clicks, double clicks and close buttons reach the signals and the stored
// index; a stranger is at -1. Off again, a click moves only the toolkit.
TEST(InteractiveContainersTest, TheStackedWidgetFollowsTheTabBar)
{
    CKyUIStackedWidget stack;
    for (const char* title : {"General", "Display", "Units"})
        stack.addTab(new HandleView(new QLabel(title)), title);
    Recorder log;
    log.on(stack.currentChanged(), "current").on(stack.tabCloseRequested(), "close");
    log.on(stack.tabBarClicked(), "clicked").on(stack.tabBarDoubleClicked(), "double");
    stack.setInteractive(true);
    stack.setProperty("tabsClosable", true);
    auto* tabs = HandleAs<QTabWidget>(stack);
    tabs->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(tabs));
    QTabBar* bar = tabs->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(2).center());
    QTest::mouseClick(bar->tabButton(0, QTabBar::RightSide), Qt::LeftButton);
    EXPECT_EQ(log.take(), (QStringList{"clicked:2", "current:2", "close:0"}));
    EXPECT_EQ(stack.currentIndex(), 2);
    QTest::mouseDClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    EXPECT_EQ(log.count("double"), 1);
    EXPECT_EQ(log.last("double"), "1");
    HandleView stranger(nullptr);
    EXPECT_EQ(stack.indexOf(&stranger), -1);

    stack.setInteractive(false);
    log.take();
    const int current = stack.currentIndex();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(current == 0 ? 2 : 0).center());
    EXPECT_TRUE(log.lines.isEmpty());
    EXPECT_EQ(stack.currentIndex(), current);
    EXPECT_EQ(stack.indexOf(&stranger), 3);
}

// A way the area does not scroll has no bar and takes no wheel; enabled, the
// wheel scrolls. Off again, the toolkit's own policy is back.
TEST(InteractiveContainersTest, TheScrollingFlagsApply)
{
    CKyUIScrollableArea area;
    auto* tall = new QLabel("tall");
    tall->setMinimumHeight(1000);
    area.addView(new HandleView(tall));
    area.setInteractive(true);
    QScrollArea* scroll = HandleAs<QScrollArea>(area);
    scroll->resize(200, 100);
    scroll->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(scroll));
    const auto wheel = [scroll] {
        QWheelEvent event(QPointF(50, 50), QPointF(50, 50), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(scroll->viewport(), &event);
        return scroll->verticalScrollBar()->value();
    };
    EXPECT_EQ(scroll->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(wheel(), 0);
    area.setVerticalScrollingEnabled(true);
    EXPECT_GT(wheel(), 0);

    area.setInteractive(false);
    EXPECT_EQ(scroll->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_TRUE(scroll->horizontalScrollBar()->isEnabled());
}

// A real dock holds the view's widget under the title, for a host to place
// in the dock's area; the widget stays its view's when the dock goes.
TEST(InteractiveContainersTest, ADockWidgetMakesADockForAHostToPlace)
{
    HandleView view(new QLabel("Layers"));
    const QPointer<QWidget> content = Widget(&view);
    auto* dock = new CKyUIDockWidget(Qt::RightDockWidgetArea);
    dock->setTitle("Layers");
    dock->setInteractive(true);
    dock->setWidget(&view);
    auto* toolkit = HandleAs<QDockWidget>(*dock);
    ASSERT_NE(toolkit, nullptr);
    EXPECT_EQ(toolkit->windowTitle(), "Layers");
    EXPECT_EQ(toolkit->widget(), content);
    EXPECT_TRUE(view.isInteractive());
    QMainWindow host;
    host.addDockWidget(Qt::DockWidgetArea(dock->area()), toolkit);
    EXPECT_EQ(host.dockWidgetArea(toolkit), Qt::RightDockWidgetArea);

    delete dock;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_FALSE(content.isNull());
    EXPECT_EQ(content->parent(), nullptr);
    delete content.data();
}
