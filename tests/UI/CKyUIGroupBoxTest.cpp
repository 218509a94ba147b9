#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUIVerticalLayout.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>

namespace
{
QGroupBox* WidgetOf(const CKyUIGroupBox& box)
{
    return qobject_cast<QGroupBox*>(box.getHandle());
}

QBoxLayout* LayoutOf(const CKyUIGroupBox& box)
{
    return qobject_cast<QBoxLayout*>(WidgetOf(box)->layout());
}

HandleView* NewLabelView(const QString& text)
{
    auto* label = new QLabel(text);
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return new HandleView(label);
}
} // namespace

TEST(CKyUIGroupBoxTest, OnlyOrientationOneGivesAColumn)
{
    CKyUIGroupBox row(CKyUIGroupBox::Horizontal, false);
    CKyUIGroupBox column(CKyUIGroupBox::Vertical, false);
    CKyUIGroupBox other(static_cast<CKyUIGroupBox::Orientation>(7), false);

    EXPECT_STREQ(WidgetOf(row)->metaObject()->className(), "CKyUIGroupBoxFrontend");
    EXPECT_EQ(WidgetOf(row)->styleSheet(), "QGroupBox { }");
    EXPECT_EQ(LayoutOf(row)->direction(), QBoxLayout::LeftToRight);
    EXPECT_EQ(LayoutOf(column)->direction(), QBoxLayout::TopToBottom);
    EXPECT_EQ(LayoutOf(other)->direction(), QBoxLayout::LeftToRight);
}

TEST(CKyUIGroupBoxTest, MarginsSpacingAndTitle)
{
    CKyUIGroupBox box(CKyUIGroupBox::Vertical, true);
    EXPECT_EQ(LayoutOf(box)->contentsMargins(), QMargins(5, 5, 5, 5));
    box.UseMargin(false);
    EXPECT_EQ(LayoutOf(box)->contentsMargins(), QMargins(0, 0, 0, 0));
    box.setContentsMargins(1, 2, 3, 4);
    EXPECT_EQ(LayoutOf(box)->contentsMargins(), QMargins(1, 2, 3, 4));
    box.setSpacing(7);
    EXPECT_EQ(LayoutOf(box)->spacing(), 7);
    CKyUIGroupBox unmargined(CKyUIGroupBox::Horizontal, false);
    EXPECT_EQ(LayoutOf(unmargined)->contentsMargins(), QMargins(0, 0, 0, 0));

    box.setTitle("Units");
    EXPECT_EQ(WidgetOf(box)->title(), "Units");
}

TEST(CKyUIGroupBoxTest, ChildrenGetTruncatedStretchAndMinimumHeightPolicy)
{
    CKyUIGroupBox box(CKyUIGroupBox::Horizontal, false);
    HandleView* first = NewLabelView("first");
    HandleView* second = NewLabelView("second");
    HandleView* front = NewLabelView("front");
    auto* group = new CKyUIRadioGroup;

    box.addView(first, 2.7f);
    box.addView(second, 0.9f);
    box.addView(group);
    box.insertView(front, 0, 1.5f);

    QBoxLayout* layout = LayoutOf(box);
    ASSERT_EQ(layout->count(), 3);
    EXPECT_EQ(layout->itemAt(0)->widget(), front->getHandle());
    EXPECT_EQ(layout->stretch(0), 1);
    EXPECT_EQ(layout->stretch(1), 2);
    EXPECT_EQ(layout->stretch(2), 0);
    EXPECT_EQ(layout->itemAt(1)->alignment(), Qt::Alignment());
    EXPECT_EQ(qobject_cast<QWidget*>(first->getHandle())->sizePolicy(),
              QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum));
    // The radio group is a child in the tree, not in the toolkit layout.
    EXPECT_EQ(group->parent(), &box);

    // Removal is not overridden: the widget stays in the row.
    box.removeView(second);
    EXPECT_EQ(layout->indexOf(qobject_cast<QWidget*>(second->getHandle())), 2);
    delete second;
}

TEST(CKyUIGroupBoxTest, CollapsingIsStoredAndAnnouncedButHidesNothing)
{
    Recorder log;
    CKyUIVerticalLayout parent;
    auto* box = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
    parent.addView(box);
    HandleView* child = NewLabelView("inside");
    box->addView(child);
    log.on(box->onCollapsedStateChanged(), "collapsed");
    auto* top = qobject_cast<QWidget*>(parent.getHandle());
    top->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(top));

    box->setCollapsed(false);
    EXPECT_TRUE(log.lines.isEmpty());
    box->setCollapsed(true);
    box->setCollapsed(true);
    EXPECT_EQ(log.lines, QStringList({"collapsed:true"}));
    EXPECT_TRUE(box->isCollapsed());
    EXPECT_TRUE(WidgetOf(*box)->isVisible());
    EXPECT_TRUE(qobject_cast<QWidget*>(child->getHandle())->isVisible());

    box->blockSignals(true);
    box->setCollapsed(false);
    EXPECT_FALSE(box->isCollapsed());
    EXPECT_EQ(log.lines, QStringList({"collapsed:true"}));
}

TEST(CKyUIGroupBoxTest, OutlineIsPaintedJustInsideTheRightAndBottomEdges)
{
    CKyUIGroupBox box(CKyUIGroupBox::Vertical, true);
    QGroupBox* widget = WidgetOf(box);
    // A light background, so that black can only come from the outline.
    widget->setStyleSheet("QGroupBox { background-color: white; border: none; }");
    widget->resize(120, 80);

    const QImage image = widget->grab().toImage();
    ASSERT_EQ(image.size(), QSize(120, 80));
    const QRgb black = qRgb(0, 0, 0);
    for (int y : {1, 40, 78}) {
        EXPECT_EQ(image.pixel(119, y) & 0xffffff, black & 0xffffff) << "right edge at y " << y;
        EXPECT_EQ(image.pixel(0, y) & 0xffffff, black & 0xffffff) << "left edge at y " << y;
    }
    for (int x : {1, 60, 118}) {
        EXPECT_EQ(image.pixel(x, 79) & 0xffffff, black & 0xffffff) << "bottom edge at x " << x;
        EXPECT_EQ(image.pixel(x, 0) & 0xffffff, black & 0xffffff) << "top edge at x " << x;
    }
    EXPECT_NE(image.pixel(118, 40) & 0xffffff, black & 0xffffff);
    EXPECT_NE(image.pixel(60, 78) & 0xffffff, black & 0xffffff);
    EXPECT_NE(image.pixel(60, 40) & 0xffffff, black & 0xffffff);
}
