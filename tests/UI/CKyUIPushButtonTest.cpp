#include "UI/CKyUIPushButton.h"
#include "UI/Impl/CKyUIPushButtonImpl.h"
#include "UI/Impl/qt/CKyUIPushButtonFrontend.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtGui/QPixmap>

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtTest/QTest>

#include <vector>

TEST(CKyUIPushButtonTest, CreatesItsFrontendAsAnAutoDefaultButtonAndKeepsItsText)
{
    CKyUIPushButton button;
    CKyUIPushButtonFrontend* widget = HandleAs<CKyUIPushButtonFrontend>(button);
    ASSERT_NE(widget, nullptr);
    EXPECT_STREQ(widget->metaObject()->className(), "CKyUIPushButtonFrontend");
    EXPECT_EQ(widget->parentWidget(), nullptr);
    EXPECT_EQ(widget->styleSheet(), "QPushButton { }");
    EXPECT_TRUE(widget->autoDefault());
    EXPECT_EQ(widget->impl, button.impl());

    // The frontend-base part is reachable by name through the meta-object.
    auto* base = static_cast<CKyUIFrontendBase<CKyUIPushButtonImpl>*>(
        widget->qt_metacast("CKyUIFrontendBase<CKyUIPushButtonImpl>"));
    ASSERT_NE(base, nullptr);
    EXPECT_EQ(base->impl, button.impl());

    // The text is answered from the record; resource icons change nothing.
    button.setText("Open");
    widget->setText("changed elsewhere");
    button.setResourceIcon(":/commonui/resources/icons/chevron_down.png");
    EXPECT_EQ(button.text(), "Open");
    EXPECT_EQ(widget->text(), "changed elsewhere");
    EXPECT_TRUE(widget->icon().isNull());
    EXPECT_TRUE(static_cast<CKyUIPushButtonImpl*>(button.impl())->Icon().isNull());
    EXPECT_EQ(widget->styleSheet(), "QPushButton { }");
    QPixmap red(8, 8);
    red.fill(Qt::red);
    button.setIcon(QIcon(red));
    EXPECT_FALSE(widget->icon().isNull());
}

TEST(CKyUIPushButtonTest, FrontendDeclaresThreeSlotsAndNoSignals)
{
    const QMetaObject& meta = CKyUIPushButtonFrontend::staticMetaObject;
    std::vector<QByteArray> own;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        EXPECT_EQ(method.methodType(), QMetaMethod::Slot);
        EXPECT_EQ(method.access(), QMetaMethod::Public);
        own.push_back(method.methodSignature());
    }
    EXPECT_EQ(own, (std::vector<QByteArray>{"OnPressed()", "OnReleased()", "OnClicked()"}));
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

// clicked(true) on release only, also when the click unchecks a checkable
// button; blocking silences it but keeps the slot.
TEST(CKyUIPushButtonTest, AClickEmitsTrueOnReleaseAndOnlyThen)
{
    CKyUIPushButton button;
    button.setText("Apply");
    Recorder clicks;
    clicks.on(button.clicked(), "clicked");
    CKyUIPushButtonFrontend* widget = HandleAs<CKyUIPushButtonFrontend>(button);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget));
    QTest::mousePress(widget, Qt::LeftButton);
    EXPECT_TRUE(clicks.lines.isEmpty());
    QTest::mouseRelease(widget, Qt::LeftButton);
    EXPECT_EQ(clicks.lines, QStringList{"clicked:true"});
    QTest::keyClick(widget, Qt::Key_Space);
    EXPECT_EQ(clicks.take(), QStringList({"clicked:true", "clicked:true"}));

    button.blockSignals(true);
    QTest::mouseClick(widget, Qt::LeftButton);
    button.blockSignals(false);

    button.setCheckable(true);
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_TRUE(widget->isChecked());
    QTest::mouseClick(widget, Qt::LeftButton);
    EXPECT_FALSE(widget->isChecked());
    EXPECT_EQ(clicks.lines, QStringList({"clicked:true", "clicked:true"}));
}

TEST(CKyUIPushButtonTest, AClickOnTheWidgetOutlivingTheButtonReachesNobody)
{
    auto* button = new CKyUIPushButton;
    Recorder clicks;
    clicks.on(button->clicked(), "clicked");
    QPointer<CKyUIPushButtonFrontend> widget(HandleAs<CKyUIPushButtonFrontend>(*button));
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.data()));

    delete button;
    // The widget goes on the next pass of the event loop and keeps its impl
    // pointer until then; a click delivered in between must not use it.
    ASSERT_FALSE(widget.isNull());
    EXPECT_NE(widget->impl, nullptr);
    QTest::mouseClick(widget.data(), Qt::LeftButton);
    widget->click();
    EXPECT_TRUE(clicks.lines.isEmpty());

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}
