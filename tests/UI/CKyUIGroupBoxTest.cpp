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

const auto WidgetOf = [](const CKyUIGroupBox& box) { return qobject_cast<QGroupBox*>(box.getHandle()); };
const auto LayoutOf = [](const CKyUIGroupBox& box) {
    return qobject_cast<QBoxLayout*>(WidgetOf(box)->layout());
};
const auto NewLabelView = [] {
    auto* label = new QLabel("child");
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return new HandleView(label);
};

// Only orientation one gives a column. Children get a truncated stretch and a
// minimum height policy; the radio group is a child in the tree, not in the
// toolkit layout. Removal is not overridden: the widget stays in the row.
TEST(CKyUIGroupBoxTest, OrientationMarginsTitleAndChildren)
{
    CKyUIGroupBox row(CKyUIGroupBox::Horizontal, false);
    CKyUIGroupBox column(CKyUIGroupBox::Vertical, true);
    CKyUIGroupBox other(static_cast<CKyUIGroupBox::Orientation>(7), false);
    EXPECT_STREQ(WidgetOf(row)->metaObject()->className(), "CKyUIGroupBoxFrontend");
    EXPECT_EQ(WidgetOf(row)->styleSheet(), "QGroupBox { }");
    EXPECT_EQ(LayoutOf(row)->direction(), QBoxLayout::LeftToRight);
    EXPECT_EQ(LayoutOf(column)->direction(), QBoxLayout::TopToBottom);
    EXPECT_EQ(LayoutOf(other)->direction(), QBoxLayout::LeftToRight);
    EXPECT_EQ(LayoutOf(row)->contentsMargins(), QMargins(0, 0, 0, 0));
    EXPECT_EQ(LayoutOf(column)->contentsMargins(), QMargins(5, 5, 5, 5));
    column.UseMargin(false);
    EXPECT_EQ(LayoutOf(column)->contentsMargins(), QMargins(0, 0, 0, 0));
    column.setContentsMargins(1, 2, 3, 4);
    EXPECT_EQ(LayoutOf(column)->contentsMargins(), QMargins(1, 2, 3, 4));
    column.setSpacing(7);
    EXPECT_EQ(LayoutOf(column)->spacing(), 7);
    column.setTitle("Units");
    EXPECT_EQ(WidgetOf(column)->title(), "Units");

    HandleView* first = NewLabelView();
    HandleView* second = NewLabelView();
    HandleView* front = NewLabelView();
    auto* group = new CKyUIRadioGroup;
    row.addView(first, 2.7f);
    row.addView(second, 0.9f);
    row.addView(group);
    row.insertView(front, 0, 1.5f);
    QBoxLayout* layout = LayoutOf(row);
    ASSERT_EQ(layout->count(), 3);
    EXPECT_EQ(layout->itemAt(0)->widget(), front->getHandle());
    EXPECT_EQ(layout->stretch(0), 1);
    EXPECT_EQ(layout->stretch(1), 2);
    EXPECT_EQ(layout->stretch(2), 0);
    EXPECT_EQ(layout->itemAt(1)->alignment(), Qt::Alignment());
    EXPECT_EQ(qobject_cast<QWidget*>(first->getHandle())->sizePolicy(),
              QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum));
    EXPECT_EQ(group->parent(), &row);
    row.removeView(second);
    EXPECT_EQ(layout->indexOf(qobject_cast<QWidget*>(second->getHandle())), 2);
    delete second;
}

TEST(CKyUIGroupBoxTest, CollapsingIsStoredAndAnnouncedButHidesNothing)
{
    Recorder log;
    CKyUIVerticalLayout parent;
    auto* box = new CKyUIGroupBox(CKyUIGroupBox::Vertical, true);
    parent.addView(box);
    HandleView* child = NewLabelView();
    box->addView(child);
    log.on(box->onCollapsedStateChanged(), "collapsed");
    auto* top = qobject_cast<QWidget*>(parent.getHandle());
    top->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(top));
    box->setCollapsed(false);
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

// Black can only come from the outline on a white background.
TEST(CKyUIGroupBoxTest, OutlineIsPaintedJustInsideTheRightAndBottomEdges)
{
    CKyUIGroupBox box(CKyUIGroupBox::Vertical, true);
    WidgetOf(box)->setStyleSheet("QGroupBox { background-color: white; border: none; }");
    WidgetOf(box)->resize(120, 80);
    const QImage image = WidgetOf(box)->grab().toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(image.size(), QSize(120, 80));
    const auto black = [&image](int x, int y) { return image.pixel(x, y) == qRgb(0, 0, 0); };
    for (int y : {1, 40, 78})
        EXPECT_TRUE(black(119, y) && black(0, y)) << "left or right edge at y " << y;
    for (int x : {1, 60, 118})
        EXPECT_TRUE(black(x, 79) && black(x, 0)) << "top or bottom edge at x " << x;
    EXPECT_FALSE(black(118, 40) || black(60, 78) || black(60, 40));
}
