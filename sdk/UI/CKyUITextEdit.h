#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtGui/QTextCursor>

/// The single-line text field, whose textEdited() comes with every change, set
/// or typed, and whose Return never presses the default button (see
/// \ref behaviours_controls "behaviours"). Return and Enter only report
/// returnPressed.
///
/// The text is kept on the library's side and follows every change of the
/// widget, typed or set; each such change emits textChanged() and then
/// textEdited(), so textEdited() is not limited to the user's edits.
///
/// \image html buttons-and-text.png "Text edits among the push buttons and labels"
class COMMONUI_EXPORT CKyUITextEdit : public CKyUIBaseView
{
public:
    /// Width class of the field: 69, 158, 248 or 336 pixels; any other value
    /// gives 39.
    enum _Size : int {
        Tiny = 0,       ///< 39 pixels.
        Small = 1,      ///< 69 pixels.
        Medium = 2,     ///< 158 pixels.
        Large = 3,      ///< 248 pixels.
        ExtraLarge = 4, ///< 336 pixels.
    };

    /// An empty field of the given width class, recorded as the view's
    /// preferable width.
    explicit CKyUITextEdit(_Size size);
    ~CKyUITextEdit() override;

    /// A new text emits textChanged, textEdited, textChanged, in this order.
    /// The current text again emits nothing and leaves the widget alone.
    void setText(const QString& text);
    /// The same as setText().
    void setPlainText(const QString& text);
    /// The text as last set or reported by the widget.
    QString text() const;
    /// The same as text().
    QString toPlainText() const;

    /// Stores the placeholder and shows it; an unchanged value does nothing.
    void setPlaceholderText(const QString& text);
    /// The stored placeholder.
    QString placeholderText() const;
    /// Stores the input mask and applies it; an unchanged value does nothing.
    void setInputMask(const QString& mask);
    /// The stored input mask.
    QString inputMask() const;
    /// Stores the flag and shows or hides the clear button.
    void setClearButtonEnabled(bool enabled);
    /// The stored flag.
    bool isClearButtonEnabled() const;

    using CKyUIBaseView::setFocus;
    /// Gives the field the keyboard focus.
    void setFocus();
    /// What setInputType() lets the user type.
    enum InputType : int {
        PlainInput = 0,    ///< Any text, shown as typed.
        PasswordInput = 1, ///< Any text, shown masked.
        IntegerInput = 2,  ///< A whole number.
        DecimalInput = 3,  ///< A number with the current locale's decimal separator.
    };
    /// Has no effect. Interactive (see setInteractive()): chooses what the
    /// user may type, one of InputType; any other value gives PlainInput. The
    /// type is kept and applied when the field becomes interactive.
    void setInputType(int type);

    /// Accepted and ignored. Interactive: selects the whole text.
    void selectAll();
    /// Accepted and ignored: the text stays. Use setText() with an empty text.
    /// Interactive: empties the text as setText() with an empty text does.
    void clear();
    /// Accepted and ignored. Interactive: the user can no longer change the
    /// text. The flag is kept and applied when the field becomes interactive.
    void setReadOnly(bool readOnly);
    /// Accepted and ignored. Interactive: moves the cursor as in a one-line
    /// document (up and the starts go home, down and the ends go to the end),
    /// extending the selection with QTextCursor::KeepAnchor.
    void moveCursor(QTextCursor::MoveOperation operation,
                    QTextCursor::MoveMode mode = QTextCursor::MoveAnchor);

    /// Emitted with the whole text at every change of the widget's text, and
    /// once more by setText() after the widget's report.
    CKyUISignal<void(QString)>& textChanged();
    /// Emitted with the whole text after textChanged() at every change of the
    /// widget's text, typed or set.
    CKyUISignal<void(QString)>& textEdited();
    /// Never emitted. Interactive: emitted after returnPressed() for Return or
    /// Enter when the text is acceptable input, and when the field loses the
    /// focus after a change of its text.
    CKyUISignal<void()>& editingFinished();
    /// Emitted once for Return or Enter (the keypad's included), which go no
    /// further.
    CKyUISignal<void()>& returnPressed();
};
