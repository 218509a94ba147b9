#include "UI/CKyUIBaseView.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIVerticalLayout.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

// The view's own record of size and visibility is not the widget's; what it
// forwards reaches the widget.
TEST(CKyUIBaseViewTest, RecordStartsEmptyAndIsNotTheWidgetsGeometry)
{
    auto* edit = new QLineEdit;
    HandleView view(edit);
    const auto size = [&view] { return QSize(view.width(), view.height()); };
    EXPECT_FALSE(view.isVisible());
    EXPECT_TRUE(view.isEnabled());
    EXPECT_FALSE(view.hasFocus());
    EXPECT_EQ(size(), QSize(0, 0));

    const QSize before = edit->size();
    view.resize(200, 100);
    EXPECT_EQ(size(), QSize(200, 100));
    view.setPreferableSize(50, 20);
    EXPECT_EQ(size(), QSize(50, 20));
    EXPECT_EQ(edit->size(), before);

    // The widget shown by other means is not reflected either.
    edit->show();
    EXPECT_FALSE(view.isVisible());
    view.setVisible(true);
    EXPECT_TRUE(view.isVisible());
    view.setVisible(false);
    EXPECT_TRUE(edit->isHidden());

    view.setDisabled(true);
    EXPECT_FALSE(view.isEnabled());
    EXPECT_FALSE(edit->isEnabled());
    view.setEnabled(true);
    EXPECT_TRUE(edit->isEnabled());
    view.setMinimumWidth(10);
    view.setMinimumHeight(11);
    view.setMaximumWidth(300);
    view.setMaximumHeight(301);
    EXPECT_EQ(edit->minimumSize(), QSize(10, 11));
    EXPECT_EQ(edit->maximumSize(), QSize(300, 301));
}

// addView takes a view once and only one without a parent; insertView takes
// it over; removeView gives back only its own; null, itself and its
// ancestors are refused.
TEST(CKyUIBaseViewTest, AddIsOnceInsertMovesRemoveOnlyOwnChildren)
{
    CKyUIVerticalLayout first;
    CKyUIVerticalLayout second;
    auto* child = new CKyUIVerticalLayout;
    first.addView(child, 1);
    first.addView(child, 1);
    EXPECT_EQ(first.children().size(), 1);
    second.addView(child, 1);
    EXPECT_EQ(child->parent(), &first);
    second.removeView(child);
    EXPECT_EQ(child->parent(), &first);
    second.insertView(child, 0, 1);
    EXPECT_EQ(child->parent(), &second);
    EXPECT_TRUE(first.children().isEmpty());
    EXPECT_EQ(second.children(), QList<CKyUIObject*>({child}));
    second.removeView(child);
    EXPECT_EQ(child->parent(), nullptr);
    EXPECT_TRUE(second.children().isEmpty());
    delete child;

    first.addView(nullptr, 1);
    first.insertView(nullptr, 3, 1);
    first.removeView(nullptr);
    first.addView(&first, 1);
    first.insertView(&first, 0, 1);
    first.setTabOrder(nullptr, &first);
    EXPECT_TRUE(first.children().isEmpty());
    EXPECT_EQ(first.parent(), nullptr);
    auto* row = new CKyUIVerticalLayout;
    first.addView(row);
    row->addView(&first);
    row->insertView(&first, 0);
    EXPECT_EQ(first.parent(), nullptr);
    EXPECT_TRUE(row->children().isEmpty());
}

// A removed view is given back, but its widget stays with the former
// container and goes with it; the view still answers and moves on.
TEST(CKyUIBaseViewTest, AViewWhoseWidgetWentWithItsFormerContainerIsQuiet)
{
    auto* column = new CKyUIVerticalLayout;
    std::unique_ptr<CKyUILabel> label(new CKyUILabel);
    column->addView(label.get());
    column->removeView(label.get());
    delete column;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(label->getHandle(), nullptr);
    label->setText("kept");
    label->setBorderWidth(2.0f);
    label->setVisible(true);
    EXPECT_EQ(label->text(), "kept");
    CKyUIVerticalLayout other;
    other.insertView(label.release(), 0);
    EXPECT_EQ(other.children().size(), 1);
}

TEST(CKyUIBaseViewTest, AViewWrappingAWidgetCanTakeChildrenTheFactoryCreatesNoWidget)
{
    QWidget host;
    CKyUIBaseView wrapper;
    wrapper.setHandle(&host);
    auto* child = new CKyUIVerticalLayout;

    wrapper.addView(child, 0);

    EXPECT_EQ(child->parent(), &wrapper);
    EXPECT_NE(wrapper.impl(), nullptr);
    EXPECT_TRUE(wrapper.isEnabled());
    wrapper.setHandle(nullptr);

    // A named class has no widget factory behind it: the view is left without one.
    struct NamedImpl : CKyUIBaseViewImpl
    {
        using CKyUIBaseViewImpl::CKyUIBaseViewImpl;
        QString GetFrontendClassName() override { return QStringLiteral("QWidget"); }
    };
    QWidget earlier;
    HandleView view(&earlier);
    NamedImpl(&view).CreateFrontendControl();
    EXPECT_EQ(view.getHandle(), nullptr);
}

TEST(CKyUIBaseViewTest, DestructionReleasesOnlyWidgetHandlesAndOnlyLater)
{
    QPointer<QLabel> label = new QLabel;
    QPointer<QObject> plain = new QObject;
    {
        HandleView widgetView(label);
        HandleView objectView(plain);
    }
    ASSERT_FALSE(label.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(label.isNull());
    ASSERT_FALSE(plain.isNull());
    delete plain;
}

TEST(CKyUIBaseViewTest, WithoutImplementationEverythingIsQuiet)
{
    CKyUIBaseView bare;
    bare.setEnabled(false);
    bare.resize(5, 5);
    bare.setVisible(true);
    bare.setBorderWidth(2);
    bare.setPalette(QPalette(Qt::red));
    bare.update();
    EXPECT_EQ(bare.width(), -1);
    EXPECT_EQ(bare.height(), -1);
    EXPECT_FALSE(bare.isVisible());
    EXPECT_FALSE(bare.isEnabled());
    EXPECT_EQ(bare.backgroundRole(), 9);
}

// Tab order links the widgets; every combination of the toolkit's focus
// flags reaches the widget, other numbers change nothing.
TEST(CKyUIBaseViewTest, TabOrderAndFocusPolicyReachTheWidgets)
{
    QWidget window;
    auto* first = new QLineEdit(&window);
    new QLineEdit(&window);
    auto* third = new QLineEdit(&window);
    HandleView firstView(first);
    HandleView thirdView(third);
    firstView.setTabOrder(&firstView, &thirdView);
    EXPECT_EQ(first->nextInFocusChain(), third);

    for (int policy = 0; policy <= 15; ++policy) {
        firstView.setFocusPolicy(policy);
        EXPECT_EQ(int(first->focusPolicy()), policy);
    }
    firstView.setFocusPolicy(Qt::TabFocus | Qt::ClickFocus);
    for (int policy : {-1, 16, 17, INT_MAX, INT_MIN})
        firstView.setFocusPolicy(policy);
    EXPECT_EQ(int(first->focusPolicy()), 3);
    firstView.setHandle(nullptr);
    thirdView.setHandle(nullptr);
}
