#include "UI/CKyUITextEdit.h"
#include "support/QtPrinters.h"
#include "support/Recorder.h"
#include "support/TestDialogs.h"
#include "support/TestViews.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace
{
void Record(CKyUITextEdit& edit, Recorder& log)
{
    log.on(edit.textChanged(), "changed").on(edit.textEdited(), "edited");
    log.on(edit.editingFinished(), "finished").on(edit.returnPressed(), "return");
}
} // namespace

TEST(CKyUITextEditTest, WidthClassGivesThePreferableWidth)
{
    const QList<QPair<int, int>> widths = {{0, 39}, {1, 69}, {2, 158}, {3, 248}, {4, 336}, {5, 39}};
    for (const auto& entry : widths) {
        CKyUITextEdit edit(static_cast<CKyUITextEdit::_Size>(entry.first));
        EXPECT_EQ(edit.width(), entry.second) << "width class " << entry.first;
        EXPECT_EQ(edit.height(), -1);
    }

    CKyUITextEdit edit(CKyUITextEdit::Medium);
    ASSERT_NE(HandleAs<QLineEdit>(edit), nullptr);
    EXPECT_STREQ(HandleAs<QLineEdit>(edit)->metaObject()->className(), "CKyUITextEditFrontend");
    EXPECT_EQ(HandleAs<QLineEdit>(edit)->styleSheet(), "QLineEdit { }");
    EXPECT_TRUE(edit.text().isEmpty());
}

TEST(CKyUITextEditTest, SetTextEmitsChangedEditedChangedAndNothingForTheSameText)
{
    Recorder log;
    CKyUITextEdit edit(CKyUITextEdit::Small);
    Record(edit, log);

    edit.setText("a");
    EXPECT_EQ(log.take(), QStringList({"changed:a", "edited:a", "changed:a"}));
    EXPECT_EQ(HandleAs<QLineEdit>(edit)->text(), "a");

    // Changed behind the model's back and without a report: setting the
    // stored text again leaves the widget alone.
    HandleAs<QLineEdit>(edit)->blockSignals(true);
    HandleAs<QLineEdit>(edit)->setText("b");
    HandleAs<QLineEdit>(edit)->blockSignals(false);
    edit.setText("a");
    edit.setPlainText("a");
    EXPECT_EQ(HandleAs<QLineEdit>(edit)->text(), "b");

    edit.setPlainText("c");
    EXPECT_EQ(log.take(), QStringList({"changed:c", "edited:c", "changed:c"}));
    EXPECT_EQ(edit.toPlainText(), "c");

    // Typing reports the whole text, changed then edited.
    HandleAs<QLineEdit>(edit)->clear();
    log.take();
    QTest::keyClicks(HandleAs<QLineEdit>(edit), "ab");
    EXPECT_EQ(log.take(), QStringList({"changed:a", "edited:a", "changed:ab", "edited:ab"}));
    EXPECT_EQ(edit.text(), "ab");
    QTest::keyClick(HandleAs<QLineEdit>(edit), Qt::Key_Backspace);
    EXPECT_EQ(log.take(), QStringList({"changed:a", "edited:a"}));
    EXPECT_EQ(edit.text(), "a");

    // Blocked signals still let the text follow the widget.
    edit.blockSignals(true);
    QTest::keyClicks(HandleAs<QLineEdit>(edit), "xy");
    EXPECT_EQ(edit.text(), "axy");
    edit.setText("z");
    EXPECT_EQ(edit.text(), "z");
    QTest::keyClick(HandleAs<QLineEdit>(edit), Qt::Key_Return);
    edit.blockSignals(false);
    QTest::keyClick(HandleAs<QLineEdit>(edit), Qt::Key_Return);
    EXPECT_EQ(log.take(), QStringList({"return"}));
}

TEST(CKyUITextEditTest, SetFocusThenReturnAndEnterNeverReachTheDialogsDefaultButton)
{
    RecordingHost host;
    SampleDialog dialog;
    Recorder log;
    CKyUITextEdit* edit = nullptr;
    dialog.afterSetup = [&](SampleDialog& self) {
        edit = new CKyUITextEdit(CKyUITextEdit::Large);
        self.GetLayout()->insertView(edit, 0);
        edit->setText("value");
        Record(*edit, log);
        log.on(self.box->accepted(), "box accepted");
    };

    bool runningAfterKeys = false;
    const int result = RunModally(dialog, [&](SampleDialog& self) {
        // OK is the default button: a Return anywhere else would press it.
        ASSERT_TRUE(qobject_cast<QPushButton*>(self.boxButton(CKyUIDialogButtonBox::Ok))->isDefault());
        // setFocus moves the focus from elsewhere to the widget.
        QWidget* apply = qobject_cast<QWidget*>(self.button->getHandle());
        apply->setFocus();
        QTRY_VERIFY(apply->hasFocus());
        QLineEdit* widget = HandleAs<QLineEdit>(*edit);
        edit->setFocus();
        QTRY_VERIFY(widget->hasFocus());
        QTest::keyClick(widget, Qt::Key_Return);
        QTest::keyClick(widget, Qt::Key_Enter, Qt::KeypadModifier);
        runningAfterKeys = self.widget()->isVisible() && QApplication::activeModalWidget() == self.widget();
        self.reject();
    });

    EXPECT_TRUE(runningAfterKeys);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(log.take(), QStringList({"return", "return"}));
    EXPECT_EQ(edit->text(), "value");
}

TEST(CKyUITextEditTest, PlaceholderAndMaskAreForwardedOnlyWhenChangedAndNoOperationsDoNothing)
{
    CKyUITextEdit edit(CKyUITextEdit::Small);
    QLineEdit* widget = HandleAs<QLineEdit>(edit);

    edit.setPlaceholderText("Width");
    edit.setInputMask("999");
    EXPECT_EQ(widget->placeholderText(), "Width");
    EXPECT_EQ(widget->inputMask(), "999");

    widget->setPlaceholderText("other");
    widget->setInputMask("");
    edit.setPlaceholderText("Width");
    edit.setInputMask("999");
    EXPECT_EQ(widget->placeholderText(), "other");
    EXPECT_TRUE(widget->inputMask().isEmpty());

    edit.setClearButtonEnabled(true);
    widget->setClearButtonEnabled(false);
    edit.setClearButtonEnabled(true);
    EXPECT_TRUE(widget->isClearButtonEnabled());
    EXPECT_TRUE(edit.isClearButtonEnabled());

    // The public no-operations leave widget and text alone.
    Recorder log;
    edit.setText("keep me");
    widget->setCursorPosition(2);
    Record(edit, log);

    edit.selectAll();
    edit.clear();
    edit.setReadOnly(true);
    edit.moveCursor(QTextCursor::End, QTextCursor::KeepAnchor);
    edit.setInputType(3);

    EXPECT_EQ(edit.text(), "keep me");
    EXPECT_EQ(widget->text(), "keep me");
    EXPECT_FALSE(widget->hasSelectedText());
    EXPECT_FALSE(widget->isReadOnly());
    EXPECT_EQ(widget->cursorPosition(), 2);
    EXPECT_EQ(widget->echoMode(), QLineEdit::Normal);
    EXPECT_TRUE(log.lines.isEmpty());
}
