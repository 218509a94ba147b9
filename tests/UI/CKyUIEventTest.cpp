#include "UI/CKyUIEvent.h"

#include <gtest/gtest.h>

#include <QtCore/QEvent>

TEST(CKyUIEventTest, TypesAreTheToolkitNumbers)
{
    EXPECT_EQ(CKyUIShowEvent().type(), QEvent::Show);
    EXPECT_EQ(CKyUIHideEvent().type(), QEvent::Hide);
    EXPECT_EQ(CKyUIResizeEvent(QSize(), QSize()).type(), QEvent::Resize);
    EXPECT_EQ(CKyUIPaintEvent(QRect()).type(), QEvent::Paint);
}

TEST(CKyUIEventTest, FocusEventsAlwaysReportFocusInAndKeepTheReason)
{
    const CKyUIFocusEvent focusOut(CKyUIEvent::FocusOut, CKyUIFocusEvent::TabFocusReason);
    EXPECT_EQ(focusOut.type(), CKyUIEvent::FocusIn);
    EXPECT_EQ(focusOut.reason(), CKyUIFocusEvent::TabFocusReason);

    const CKyUIFocusEvent shown(CKyUIEvent::Show, CKyUIFocusEvent::NoFocusReason);
    EXPECT_EQ(shown.type(), 8);
    EXPECT_EQ(static_cast<int>(shown.reason()), static_cast<int>(Qt::NoFocusReason));
    EXPECT_EQ(static_cast<int>(CKyUIFocusEvent::PopupFocusReason), static_cast<int>(Qt::PopupFocusReason));
}

TEST(CKyUIEventTest, PaintEventKeepsOnlyWhatItWasGiven)
{
    const CKyUIPaintEvent byRect(QRect(0, 0, 10, 10));
    EXPECT_EQ(byRect.rect(), QRect(0, 0, 10, 10));
    EXPECT_TRUE(byRect.region().isEmpty());

    const CKyUIPaintEvent byRegion(QRegion(2, 3, 4, 5));
    EXPECT_EQ(byRegion.region(), QRegion(2, 3, 4, 5));
    EXPECT_TRUE(byRegion.rect().isNull());
    EXPECT_EQ(byRegion.rect().right(), -1);
    EXPECT_EQ(byRegion.rect().bottom(), -1);
}

TEST(CKyUIEventTest, ResizeEventKeepsNewAndOldSizeInOrder)
{
    const CKyUIResizeEvent event(QSize(300, 200), QSize(100, 50));
    EXPECT_EQ(event.size(), QSize(300, 200));
    EXPECT_EQ(event.oldSize(), QSize(100, 50));
}
