#include "UI/CKyUIEvent.h"

#include <gtest/gtest.h>

#include <QtCore/QEvent>

// Types are the toolkit's numbers; a focus event always reports focus-in.
TEST(CKyUIEventTest, TypesAndFocusReasons)
{
    EXPECT_EQ(CKyUIShowEvent().type(), QEvent::Show);
    EXPECT_EQ(CKyUIHideEvent().type(), QEvent::Hide);
    EXPECT_EQ(CKyUIResizeEvent(QSize(), QSize()).type(), QEvent::Resize);
    EXPECT_EQ(CKyUIPaintEvent(QRect()).type(), QEvent::Paint);

    const CKyUIFocusEvent focusOut(CKyUIEvent::FocusOut, CKyUIFocusEvent::TabFocusReason);
    EXPECT_EQ(focusOut.type(), CKyUIEvent::FocusIn);
    EXPECT_EQ(focusOut.reason(), CKyUIFocusEvent::TabFocusReason);
    const CKyUIFocusEvent shown(CKyUIEvent::Show, CKyUIFocusEvent::NoFocusReason);
    EXPECT_EQ(shown.type(), 8);
    EXPECT_EQ(static_cast<int>(shown.reason()), static_cast<int>(Qt::NoFocusReason));
    EXPECT_EQ(static_cast<int>(CKyUIFocusEvent::PopupFocusReason), static_cast<int>(Qt::PopupFocusReason));
}

// Paint and resize events keep only what they were given, in order.
TEST(CKyUIEventTest, PaintAndResizeEventsKeepTheirArguments)
{
    const CKyUIPaintEvent byRect(QRect(0, 0, 10, 10));
    EXPECT_EQ(byRect.rect(), QRect(0, 0, 10, 10));
    EXPECT_TRUE(byRect.region().isEmpty());
    const CKyUIPaintEvent byRegion(QRegion(2, 3, 4, 5));
    EXPECT_EQ(byRegion.region(), QRegion(2, 3, 4, 5));
    EXPECT_EQ(byRegion.rect(), QRect());

    const CKyUIResizeEvent resize(QSize(300, 200), QSize(100, 50));
    EXPECT_EQ(resize.size(), QSize(300, 200));
    EXPECT_EQ(resize.oldSize(), QSize(100, 50));
}
