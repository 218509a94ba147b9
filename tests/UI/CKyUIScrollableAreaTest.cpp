#include "UI/CKyUIScrollableArea.h"
#include "UI/CKyUIVerticalLayout.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

const auto AreaOf = [](const CKyUIScrollableArea& area) {
    return qobject_cast<QScrollArea*>(area.getHandle());
};

// A scroll area under the older name; the scrolling flags are only kept.
TEST(CKyUIScrollableAreaTest, CreatesAScrollAreaAndOnlyKeepsTheFlags)
{
    CKyUIScrollableArea area;
    ASSERT_NE(AreaOf(area), nullptr);
    EXPECT_EQ(AreaOf(area)->styleSheet(), "QScrollView, QScrollArea { }");
    EXPECT_EQ(area.impl()->GetFrontendClassName(), "QScrollView");
    EXPECT_EQ(AreaOf(area)->parent(), nullptr);
    EXPECT_FALSE(area.horizontalScrollingEnabled() || area.verticalScrollingEnabled());
    area.setHorizontalScrollingEnabled(true);
    area.setVerticalScrollingEnabled(true);
    EXPECT_TRUE(area.horizontalScrollingEnabled() && area.verticalScrollingEnabled());
    EXPECT_EQ(AreaOf(area)->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_EQ(AreaOf(area)->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

TEST(CKyUIScrollableAreaTest, AddedViewFillsTheAreaAndALaterOneReplacesIt)
{
    CKyUIScrollableArea area;
    auto* firstLabel = new QLabel("first");
    firstLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* first = new HandleView(firstLabel);
    area.addView(first, 3.0f);
    EXPECT_EQ(AreaOf(area)->widget(), firstLabel);
    EXPECT_TRUE(AreaOf(area)->widgetResizable());
    EXPECT_EQ(firstLabel->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    EXPECT_EQ(first->parent(), &area);

    auto* secondLabel = new QLabel("second");
    auto* second = new HandleView(secondLabel);
    area.addView(second);
    EXPECT_EQ(AreaOf(area)->widget(), secondLabel);
    // The first view keeps a living widget of its own.
    QPointer<QLabel> guard(firstLabel);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_FALSE(guard.isNull());
    EXPECT_EQ(firstLabel->parent(), nullptr);

    // Removal gives the view back but leaves its widget shown in the area.
    area.removeView(second);
    EXPECT_EQ(second->parent(), nullptr);
    EXPECT_EQ(AreaOf(area)->widget(), secondLabel);
    delete second;
}

// Quiet without content or without a widget; with them, the last view of a
// long column comes into sight.
TEST(CKyUIScrollableAreaTest, ScrollToBringsTheLastViewOfALongColumnIntoSight)
{
    QObject notAWidget;
    CKyUIScrollableArea area;
    HandleView stranger(&notAWidget);
    area.scrollTo(nullptr);
    area.scrollTo(&stranger);
    area.addView(&stranger);
    area.removeView(&stranger);
    EXPECT_EQ(AreaOf(area)->widget(), nullptr);

    auto* column = new CKyUIVerticalLayout;
    HandleView* last = nullptr;
    for (int i = 0; i < 40; ++i) {
        auto* label = new QLabel(QStringLiteral("row %1").arg(i));
        label->setMinimumHeight(30);
        column->addView(last = new HandleView(label));
    }
    area.addView(column);
    QScrollArea* scrollArea = AreaOf(area);
    scrollArea->resize(200, 150);
    scrollArea->show();
    // Left pending until scrollTo runs the event loop.
    int positionThen = -1;
    QMetaObject::invokeMethod(
        &notAWidget, [&] { positionThen = scrollArea->verticalScrollBar()->value(); }, Qt::QueuedConnection);
    area.scrollTo(last);
    EXPECT_EQ(positionThen, 0);
    auto* lastWidget = static_cast<QWidget*>(last->getHandle());
    const QRect inViewport(lastWidget->mapTo(scrollArea->viewport(), QPoint(0, 0)), lastWidget->size());
    EXPECT_GT(scrollArea->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(scrollArea->viewport()->rect().contains(inViewport))
        << inViewport.y() << " in a viewport of height " << scrollArea->viewport()->height();
}
