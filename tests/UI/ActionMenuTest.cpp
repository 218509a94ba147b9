#include "UI/CKyUIAction.h"
#include "UI/CKyUIMenu.h"
#include "UI/Impl/CKyUIActionImpl.h"
#include "UI/Impl/CKyUIMenuImpl.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

#include <vector>

namespace
{
QAction* ActionOf(const CKyUIAction& action)
{
    return qobject_cast<QAction*>(action.getHandle());
}

QMenu* MenuOf(const CKyUIMenu& menu)
{
    return qobject_cast<QMenu*>(menu.getHandle());
}

// Tells when it is deleted.
class WatchedAction : public CKyUIAction
{
public:
    explicit WatchedAction(bool* gone)
        : m_gone(gone)
    {}
    ~WatchedAction() override { *m_gone = true; }

private:
    bool* m_gone;
};

CKyUIActionImpl* ImplOf(CKyUIAction& action)
{
    return static_cast<CKyUIActionImpl*>(action.impl());
}

// A shown window with a button near its top left, the view a menu opens under.
class MenuPopupTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        window.setGeometry(100, 100, 400, 300);
        button = new QPushButton("Options", &window);
        button->setGeometry(150, 20, 200, 30);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        view.reset(new HandleView(button));
    }

    void TearDown() override
    {
        if (QMenu* shown = MenuOf(menu))
            shown->hide();
    }

    QWidget window;
    QPushButton* button = nullptr;
    std::unique_ptr<HandleView> view;
    CKyUIMenu menu;
};
} // namespace

TEST(ActionTest, SettersStoreAndReachTheToolkitExceptEnabling)
{
    CKyUIAction action;
    QAction* toolkit = ActionOf(action);
    ASSERT_NE(toolkit, nullptr);
    EXPECT_EQ(toolkit->parent(), nullptr);
    EXPECT_EQ(action.impl()->GetFrontendClassName(), "QAction");
    EXPECT_TRUE(ImplOf(action)->IsVisible());
    action.setText("Snap to grid");
    EXPECT_EQ(action.text(), "Snap to grid");
    EXPECT_EQ(toolkit->text(), "Snap to grid");

    action.setResourceIcon(":/commonui/resources/icons/chevron_up.png");
    EXPECT_TRUE(toolkit->icon().isNull());
    EXPECT_TRUE(ImplOf(action)->Icon().isNull());

    action.setCheckable(true);
    action.setChecked(true);
    EXPECT_TRUE(toolkit->isCheckable());
    EXPECT_TRUE(toolkit->isChecked());
    EXPECT_TRUE(action.isChecked());

    action.setEnabled(false);
    EXPECT_FALSE(ImplOf(action)->IsEnabled());
    EXPECT_TRUE(toolkit->isEnabled());

    action.setVisible(false);
    EXPECT_FALSE(toolkit->isVisible());
}

TEST(ActionTest, TriggeredCarriesTheToolkitStateUnlessBlocked)
{
    CKyUIAction action;
    Recorder log;
    log.on(action.triggered(), "triggered");
    ActionOf(action)->trigger();
    action.setCheckable(true);
    ActionOf(action)->trigger();
    ActionOf(action)->trigger();
    action.blockSignals(true);
    ActionOf(action)->trigger();
    EXPECT_EQ(log.lines, QStringList({"triggered:false", "triggered:true", "triggered:false"}));
}

TEST(ActionTest, ToolkitActionOutlivesItsActionQuietly)
{
    auto* action = new CKyUIAction;
    Recorder log;
    log.on(action->triggered(), "triggered");
    QPointer<QAction> toolkit(ActionOf(*action));
    delete action;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Not a widget, so not released; triggering it reaches nobody.
    ASSERT_FALSE(toolkit.isNull());
    toolkit->trigger();
    EXPECT_TRUE(log.lines.isEmpty());
    delete toolkit.data();
}

TEST_F(MenuPopupTest, CheckableActionTriggeredFromThePoppedUpMenu)
{
    auto* action = new CKyUIAction;
    action->setText("Snap to grid");
    action->setCheckable(true);
    action->setChecked(false);
    // Stored only: the entry stays enabled on screen.
    action->setEnabled(false);
    Recorder log;
    log.on(action->triggered(), "triggered");
    menu.addAction(new CKyUIAction);
    menu.addSeparator();
    menu.addAction(action);

    QMenu* shown = MenuOf(menu);
    menu.popup(view.get());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(shown));
    const QPoint belowRightEdge(button->width() - shown->sizeHint().width(), button->height());
    EXPECT_EQ(shown->pos(), button->mapToGlobal(belowRightEdge));

    QAction* entry = ActionOf(*action);
    EXPECT_TRUE(entry->isEnabled());
    QTest::mouseClick(shown, Qt::LeftButton, Qt::NoModifier, shown->actionGeometry(entry).center());
    EXPECT_TRUE(shown->isHidden());
    EXPECT_EQ(log.lines, QStringList{"triggered:true"});
    // The user's toggle is the toolkit's; the stored flag stays.
    EXPECT_TRUE(entry->isChecked());
    EXPECT_FALSE(action->isChecked());
}

TEST_F(MenuPopupTest, PopupNeedsAWidgetUnderIt)
{
    HandleView withoutWidget(new QObject(&window));
    menu.popup(&withoutWidget);
    menu.popup(nullptr);
    QCoreApplication::processEvents();
    EXPECT_FALSE(MenuOf(menu)->isVisible());
}

TEST(MenuTest, AddedActionsBelongToTheMenuAndSurviveClear)
{
    CKyUIMenu menu;
    QMenu* toolkit = MenuOf(menu);
    ASSERT_NE(toolkit, nullptr);
    EXPECT_EQ(toolkit->styleSheet(), "QMenu { }");
    EXPECT_EQ(menu.impl()->GetFrontendClassName(), "QMenu");

    auto* first = new CKyUIAction;
    auto* second = new CKyUIAction;
    menu.addAction(first);
    menu.addSeparator();
    menu.addAction(second);
    menu.addAction(nullptr);
    EXPECT_EQ(menu.children(), QList<CKyUIObject*>({first, second}));
    ASSERT_EQ(toolkit->actions().size(), 3);
    EXPECT_TRUE(toolkit->actions().at(1)->isSeparator());
    EXPECT_TRUE(static_cast<CKyUIMenuImpl*>(menu.impl())->Actions().empty());

    menu.clear();
    EXPECT_TRUE(toolkit->actions().isEmpty());
    EXPECT_EQ(menu.children(), QList<CKyUIObject*>({first, second}));
    EXPECT_NE(ActionOf(*first), nullptr);

    // Again, at the end of both lists.
    menu.addAction(first);
    EXPECT_EQ(toolkit->actions(), QList<QAction*>({ActionOf(*first)}));
    EXPECT_EQ(menu.children(), QList<CKyUIObject*>({second, first}));
}

TEST(MenuTest, DeletingTheMenuDeletesItsActionsAndReleasesItsWidgetLater)
{
    auto* menu = new CKyUIMenu;
    bool actionGone = false;
    auto* action = new WatchedAction(&actionGone);
    menu->addAction(action);
    QPointer<QMenu> toolkitMenu(MenuOf(*menu));
    QPointer<QAction> toolkitAction(ActionOf(*action));

    delete menu;
    EXPECT_TRUE(actionGone);
    EXPECT_FALSE(toolkitMenu.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(toolkitMenu.isNull());
    ASSERT_FALSE(toolkitAction.isNull());
    delete toolkitAction.data();
}
