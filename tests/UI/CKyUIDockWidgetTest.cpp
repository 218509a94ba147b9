#include "UI/CKyUIDockWidget.h"
#include "UI/CKyUIEvent.h"
#include "UI/Impl/CKyUIDockWidgetImpl.h"

#include <gtest/gtest.h>

#include <QtWidgets/QDockWidget>

#include <vector>

namespace
{
// Records the event objects its handlers receive.
struct EventRecordingView : CKyUIBaseView
{
    EventRecordingView() { setImpl(new CKyUIBaseViewImpl(this)); }
    void showEvent(CKyUIShowEvent* event) override { received.push_back(event); }
    void hideEvent(CKyUIHideEvent* event) override { received.push_back(event); }
    std::vector<CKyUIEvent*> received;
};
} // namespace

// The view is held, not adopted; show and hide events reach it as the same
// objects, and are ignored without a view.
TEST(CKyUIDockWidgetTest, KeepsViewAndTitleAndHandsEventsOn)
{
    CKyUIDockWidget dock(Qt::LeftDockWidgetArea);
    auto* impl = static_cast<CKyUIDockWidgetImpl*>(dock.impl());
    EXPECT_EQ(dock.getHandle(), nullptr);
    EXPECT_EQ(impl->GetFrontendClassName(), "QDockWidget");
    EXPECT_EQ(dock.widget(), nullptr);
    CKyUIShowEvent show;
    CKyUIHideEvent hide;
    dock.showEvent(&show);
    dock.hideEvent(&hide);

    EventRecordingView view;
    dock.setWidget(&view);
    dock.setTitle("Layers");
    EXPECT_EQ(static_cast<const CKyUIDockWidget&>(dock).widget(), &view);
    EXPECT_EQ(impl->Title(), "Layers");
    EXPECT_EQ(view.parent(), nullptr);
    dock.showEvent(&show);
    dock.hideEvent(&hide);
    EXPECT_EQ(view.received, (std::vector<CKyUIEvent*>{&show, &hide}));
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
