#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITextView.h"
#include "UI/Impl/qt/CKyUITextEditFrontend.h"
#include "UI/Impl/qt/CKyUITextViewFrontend.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <memory>

// A view's widget is deleted on a later pass of the event loop and may still
// be typed into, clicked or focused until then. Whatever it reports in that
// time must reach no one: its view and implementation are gone. (The push
// button, the slider, the action and the dialog button box have such a case
// in their own tests.)

namespace
{
void RunDeferredDeletions()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Something else to take the focus from the widget under test.
struct FocusNeighbour
{
    FocusNeighbour()
    {
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
    }
    QLineEdit widget;
};
} // namespace

TEST(LateToolkitNotification, ATextEditsWidgetTypedIntoAfterTheViewWentReachesNobody)
{
    auto* edit = new CKyUITextEdit(CKyUITextEdit::Medium);
    Recorder log;
    log.on(edit->textChanged(), "changed")
        .on(edit->textEdited(), "edited")
        .on(edit->returnPressed(), "return");
    QPointer<CKyUITextEditFrontend> widget(qobject_cast<CKyUITextEditFrontend*>(edit->getHandle()));
    ASSERT_TRUE(widget);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.data()));

    delete edit;
    ASSERT_FALSE(widget.isNull());
    QTest::keyClicks(widget.data(), "late");
    QTest::keyClick(widget.data(), Qt::Key_Return);
    widget->setText("set late");
    EXPECT_TRUE(log.lines.isEmpty());

    RunDeferredDeletions();
    EXPECT_TRUE(widget.isNull());
}

TEST(LateToolkitNotification, ATextViewsWidgetFocusedAndEditedAfterTheViewWentReachesNobody)
{
    FocusNeighbour neighbour;
    auto* view = new CKyUITextView;
    view->setAdjustHeightToContent(true);
    Recorder log;
    log.on(view->textChanged(), "changed")
        .on(view->focusInEventSignal(), "in")
        .on(view->focusOutEventSignal(), "out");
    QPointer<CKyUITextViewFrontend> widget(qobject_cast<CKyUITextViewFrontend*>(view->getHandle()));
    ASSERT_TRUE(widget);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.data()));
    CKyUITextViewImpl* const implementation = widget->impl;
    ASSERT_NE(implementation, nullptr);

    delete view;
    ASSERT_FALSE(widget.isNull());
    // The widget keeps its pointer; it just no longer uses it.
    EXPECT_EQ(widget->impl, implementation);
    QApplication::setActiveWindow(widget.data());
    widget->setFocus(Qt::OtherFocusReason);
    QTest::keyClicks(widget.data(), "late");
    widget->setText("set late");
    widget->append("appended late");
    QApplication::setActiveWindow(&neighbour.widget);
    neighbour.widget.setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(log.lines.isEmpty());

    RunDeferredDeletions();
    EXPECT_TRUE(widget.isNull());
}
