#include "UI/CKyUIStackedWidget.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/CKyUIStackedWidgetImpl.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <vector>

namespace
{
// Three labelled pages and a log of every emission of the four signals.
class CKyUIStackedWidgetTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* title : {"General", "Display", "Units"}) {
            auto* label = new QLabel(title);
            label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            pages.push_back(new HandleView(label));
            stack.addTab(pages.back(), title);
        }
        log.on(stack.currentChanged(), "current").on(stack.tabCloseRequested(), "close");
        log.on(stack.tabBarClicked(), "clicked").on(stack.tabBarDoubleClicked(), "double");
    }

    QTabWidget* Tabs() const { return qobject_cast<QTabWidget*>(stack.getHandle()); }
    CKyUIStackedWidgetImpl* Impl() const { return static_cast<CKyUIStackedWidgetImpl*>(stack.impl()); }

    CKyUIStackedWidget stack;
    std::vector<HandleView*> pages;
    Recorder log;
};
} // namespace

TEST(CKyUIStackedWidgetEmptyTest, CreationAndAStrangerOnAnEmptyWidget)
{
    CKyUIStackedWidget stack;
    auto* tabs = qobject_cast<QTabWidget*>(stack.getHandle());
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->styleSheet(), "QTabWidget { }");
    EXPECT_EQ(stack.impl()->GetFrontendClassName(), "QTabWidget");
    EXPECT_EQ(stack.currentIndex(), 0);
    HandleView stranger(new QLabel);
    EXPECT_EQ(stack.indexOf(&stranger), 0);
    EXPECT_EQ(stack.indexOf(nullptr), 0);
    stack.setCurrentIndex(0);
    stack.addTab(nullptr, "none");
    EXPECT_EQ(tabs->count(), 0);
}

TEST_F(CKyUIStackedWidgetTest, PagesTabTextsAndProgramChangesOfTheIndex)
{
    EXPECT_EQ(Tabs()->count(), 3);
    EXPECT_EQ(Tabs()->tabText(2), "Units");
    EXPECT_EQ(stack.children(), QList<CKyUIObject*>({pages[0], pages[1], pages[2]}));
    auto* widget = static_cast<QWidget*>(pages[1]->getHandle());
    EXPECT_EQ(Tabs()->widget(1), widget);
    EXPECT_EQ(widget->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));

    EXPECT_EQ(stack.indexOf(pages[2]), 2);
    HandleView stranger(new QLabel);
    EXPECT_EQ(stack.indexOf(&stranger), 3);
    EXPECT_EQ(stack.currentIndex(), 0);
    EXPECT_EQ(Tabs()->currentIndex(), 0);

    // Tab texts change only in range.
    stack.setTabText(3, "Extra");
    stack.setTabText(-1, "Extra");
    stack.setTabText(1, "View");
    EXPECT_EQ(Impl()->Titles(), QList<QString>({"General", "View", "Units"}));
    EXPECT_EQ(Tabs()->tabText(1), "View");

    // The program's changes emit once per new index; nothing before did.
    stack.setCurrentIndex(0);
    stack.setCurrentIndex(3);
    stack.setCurrentIndex(-1);
    EXPECT_EQ(Tabs()->currentIndex(), 0);

    stack.setCurrentIndex(1);
    stack.setCurrentIndex(1);
    EXPECT_EQ(log.lines, (QStringList{"current:1"}));
    EXPECT_EQ(stack.currentIndex(), 1);
    EXPECT_EQ(Tabs()->currentIndex(), 1);

    stack.setCurrentWidget(pages[2]);
    stack.setCurrentWidget(&stranger);
    EXPECT_EQ(log.lines, (QStringList{"current:1", "current:2"}));
    EXPECT_EQ(stack.currentIndex(), 2);

    stack.blockSignals(true);
    stack.setCurrentIndex(0);
    EXPECT_EQ(stack.currentIndex(), 0);
    EXPECT_EQ(log.lines.size(), 2);
}

TEST_F(CKyUIStackedWidgetTest, AUsersClickMovesOnlyTheToolkitTheReactionsOnlyTheLibrary)
{
    QTabWidget* tabs = Tabs();
    tabs->resize(400, 300);
    tabs->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(tabs));

    QTabBar* bar = tabs->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(2).center());
    EXPECT_EQ(tabs->currentIndex(), 2);
    EXPECT_EQ(stack.currentIndex(), 0);
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    QTest::mouseDClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_EQ(stack.currentIndex(), 0);

    // The toolkit is told even when the stored index does not change.
    stack.setCurrentIndex(0);
    EXPECT_EQ(tabs->currentIndex(), 0);

    // The reactions, called directly, store and emit; nothing before did.
    Impl()->OnTabClickedActivated(0);
    Impl()->OnPageActivated(0);
    Impl()->OnTabClickedActivated(2);
    Impl()->OnPageActivated(1);
    Impl()->OnPageActivated(1);
    EXPECT_EQ(log.lines, (QStringList{"clicked:2", "current:2", "current:1"}));
    EXPECT_EQ(stack.currentIndex(), 1);
    // Only the library's own record moved.
    EXPECT_EQ(Tabs()->currentIndex(), 0);
}

// The tree refuses the widget itself or an ancestor as a page; the tab widget
// must not receive it either, or the toolkit loops in its own parentage.
TEST_F(CKyUIStackedWidgetTest, ItselfOrAnAncestorIsNoPage)
{
    CKyUIVerticalLayout outer;
    auto* inner = new CKyUIStackedWidget;
    outer.addView(inner);
    inner->addTab(inner, "itself");
    inner->addTab(&outer, "ancestor");
    EXPECT_EQ(qobject_cast<QTabWidget*>(inner->getHandle())->count(), 0);
    EXPECT_EQ(inner->indexOf(&outer), 0);
    EXPECT_TRUE(inner->children().isEmpty());
    stack.addTab(&stack, "itself");
    EXPECT_EQ(Tabs()->count(), 3);
}

// A page without a widget, or whose widget went, is a page of the library only.
TEST_F(CKyUIStackedWidgetTest, PagesWithoutAWidgetCountInTheLibraryOnly)
{
    stack.addTab(new HandleView(nullptr), "no widget");
    EXPECT_EQ(Tabs()->count(), 3);
    stack.setCurrentIndex(3);
    stack.removeView(pages[0]);
    delete pages[0];
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Tabs()->count(), 2);
    stack.setTabText(3, "renamed");
    stack.setCurrentIndex(0);
    EXPECT_EQ(log.lines, (QStringList{"current:3", "current:0"}));
}
