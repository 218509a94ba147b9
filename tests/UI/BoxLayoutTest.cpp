#include "UI/CKyUIGroupBox.h"
#include "UI/CKyUIHorizontalLayout.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/CKyUIBoxLayoutImpl.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>

#include <memory>

const auto BoxOf = [](const CKyUIBaseView& layout) { return qobject_cast<QGroupBox*>(layout.getHandle()); };
const auto LayoutOf = [](const CKyUIBaseView& layout) {
    return qobject_cast<QBoxLayout*>(BoxOf(layout)->layout());
};
const auto WidgetOf = [](const CKyUIBaseView* view) { return qobject_cast<QWidget*>(view->getHandle()); };
const auto NewLabelView = [] {
    auto* label = new QLabel("child");
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return new HandleView(label);
};

// Borderless boxes without margins; the title is kept but not shown.
TEST(BoxLayoutTest, CreationGivesBorderlessBoxesWithoutMargins)
{
    CKyUIHorizontalLayout row;
    CKyUIVerticalLayout column;
    EXPECT_EQ(BoxOf(row)->styleSheet(), "QGroupBox{ border: none; padding: 0px; }");
    EXPECT_EQ(BoxOf(column)->styleSheet(), "QGroupBox { border: none; padding: 0px; }");
    EXPECT_EQ(LayoutOf(row)->direction(), QBoxLayout::LeftToRight);
    EXPECT_EQ(LayoutOf(column)->direction(), QBoxLayout::TopToBottom);
    EXPECT_EQ(LayoutOf(row)->contentsMargins(), QMargins(0, 0, 0, 0));
    row.UseMargin(true);
    EXPECT_EQ(LayoutOf(row)->contentsMargins(), QMargins(5, 5, 5, 5));
    row.UseMargin(false);
    EXPECT_EQ(LayoutOf(row)->contentsMargins(), QMargins(0, 0, 0, 0));
    column.setContentsMargins(1, 2, 3, 4);
    EXPECT_EQ(LayoutOf(column)->contentsMargins(), QMargins(1, 2, 3, 4));
    column.setSpacing(9);
    EXPECT_EQ(LayoutOf(column)->spacing(), 9);
    row.setTitle("Options");
    EXPECT_EQ(static_cast<CKyUIBoxLayoutImpl*>(row.impl())->Title(), "Options");
    EXPECT_TRUE(BoxOf(row)->title().isEmpty());
}

// Stretch is truncated and the policy fixed per direction. Removal leaves
// the widget in the row but not in the column; a radio group joins the tree
// but not the toolkit layout, and its removal must not take the stretch.
TEST(BoxLayoutTest, StretchPolicyAndRemovalPerDirection)
{
    CKyUIHorizontalLayout row;
    CKyUIVerticalLayout column;
    std::unique_ptr<HandleView> inRow(NewLabelView());
    std::unique_ptr<HandleView> inColumn(NewLabelView());
    HandleView* small = NewLabelView();
    row.addView(inRow.get(), 2.7f);
    column.addView(inColumn.get(), 1.9f);
    column.addView(small, 0.9f);
    EXPECT_EQ(LayoutOf(row)->stretch(0), 2);
    EXPECT_EQ(LayoutOf(column)->stretch(0), 1);
    EXPECT_EQ(LayoutOf(column)->stretch(1), 0);
    EXPECT_EQ(WidgetOf(inRow.get())->sizePolicy(),
              QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    EXPECT_EQ(WidgetOf(inColumn.get())->sizePolicy(),
              QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum));
    EXPECT_EQ(LayoutOf(column)->indexOf(WidgetOf(small)), 1);
    EXPECT_EQ(LayoutOf(column)->itemAt(1)->alignment(), Qt::Alignment());

    row.removeView(inRow.get());
    column.removeView(inColumn.get());
    EXPECT_EQ(inRow->parent(), nullptr);
    EXPECT_EQ(inColumn->parent(), nullptr);
    EXPECT_EQ(LayoutOf(row)->indexOf(WidgetOf(inRow.get())), 0);
    EXPECT_EQ(LayoutOf(column)->indexOf(WidgetOf(inColumn.get())), -1);
    // The widget keeps the box as its toolkit parent until it goes elsewhere.
    EXPECT_EQ(WidgetOf(inColumn.get())->parentWidget(), BoxOf(column));

    QButtonGroup buttons;
    HandleView group(&buttons);
    LayoutOf(column)->addStretch(1);
    column.addView(&group, 1);
    EXPECT_EQ(column.children(), QList<CKyUIObject*>({small, &group}));
    EXPECT_EQ(LayoutOf(column)->count(), 2);
    column.removeView(&group);
    EXPECT_EQ(LayoutOf(column)->count(), 2);
}

// A position outside the layout is its end; group boxes place alike.
TEST(BoxLayoutTest, InsertPlacesAtTheIndexOrAtTheEnd)
{
    for (int kind = 0; kind < 4; ++kind) {
        std::unique_ptr<CKyUIBaseView> layout;
        if (kind == 0)
            layout.reset(new CKyUIHorizontalLayout);
        else if (kind == 1)
            layout.reset(new CKyUIVerticalLayout);
        else
            layout.reset(
                new CKyUIGroupBox(kind == 2 ? CKyUIGroupBox::Horizontal : CKyUIGroupBox::Vertical, false));
        HandleView* last = NewLabelView();
        HandleView* first = NewLabelView();
        layout->addView(last, 0);
        layout->insertView(first, 0, 3);
        std::vector<HandleView*> order{first, last};
        for (int index : {-1, 1000, INT_MAX, INT_MIN}) {
            order.push_back(NewLabelView());
            layout->insertView(order.back(), index);
        }
        ASSERT_EQ(LayoutOf(*layout)->count(), int(order.size()));
        for (int i = 0; i < int(order.size()); ++i)
            EXPECT_EQ(LayoutOf(*layout)->itemAt(i)->widget(), WidgetOf(order[i])) << kind << " " << i;
        EXPECT_EQ(LayoutOf(*layout)->stretch(0), 3);
    }
}
