#include "UI/CKyUIDockWidget.h"
#include "UI/CKyUIEvent.h"
#include "UI/Impl/CKyUIDockWidgetImpl.h"

#include <gtest/gtest.h>

#include <QtWidgets/QDockWidget>

#include <vector>

namespace
{
// Records the event objects its handlers receive.
class EventRecordingView : public CKyUIBaseView
{
public:
    EventRecordingView() { setImpl(new CKyUIBaseViewImpl(this)); }

    void showEvent(CKyUIShowEvent* event) override { received.push_back(event); }
    void hideEvent(CKyUIHideEvent* event) override { received.push_back(event); }

    std::vector<CKyUIEvent*> received;
};

CKyUIDockWidgetImpl* ImplOf(CKyUIDockWidget& dock)
{
    return static_cast<CKyUIDockWidgetImpl*>(dock.impl());
}
} // namespace

TEST(CKyUIDockWidgetTest, CreatesNoWidgetAndKeepsViewAndTitle)
{
    CKyUIDockWidget dock(Qt::LeftDockWidgetArea);
    EXPECT_EQ(dock.getHandle(), nullptr);
    EXPECT_EQ(ImplOf(dock)->GetFrontendClassName(), "QDockWidget");
    EXPECT_EQ(dock.widget(), nullptr);

    EventRecordingView view;
    dock.setWidget(&view);
    dock.setTitle("Layers");
    EXPECT_EQ(static_cast<const CKyUIDockWidget&>(dock).widget(), &view);
    EXPECT_EQ(ImplOf(dock)->Title(), "Layers");
    // The view is held, not adopted.
    EXPECT_EQ(view.parent(), nullptr);
    dock.setWidget(nullptr);
}

TEST(CKyUIDockWidgetTest, ShowAndHideEventsReachTheViewAsTheSameObjects)
{
    CKyUIDockWidget dock(Qt::RightDockWidgetArea);
    CKyUIShowEvent show;
    CKyUIHideEvent hide;
    // Without a view both are ignored.
    dock.showEvent(&show);
    dock.hideEvent(&hide);

    EventRecordingView view;
    dock.setWidget(&view);
    dock.showEvent(&show);
    dock.hideEvent(&hide);
    ASSERT_EQ(view.received.size(), 2u);
    EXPECT_EQ(view.received[0], &show);
    EXPECT_EQ(view.received[1], &hide);
    dock.setWidget(nullptr);
}

TEST(CKyUIDockWidgetTest, RaiseActsOnlyOnAToolkitDockWidget)
{
    CKyUIDockWidget dock(Qt::LeftDockWidgetArea);
    dock.raise();

    QWidget window;
    auto* toolkitDock = new QDockWidget(&window);
    auto* sibling = new QWidget(&window);
    ASSERT_EQ(window.children().last(), sibling);
    // As a host would attach one.
    dock.setHandle(toolkitDock);
    dock.raise();
    EXPECT_EQ(window.children().last(), toolkitDock);
    dock.setHandle(nullptr);
}

// Events are handed down the chain of docks, so a chain back to the dock is
// refused.
TEST(CKyUIDockWidgetTest, TheDockOrAChainBackToItIsNoContent)
{
    CKyUIDockWidget outer(Qt::LeftDockWidgetArea);
    CKyUIDockWidget inner(Qt::LeftDockWidgetArea);
    outer.setWidget(&outer);
    EXPECT_EQ(outer.widget(), nullptr);
    outer.setWidget(&inner);
    inner.setWidget(&outer);
    EXPECT_EQ(inner.widget(), nullptr);
    CKyUIShowEvent show;
    CKyUIHideEvent hide;
    outer.showEvent(&show);
    inner.hideEvent(&hide);
}
