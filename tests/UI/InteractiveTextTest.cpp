#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITextView.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

#include <functional>

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

// Each row: an input type, the keys typed, the text they give while
// interactive. Off, the type is kept and every key lands; switched on, the
// kept type applies.
TEST(InteractiveTextTest, InputTypeChoosesWhatTheUserMayTypeOnceInteractive)
{
    struct Row
    {
        int type;
        QLocale locale;
        const char* keys;
        const char* textOn;
    };
    const Row rows[] = {
        {CKyUITextEdit::PlainInput, QLocale::c(), "a1,5", "a1,5"},
        {CKyUITextEdit::PasswordInput, QLocale::c(), "secret", "secret"},
        {CKyUITextEdit::IntegerInput, QLocale::c(), "12a3", "123"},
        {CKyUITextEdit::DecimalInput, QLocale::c(), "1.5x", "1.5"},
        {CKyUITextEdit::DecimalInput, QLocale(QLocale::German, QLocale::Germany), "2,25x", "2,25"},
        {42, QLocale::c(), "a1", "a1"},
    };
    const QLocale previous;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.keys);
        QLocale::setDefault(row.locale);
        CKyUITextEdit edit(CKyUITextEdit::Medium);
        QLineEdit* widget = HandleAs<QLineEdit>(edit);
        edit.setInputType(CKyUITextEdit::PasswordInput);
        edit.setInputType(row.type);
        QTest::keyClicks(widget, row.keys);
        EXPECT_EQ(edit.text(), row.keys);

        edit.setInteractive(true);
        edit.setText(QString());
        QTest::keyClicks(widget, row.keys);
        EXPECT_EQ(edit.text(), row.textOn);
        EXPECT_EQ(widget->displayText() != edit.text(), row.type == CKyUITextEdit::PasswordInput);
        EXPECT_TRUE(widget->hasAcceptableInput());
    }
    QLocale::setDefault(previous);
}

TEST(InteractiveTextTest, TextViewRendersHtmlWhileInteractiveAndWhatWasGivenBeforeQuietly)
{
    CKyUITextView view;
    QTextEdit* widget = HandleAs<QTextEdit>(view);
    const auto boldAt = [widget](int position) {
        QTextCursor cursor(widget->document());
        cursor.setPosition(position);
        return cursor.charFormat().fontWeight() == QFont::Bold;
    };
    Recorder log;
    view.setHtmlText("<b>Pad</b> length");
    log.on(view.textChanged(), "changed");
    view.setInteractive(true);
    EXPECT_EQ(view.getContent(), "Pad length");
    EXPECT_TRUE(boldAt(2));
    EXPECT_TRUE(log.lines.isEmpty());

    view.setHtmlText("<i>x</i> and <b>y</b>");
    EXPECT_EQ(view.getContent(), "x and y");
    EXPECT_TRUE(boldAt(7));
    EXPECT_EQ(log.take(), QStringList({"changed"}));

    // What the user typed after the literal markup is not overwritten later.
    view.setInteractive(false);
    view.setHtmlText("<b>a</b>");
    QTest::keyClicks(widget, "!");
    view.setInteractive(true);
    EXPECT_EQ(view.getContent(), "<b>a</b>!");
}
