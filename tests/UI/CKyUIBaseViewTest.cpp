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

namespace
{
void RunDeferredDeletions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
} // namespace

TEST(CKyUIBaseViewTest, RecordStartsEmptyAndIsNotTheWidgetsGeometry)
{
    auto* label = new QLabel;
    HandleView view(label);
    EXPECT_FALSE(view.isVisible());
    EXPECT_TRUE(view.isEnabled());
    EXPECT_FALSE(view.hasFocus());
    EXPECT_EQ(view.width(), 0);
    EXPECT_EQ(view.height(), 0);

    const QSize before = label->size();
    view.resize(200, 100);
    EXPECT_EQ(view.width(), 200);
    EXPECT_EQ(view.height(), 100);
    EXPECT_EQ(label->size(), before);

    view.setPreferableSize(50, 20);
    EXPECT_EQ(view.width(), 50);
    EXPECT_EQ(view.height(), 20);
    EXPECT_EQ(label->size(), before);

    // The widget shown by other means is not reflected either.
    label->show();
    EXPECT_FALSE(view.isVisible());
    view.setVisible(true);
    EXPECT_TRUE(view.isVisible());
    view.setVisible(false);
    EXPECT_TRUE(label->isHidden());
}

TEST(CKyUIBaseViewTest, EnablingReachesTheWidget)
{
    auto* edit = new QLineEdit;
    HandleView view(edit);
    view.setDisabled(true);
    EXPECT_FALSE(view.isEnabled());
    EXPECT_FALSE(edit->isEnabled());
    view.setEnabled(true);
    EXPECT_TRUE(edit->isEnabled());
}

TEST(CKyUIBaseViewTest, SizeLimitsReachTheWidget)
{
    auto* label = new QLabel;
    HandleView view(label);
    view.setMinimumWidth(10);
    view.setMinimumHeight(11);
    view.setMaximumWidth(300);
    view.setMaximumHeight(301);
    EXPECT_EQ(label->minimumSize(), QSize(10, 11));
    EXPECT_EQ(label->maximumSize(), QSize(300, 301));
    view.setFocusPolicy(Qt::ClickFocus);
    EXPECT_EQ(label->focusPolicy(), Qt::ClickFocus);
}

TEST(CKyUIBaseViewTest, AddIsOnceInsertMovesRemoveOnlyOwnChildren)
{
    CKyUIVerticalLayout first;
    CKyUIVerticalLayout second;
    auto* child = new CKyUIVerticalLayout;

    first.addView(child, 1);
    first.addView(child, 1);
    EXPECT_EQ(first.children().size(), 1);

    // addView ignores a view that has a parent ...
    second.addView(child, 1);
    EXPECT_EQ(child->parent(), &first);
    // ... removeView one that belongs to someone else ...
    second.removeView(child);
    EXPECT_EQ(child->parent(), &first);
    // ... but insertView takes it over.
    second.insertView(child, 0, 1);
    EXPECT_EQ(child->parent(), &second);
    EXPECT_TRUE(first.children().isEmpty());
    EXPECT_EQ(second.children(), QList<CKyUIObject*>({child}));

    second.removeView(child);
    EXPECT_EQ(child->parent(), nullptr);
    EXPECT_TRUE(second.children().isEmpty());
    delete child;
}

TEST(CKyUIBaseViewTest, NullAndSelfAreIgnored)
{
    CKyUIVerticalLayout layout;
    layout.addView(nullptr, 1);
    layout.insertView(nullptr, 3, 1);
    layout.removeView(nullptr);
    layout.addView(&layout, 1);
    layout.insertView(&layout, 0, 1);
    layout.setTabOrder(nullptr, &layout);
    EXPECT_TRUE(layout.children().isEmpty());
    EXPECT_EQ(layout.parent(), nullptr);
    // Nor can an ancestor become a child of its descendant.
    auto* row = new CKyUIVerticalLayout;
    layout.addView(row);
    row->addView(&layout);
    row->insertView(&layout, 0);
    EXPECT_EQ(layout.parent(), nullptr);
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
    RunDeferredDeletions();
    EXPECT_EQ(label->getHandle(), nullptr);
    label->setText("kept");
    label->setBorderWidth(2.0f);
    label->setVisible(true);
    EXPECT_EQ(label->text(), "kept");
    CKyUIVerticalLayout other;
    other.insertView(label.release(), 0);
    EXPECT_EQ(other.children().size(), 1);
}

TEST(CKyUIBaseViewTest, AViewWrappingAWidgetCanTakeChildren)
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
    RunDeferredDeletions();
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
    EXPECT_EQ(bare.backgroundRole(), 9);
}

TEST(CKyUIBaseViewTest, TabOrderLinksTheWidgets)
{
    QWidget window;
    auto* first = new QLineEdit(&window);
    auto* second = new QLineEdit(&window);
    auto* third = new QLineEdit(&window);
    HandleView firstView(first);
    HandleView thirdView(third);

    firstView.setTabOrder(&firstView, &thirdView);

    EXPECT_EQ(first->nextInFocusChain(), third);
    EXPECT_NE(first->nextInFocusChain(), second);
    firstView.setHandle(nullptr);
    thirdView.setHandle(nullptr);
}

// Every combination of the toolkit's focus flags reaches the widget; other
// numbers change nothing.
TEST(CKyUIBaseViewTest, FocusPolicyPassesEveryCombinationOfTheFlags)
{
    CKyUILabel view;
    auto* widget = qobject_cast<QWidget*>(view.getHandle());
    for (int policy = 0; policy <= 15; ++policy) {
        view.setFocusPolicy(policy);
        EXPECT_EQ(int(widget->focusPolicy()), policy);
    }
    view.setFocusPolicy(Qt::TabFocus | Qt::ClickFocus);
    for (int policy : {-1, 16, 17, INT_MAX, INT_MIN})
        view.setFocusPolicy(policy);
    EXPECT_EQ(int(widget->focusPolicy()), 3);
}

// A named class has no widget factory behind it: the view is left without one.
TEST(CKyUIBaseViewTest, TheFactoryCreatesNoWidget)
{
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
