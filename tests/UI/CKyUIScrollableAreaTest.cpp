#include "UI/CKyUIScrollableArea.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/CKyUIScrollableAreaImpl.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace
{
QScrollArea* AreaOf(const CKyUIScrollableArea& area)
{
    return qobject_cast<QScrollArea*>(area.getHandle());
}

// Notes the scroll position at the moment a posted event reaches it.
class PostedEventProbe : public QObject
{
public:
    explicit PostedEventProbe(QScrollBar* bar)
        : m_bar(bar)
    {
    }

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        positionWhenReceived = m_bar->value();
        return true;
    }

    int positionWhenReceived = -1;

private:
    QScrollBar* m_bar;
};
} // namespace

TEST(CKyUIScrollableAreaTest, CreatesAScrollAreaUnderTheOlderName)
{
    CKyUIScrollableArea area;
    ASSERT_NE(AreaOf(area), nullptr);
    EXPECT_EQ(AreaOf(area)->styleSheet(), "QScrollView, QScrollArea { }");
    EXPECT_EQ(area.impl()->GetFrontendClassName(), "QScrollView");
    EXPECT_EQ(AreaOf(area)->parent(), nullptr);
}

TEST(CKyUIScrollableAreaTest, ScrollingFlagsAreOnlyKept)
{
    CKyUIScrollableArea area;
    EXPECT_FALSE(area.horizontalScrollingEnabled());
    EXPECT_FALSE(area.verticalScrollingEnabled());

    area.setHorizontalScrollingEnabled(true);
    area.setVerticalScrollingEnabled(true);
    EXPECT_TRUE(area.horizontalScrollingEnabled());
    EXPECT_TRUE(area.verticalScrollingEnabled());
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

TEST(CKyUIScrollableAreaTest, ScrollToBringsTheLastViewOfALongColumnIntoSight)
{
    CKyUIScrollableArea area;
    auto* column = new CKyUIVerticalLayout;
    HandleView* last = nullptr;
    for (int i = 0; i < 40; ++i) {
        auto* label = new QLabel(QStringLiteral("row %1").arg(i));
        label->setMinimumHeight(30);
        last = new HandleView(label);
        column->addView(last);
    }
    area.addView(column);
    QScrollArea* scrollArea = AreaOf(area);
    scrollArea->resize(200, 150);
    scrollArea->show();

    // Left pending until scrollTo runs the event loop.
    PostedEventProbe probe(scrollArea->verticalScrollBar());
    QCoreApplication::postEvent(&probe, new QEvent(QEvent::User));
    area.scrollTo(last);
    EXPECT_EQ(probe.positionWhenReceived, 0);

    auto* lastWidget = static_cast<QWidget*>(last->getHandle());
    const QRect inViewport(lastWidget->mapTo(scrollArea->viewport(), QPoint(0, 0)), lastWidget->size());
    EXPECT_GT(scrollArea->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(scrollArea->viewport()->rect().contains(inViewport))
        << inViewport.y() << " in a viewport of height " << scrollArea->viewport()->height();
}

TEST(CKyUIScrollableAreaTest, ScrollToWithoutContentOrWidgetIsQuiet)
{
    QObject notAWidget;
    CKyUIScrollableArea area;
    HandleView stranger(&notAWidget);
    area.scrollTo(nullptr);
    area.scrollTo(&stranger);
    area.addView(&stranger);
    area.removeView(&stranger);
    EXPECT_EQ(AreaOf(area)->widget(), nullptr);
}
