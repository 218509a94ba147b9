#include "UI/CKyUIGridLayout.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIRadioGroup.h"
#include "UI/CKyUISpinBox.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtGui/QHelpEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

#include <functional>
#include <memory>

namespace
{
// One help text: its setter, its getter and what the widget has of it.
struct Help
{
    const char* name;
    void (CKyUIBaseView::*set)(const QString&);
    QString (CKyUIBaseView::*get)() const;
    std::function<QString(const QWidget*)> shown;
};

const Help Helps[] = {
    {"tool tip", &CKyUIBaseView::setToolTip, &CKyUIBaseView::toolTip, &QWidget::toolTip},
    {"status tip", &CKyUIBaseView::setStatusTip, &CKyUIBaseView::statusTip, &QWidget::statusTip},
    {"what's this", &CKyUIBaseView::setWhatsThis, &CKyUIBaseView::whatsThis, &QWidget::whatsThis},
    {"accessible name", &CKyUIBaseView::setAccessibleName, &CKyUIBaseView::accessibleName,
     &QWidget::accessibleName},
    {"accessible description", &CKyUIBaseView::setAccessibleDescription,
     &CKyUIBaseView::accessibleDescription, &QWidget::accessibleDescription},
};
} // namespace

// Every text on views of several kinds: none until set, then kept and given
// to the widget; emptied again on request. A radio group has no widget and
// only keeps them.
TEST(HelpTextTest, EveryViewKeepsAndShowsItsHelp)
{
    std::unique_ptr<CKyUIBaseView> views[] = {
        std::make_unique<CKyUIPushButton>(), std::make_unique<CKyUISpinBox>(),
        std::make_unique<CKyUIGridLayout>(), std::make_unique<CKyUIRadioGroup>()};
    for (const auto& view : views) {
        QWidget* widget = HandleAs<QWidget>(*view);
        for (const Help& help : Helps) {
            SCOPED_TRACE(help.name);
            EXPECT_EQ(((*view).*help.get)(), QString());
            ((*view).*help.set)(QString("Depth of the hole: ") + help.name);
            EXPECT_EQ(((*view).*help.get)(), QString("Depth of the hole: ") + help.name);
            if (widget) {
                EXPECT_EQ(help.shown(widget), QString("Depth of the hole: ") + help.name);
            }
        }
        ((*view).*Helps[0].set)(QString());
        EXPECT_EQ(view->toolTip(), QString());
        if (widget) {
            EXPECT_EQ(widget->toolTip(), QString());
        }
    }
}

// The label's and the button's own setters and the common one are one text.
TEST(HelpTextTest, OwnToolTipSettersAndTheCommonOneAgree)
{
    CKyUILabel label;
    CKyUIPushButton button;
    label.setToolTip("Hole");
    button.setToolTip("Drill");
    EXPECT_EQ(QStringList({label.toolTip(), button.toolTip()}), QStringList({"Hole", "Drill"}));
    static_cast<CKyUIBaseView&>(label).setToolTip("Pocket");
    label.setToolTip("Hole");
    EXPECT_EQ(HandleAs<QWidget>(label)->toolTip(), "Hole");
    EXPECT_EQ(label.toolTip(), "Hole");
}

// The pointer resting on the view shows its tool tip.
TEST(HelpTextTest, ToolTipShowsOnHelpEvent)
{
    CKyUIPushButton button;
    button.setToolTip("Drills every hole");
    QWidget* widget = HandleAs<QWidget>(button);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
    QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), widget->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(widget, &event);
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text() == "Drills every hole"; }));
    QToolTip::hideText();
}
