#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITextView.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtGui/QTextDocument>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

#include <functional>
#include <tuple>

namespace
{
bool FocusOn(QWidget* widget)
{
    widget->setFocus();
    return QTest::qWaitFor([widget] { return widget->hasFocus(); });
}
} // namespace

// Each row: an operation, inert off (the existing suite shows it), and the
// text that typing "x" after it gives while interactive. Switched off again,
// the operation is inert again.
TEST(InteractiveTextTest, TextEditOperationsWorkOnlyWhileInteractive)
{
    const std::pair<std::function<void(CKyUITextEdit&)>, const char*> rows[] = {
        {[](CKyUITextEdit& e) { e.selectAll(); }, "x"},
        {[](CKyUITextEdit& e) { e.clear(); }, "x"},
        {[](CKyUITextEdit& e) { e.moveCursor(QTextCursor::End, QTextCursor::KeepAnchor); }, "kex"},
        {[](CKyUITextEdit& e) { e.moveCursor(QTextCursor::WordLeft); }, "xkeep me"},
        {[](CKyUITextEdit& e) { e.setReadOnly(true); }, "keep me"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.second);
        CKyUITextEdit edit(CKyUITextEdit::Medium);
        QLineEdit* widget = HandleAs<QLineEdit>(edit);
        for (const bool interactive : {true, false}) {
            edit.setInteractive(interactive);
            edit.setText("keep me");
            widget->setReadOnly(false);
            widget->setCursorPosition(2);
            row.first(edit);
            QTest::keyClick(widget, Qt::Key_X);
            EXPECT_EQ(edit.text(), interactive ? row.second : "kexep me");
        }
    }
}

TEST(InteractiveTextTest, EditingFinishedOnAcceptableReturnAndOnFocusLossWhileInteractive)
{
    QWidget window;
    CKyUITextEdit edit(CKyUITextEdit::Medium);
    QLineEdit* widget = HandleAs<QLineEdit>(edit);
    auto* neighbour = new QLineEdit;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(widget);
    layout->addWidget(neighbour);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    Recorder log;
    log.on(edit.editingFinished(), "finished").on(edit.returnPressed(), "return");
    // Return ends the editing; leaving ends it only after a later change.
    const auto typeReturnAndLeave = [&] {
        for (const bool pressReturn : {true, false}) {
            EXPECT_TRUE(FocusOn(widget));
            QTest::keyClicks(widget, "5");
            if (pressReturn)
                QTest::keyClick(widget, Qt::Key_Return);
            EXPECT_TRUE(FocusOn(neighbour));
        }
        return log.take();
    };

    EXPECT_EQ(typeReturnAndLeave(), QStringList({"return"}));
    edit.setInteractive(true);
    EXPECT_EQ(typeReturnAndLeave(), QStringList({"return", "finished", "finished"}));
    // "-" is no whole number yet: Return reports itself only.
    edit.setInputType(CKyUITextEdit::IntegerInput);
    edit.setText("-");
    ASSERT_TRUE(FocusOn(widget));
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_EQ(log.take(), QStringList({"return"}));
    edit.setInteractive(false);
    EXPECT_EQ(typeReturnAndLeave(), QStringList({"return"}));
}

// Each row: an input type, the locale, the keys typed, the text they give
// while interactive. Off, the type is kept and every key lands; switched on,
// the kept type applies.
TEST(InteractiveTextTest, InputTypeChoosesWhatTheUserMayTypeOnceInteractive)
{
    const std::tuple<int, QLocale::Language, const char*, const char*> rows[] = {
        {CKyUITextEdit::PlainInput, QLocale::C, "a1,5", "a1,5"},
        {CKyUITextEdit::PasswordInput, QLocale::C, "secret", "secret"},
        {CKyUITextEdit::IntegerInput, QLocale::C, "12a3", "123"},
        {CKyUITextEdit::DecimalInput, QLocale::C, "1.5x", "1.5"},
        {CKyUITextEdit::DecimalInput, QLocale::German, "2,25x", "2,25"},
        {42, QLocale::C, "a1", "a1"},
    };
    const QLocale previous;
    for (const auto& row : rows) {
        SCOPED_TRACE(std::get<2>(row));
        QLocale::setDefault(QLocale(std::get<1>(row)));
        CKyUITextEdit edit(CKyUITextEdit::Medium);
        QLineEdit* widget = HandleAs<QLineEdit>(edit);
        edit.setInputType(CKyUITextEdit::PasswordInput);
        edit.setInputType(std::get<0>(row));
        QTest::keyClicks(widget, std::get<2>(row));
        EXPECT_EQ(widget->displayText(), std::get<2>(row));

        edit.setInteractive(true);
        edit.setText(QString());
        QTest::keyClicks(widget, std::get<2>(row));
        EXPECT_EQ(edit.text(), std::get<3>(row));
        EXPECT_EQ(widget->displayText() != edit.text(), std::get<0>(row) == CKyUITextEdit::PasswordInput);
        EXPECT_TRUE(widget->hasAcceptableInput());
    }
    QLocale::setDefault(previous);
}

// What setHtmlText() showed literally is rendered when the switch goes on,
// which reports nothing, unless the content changed in between.
TEST(InteractiveTextTest, TextViewRendersHtmlWhileInteractive)
{
    CKyUITextView view;
    QTextEdit* widget = HandleAs<QTextEdit>(view);
    view.setHtmlText("<b>Pad</b> length");
    Recorder log;
    log.on(view.textChanged(), "changed");
    view.setInteractive(true);
    EXPECT_EQ(view.getContent(), "Pad length");
    EXPECT_TRUE(widget->document()->toHtml().contains("font-weight:"));
    EXPECT_TRUE(log.lines.isEmpty());
    view.setHtmlText("<i>x</i> and y");
    EXPECT_EQ(view.getContent(), "x and y");
    EXPECT_EQ(log.take(), QStringList({"changed"}));

    view.setInteractive(false);
    view.setHtmlText("<b>a</b>");
    QTest::keyClicks(widget, "!");
    view.setInteractive(true);
    EXPECT_EQ(view.getContent(), "<b>a</b>!");
}
