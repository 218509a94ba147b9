#include "UI/CKyUITextView.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

TEST(CKyUITextViewTest, WidgetMovesFocusOnTabTakesPlainTextAndFollowsTheContentsHeight)
{
    CKyUITextView view;
    QTextEdit* widget = HandleAs<QTextEdit>(view);
    ASSERT_NE(widget, nullptr);
    EXPECT_STREQ(widget->metaObject()->className(), "CKyUITextViewFrontend");
    EXPECT_EQ(widget->styleSheet(), "QTextEdit { }");
    EXPECT_TRUE(widget->tabChangesFocus());
    EXPECT_FALSE(widget->acceptRichText());
    EXPECT_FALSE(view.getAdjustHeightToContent());
    EXPECT_TRUE(view.getContent().isEmpty());

    const QTextEdit::LineWrapMode wrap = widget->lineWrapMode();
    view.setMultiline(false);
    EXPECT_EQ(widget->lineWrapMode(), wrap);

    view.setReadOnly(true);
    EXPECT_TRUE(widget->isReadOnly());
    view.setPlaceholderText("Notes");
    EXPECT_EQ(widget->placeholderText(), "Notes");
    widget->setPlaceholderText("other");
    view.setPlaceholderText("Notes");
    EXPECT_EQ(widget->placeholderText(), "other");
    EXPECT_EQ(view.placeholderText(), "Notes");

    // The height follows the content while adjusting is on.
    widget->resize(200, 300);
    view.setText("one");
    EXPECT_EQ(widget->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_EQ(widget->minimumHeight(), 0);

    view.setAdjustHeightToContent(true);
    view.setText("one\ntwo\nthree");
    const int documentHeight =
        static_cast<int>(widget->document()->documentLayout()->documentSize().height());
    const int lineSpacing = QFontMetrics(widget->font()).lineSpacing();
    ASSERT_NE(documentHeight, 0);
    EXPECT_EQ(widget->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(widget->minimumHeight(), documentHeight + lineSpacing / 2 - 2);
    EXPECT_EQ(widget->maximumHeight(), documentHeight + lineSpacing / 2 - 2);

    const int lastHeight = widget->minimumHeight();
    view.setAdjustHeightToContent(false);
    view.setText("one\ntwo\nthree\nfour\nfive");
    EXPECT_EQ(widget->minimumHeight(), lastHeight);
    EXPECT_EQ(widget->maximumHeight(), lastHeight);
    EXPECT_EQ(widget->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

TEST(CKyUITextViewTest, SetTextEmitsForEachChangeNoticeAndOnceMore)
{
    CKyUITextView view;
    QSignalSpy notices(HandleAs<QTextEdit>(view), SIGNAL(textChanged()));
    Recorder log;
    log.on(view.textChanged(), "changed");

    view.setText("first <b>line</b>");
    ASSERT_GE(notices.count(), 1);
    EXPECT_EQ(log.count("changed"), notices.count() + 1);
    EXPECT_EQ(HandleAs<QTextEdit>(view)->toPlainText(), "first <b>line</b>");
    EXPECT_EQ(view.getContent(), "first <b>line</b>");

    // The other ways in emit only through the widget's notices.
    notices.clear();
    log.lines.clear();
    view.setHtmlText("<i>x</i>");
    view.addText("y");
    view.addHtmlText("<b>z</b>");
    view.clear();
    EXPECT_EQ(log.count("changed"), notices.count());
    EXPECT_TRUE(view.getContent().isEmpty());
    EXPECT_TRUE(HandleAs<QTextEdit>(view)->toPlainText().isEmpty());

    // Blocked signals still let the content follow the widget.
    log.lines.clear();
    view.blockSignals(true);
    view.setText("quiet");
    QTest::keyClicks(HandleAs<QTextEdit>(view), "!");
    EXPECT_EQ(view.getContent(), HandleAs<QTextEdit>(view)->toPlainText());
    EXPECT_TRUE(view.getContent().contains("quiet"));
    EXPECT_EQ(log.count("changed"), 0);
    view.blockSignals(false);
    view.addText("loud");
    EXPECT_GE(log.count("changed"), 1);
}

TEST(CKyUITextViewTest, ReplacementIsPlainOneUndoableStepAndAddingAppendsABlock)
{
    CKyUITextView view;
    QTextEdit* widget = HandleAs<QTextEdit>(view);
    // addText shows markup literally, addHtmlText formatted, each in a block of its own.
    view.addText("a < b > c & d");
    EXPECT_EQ(widget->toPlainText(), "a < b > c & d");
    EXPECT_EQ(view.getContent(), widget->toPlainText());
    view.addHtmlText("<b>bold</b>");
    EXPECT_EQ(widget->document()->blockCount(), 2);
    const QTextBlock second = widget->document()->lastBlock();
    EXPECT_EQ(second.text(), "bold");
    QTextCursor cursor(second);
    cursor.movePosition(QTextCursor::NextCharacter);
    EXPECT_EQ(cursor.charFormat().fontWeight(), QFont::Bold);
    EXPECT_EQ(view.getContent(), "a < b > c & d\nbold");

    view.setText("first");
    widget->setFontWeight(QFont::Bold);

    view.setHtmlText("<i>second</i>");
    EXPECT_EQ(widget->toPlainText(), "<i>second</i>");
    EXPECT_EQ(view.getContent(), "<i>second</i>");
    cursor = QTextCursor(widget->document());
    cursor.setPosition(3);
    EXPECT_EQ(cursor.charFormat().fontWeight(), QFont::Bold);

    widget->document()->undo();
    EXPECT_EQ(widget->toPlainText(), "first");
    EXPECT_EQ(view.getContent(), "first");

    view.setHtmlText("");
    EXPECT_TRUE(widget->toPlainText().isEmpty());
}

// A long text wraps into many lines; replacing it by a short one must not
// leave the toolkit measuring the old lines (the memcheck run sees it if it
// does), and stays one undoable step with the cursor after the new text.
TEST(CKyUITextViewTest, ALongWrappedTextReplacedByAShortOne)
{
    CKyUITextView view;
    QTextEdit* widget = HandleAs<QTextEdit>(view);
    QString paragraph;
    for (int i = 0; paragraph.size() < 2000; ++i)
        paragraph += QStringLiteral("word%1 ").arg(i);
    view.setText(paragraph);
    ASSERT_GT(widget->document()->documentLayout()->documentSize().height(), 100.0);

    view.setText("short");
    EXPECT_EQ(widget->toPlainText(), "short");
    EXPECT_EQ(widget->textCursor().position(), 5);
    widget->document()->undo();
    EXPECT_EQ(widget->toPlainText(), paragraph);
}

TEST(CKyUITextViewTest, FocusInAndOutAreSignalledAlsoWhenReadOnly)
{
    // Line edits before and after the view, in this tab order. The window is
    // made first, so that it goes last and deletes the widget the view released.
    QWidget window;
    CKyUITextView view;
    view.setReadOnly(true);
    auto* layout = new QVBoxLayout(&window);
    auto* before = new QLineEdit;
    auto* after = new QLineEdit;
    layout->addWidget(before);
    layout->addWidget(HandleAs<QTextEdit>(view));
    layout->addWidget(after);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    Recorder log;
    log.on(view.focusInEventSignal(), "in").on(view.focusOutEventSignal(), "out");

    QTest::keyClick(before, Qt::Key_Tab);
    QTRY_VERIFY(HandleAs<QTextEdit>(view)->hasFocus());
    EXPECT_EQ(log.lines, QStringList({"in"}));

    QTest::keyClick(HandleAs<QTextEdit>(view), Qt::Key_Tab);
    QTRY_VERIFY(after->hasFocus());
    EXPECT_EQ(log.lines, QStringList({"in", "out"}));

    view.blockSignals(true);
    HandleAs<QTextEdit>(view)->setFocus();
    QTRY_VERIFY(HandleAs<QTextEdit>(view)->hasFocus());
    after->setFocus();
    QTRY_VERIFY(after->hasFocus());
    EXPECT_EQ(log.lines, QStringList({"in", "out"}));
}
