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

namespace
{
// Tells when it is deleted.
struct WatchedAction : CKyUIAction
{
    bool* gone = nullptr;
    ~WatchedAction() override { *gone = true; }
};

} // namespace

TEST(ActionTest, SettersStoreAndReachTheToolkitExceptEnablingTriggeredCarriesTheState)
{
    CKyUIAction action;
    QAction* toolkit = HandleAs<QAction>(action);
    auto* impl = static_cast<CKyUIActionImpl*>(action.impl());
    ASSERT_NE(toolkit, nullptr);
    EXPECT_EQ(toolkit->parent(), nullptr);
    EXPECT_EQ(action.impl()->GetFrontendClassName(), "QAction");
    EXPECT_TRUE(impl->IsVisible());

    // triggered carries the toolkit's checked state, unless blocked.
    Recorder log;
    log.on(action.triggered(), "triggered");
    toolkit->trigger();
    action.setCheckable(true);
    toolkit->trigger();
    toolkit->trigger();
    action.blockSignals(true);
    toolkit->trigger();
    EXPECT_EQ(log.lines, QStringList({"triggered:false", "triggered:true", "triggered:false"}));

    action.setText("Snap to grid");
    EXPECT_EQ(toolkit->text(), "Snap to grid");

    action.setResourceIcon(":/commonui/resources/icons/chevron_up.png");
    EXPECT_TRUE(toolkit->icon().isNull());
    EXPECT_TRUE(impl->Icon().isNull());

    // The blocked trigger left the toolkit checked: each change must come from the action.
    action.setChecked(false);
    EXPECT_FALSE(toolkit->isChecked());
    action.setChecked(true);
    EXPECT_TRUE(toolkit->isCheckable());
    EXPECT_TRUE(toolkit->isChecked());
    EXPECT_TRUE(action.isChecked());

    action.setEnabled(false);
    EXPECT_FALSE(impl->IsEnabled());
    EXPECT_TRUE(toolkit->isEnabled());

    action.setVisible(false);
    EXPECT_FALSE(toolkit->isVisible());
}

// The menu opens under a button near the window's top left; a view without
// a widget, or none, opens nothing.
TEST(MenuTest, CheckableActionTriggeredFromThePoppedUpMenu)
{
    QWidget window;
    window.setGeometry(100, 100, 400, 300);
    auto* button = new QPushButton("Options", &window);
    button->setGeometry(150, 20, 200, 30);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    HandleView view(button);
    CKyUIMenu menu;
    QMenu* shown = HandleAs<QMenu>(menu);
    HandleView withoutWidget(new QObject(&window));
    menu.popup(&withoutWidget);
    menu.popup(nullptr);
    QCoreApplication::processEvents();
    EXPECT_FALSE(shown->isVisible());

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

    menu.popup(&view);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(shown));
    const QPoint belowRightEdge(button->width() - shown->sizeHint().width(), button->height());
    EXPECT_EQ(shown->pos(), button->mapToGlobal(belowRightEdge));

    QAction* entry = HandleAs<QAction>(*action);
    EXPECT_TRUE(entry->isEnabled());
    QTest::mouseClick(shown, Qt::LeftButton, Qt::NoModifier, shown->actionGeometry(entry).center());
    EXPECT_TRUE(shown->isHidden());
    EXPECT_EQ(log.lines, QStringList{"triggered:true"});
    // The user's toggle is the toolkit's; the stored flag stays.
    EXPECT_TRUE(entry->isChecked());
    EXPECT_FALSE(action->isChecked());
}

// Added actions belong to the menu and survive a clear; deleting the menu
// deletes them and releases its widget later, while theirs stay, reaching nobody.
TEST(MenuTest, AddedActionsBelongToTheMenuSurviveClearAndGoWithIt)
{
    auto* menu = new CKyUIMenu;
    QPointer<QMenu> toolkit(HandleAs<QMenu>(*menu));
    ASSERT_FALSE(toolkit.isNull());
    EXPECT_EQ(toolkit->styleSheet(), "QMenu { }");
    EXPECT_EQ(menu->impl()->GetFrontendClassName(), "QMenu");

    bool firstGone = false;
    auto* first = new WatchedAction;
    first->gone = &firstGone;
    auto* second = new CKyUIAction;
    menu->addAction(first);
    menu->addSeparator();
    menu->addAction(second);
    menu->addAction(nullptr);
    EXPECT_EQ(menu->children(), QList<CKyUIObject*>({first, second}));
    ASSERT_EQ(toolkit->actions().size(), 3);
    EXPECT_TRUE(toolkit->actions().at(1)->isSeparator());
    EXPECT_TRUE(static_cast<CKyUIMenuImpl*>(menu->impl())->Actions().empty());

    menu->clear();
    EXPECT_TRUE(toolkit->actions().isEmpty());
    EXPECT_EQ(menu->children(), QList<CKyUIObject*>({first, second}));
    QPointer<QAction> firstAction(HandleAs<QAction>(*first));
    EXPECT_FALSE(firstAction.isNull());

    // Again, at the end of both lists.
    menu->addAction(first);
    EXPECT_EQ(toolkit->actions(), QList<QAction*>({firstAction.data()}));
    EXPECT_EQ(menu->children(), QList<CKyUIObject*>({second, first}));

    Recorder log;
    log.on(first->triggered(), "triggered");
    delete menu;
    EXPECT_TRUE(firstGone);
    EXPECT_FALSE(toolkit.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(toolkit.isNull());
    // The action is not a widget, so not released.
    ASSERT_FALSE(firstAction.isNull());
    firstAction->trigger();
    EXPECT_TRUE(log.lines.isEmpty());
    delete firstAction.data();
}
