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

// A view's widget is deleted on a later pass of the event loop and may still
// be typed into, clicked or focused until then. Whatever it reports in that
// time must reach no one: its view and implementation are gone. (The push
// button, the slider, the action and the dialog button box have such a case
// in their own tests.)
TEST(LateToolkitNotification, TextWidgetsTypedIntoOrFocusedAfterTheirViewWentReachNobody)
{
    QLineEdit neighbour; // takes the focus from the widget under test
    neighbour.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&neighbour));
    auto* edit = new CKyUITextEdit(CKyUITextEdit::Medium);
    auto* view = new CKyUITextView;
    view->setAdjustHeightToContent(true);
    Recorder log;
    log.on(edit->textChanged(), "changed")
        .on(edit->textEdited(), "edited")
        .on(edit->returnPressed(), "return");
    log.on(view->textChanged(), "changed").on(view->focusInEventSignal(), "in");
    log.on(view->focusOutEventSignal(), "out");
    QPointer<CKyUITextEditFrontend> editWidget(qobject_cast<CKyUITextEditFrontend*>(edit->getHandle()));
    QPointer<CKyUITextViewFrontend> viewWidget(qobject_cast<CKyUITextViewFrontend*>(view->getHandle()));
    ASSERT_TRUE(editWidget && viewWidget);
    editWidget->show();
    viewWidget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(editWidget.data()));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(viewWidget.data()));
    CKyUITextViewImpl* const implementation = viewWidget->impl;
    ASSERT_NE(implementation, nullptr);

    // Showing them may have moved the focus; the view must gain it again late.
    QApplication::setActiveWindow(&neighbour);
    neighbour.setFocus(Qt::OtherFocusReason);
    ASSERT_FALSE(viewWidget->hasFocus());
    log.lines.clear();
    delete edit;
    delete view;
    ASSERT_FALSE(editWidget.isNull() || viewWidget.isNull());
    QTest::keyClicks(editWidget.data(), "late");
    QTest::keyClick(editWidget.data(), Qt::Key_Return);
    editWidget->setText("set late");
    // The widget keeps its pointer; it just no longer uses it.
    EXPECT_EQ(viewWidget->impl, implementation);
    QApplication::setActiveWindow(viewWidget.data());
    viewWidget->setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(viewWidget->hasFocus());
    QTest::keyClicks(viewWidget.data(), "late");
    viewWidget->setText("set late");
    viewWidget->append("appended late");
    QApplication::setActiveWindow(&neighbour);
    neighbour.setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(log.lines.isEmpty()) << log.lines.join(" ").toStdString();

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(editWidget.isNull());
    EXPECT_TRUE(viewWidget.isNull());
}
