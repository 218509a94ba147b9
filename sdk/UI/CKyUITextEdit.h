#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtGui/QTextCursor>

// The single-line text field. Return and Enter only report returnPressed:
// they never reach the dialog's default button.
class COMMONUI_EXPORT CKyUITextEdit : public CKyUIBaseView
{
public:
    // Width class of the field: 69, 158, 248 or 336 pixels; any other value
    // gives 39.
    enum _Size : int {
        Tiny = 0,
        Small = 1,
        Medium = 2,
        Large = 3,
        ExtraLarge = 4,
    };

    explicit CKyUITextEdit(_Size size);
    ~CKyUITextEdit() override;

    // A new text emits textChanged, textEdited, textChanged, in this order.
    void setText(const QString& text);
    void setPlainText(const QString& text);
    QString text() const;
    QString toPlainText() const;

    void setPlaceholderText(const QString& text);
    QString placeholderText() const;
    void setInputMask(const QString& mask);
    QString inputMask() const;
    void setClearButtonEnabled(bool enabled);
    bool isClearButtonEnabled() const;

    using CKyUIBaseView::setFocus;
    void setFocus();
    // Has no effect.
    void setInputType(int type);

    // Accepted and ignored.
    void selectAll();
    void clear();
    void setReadOnly(bool readOnly);
    void moveCursor(QTextCursor::MoveOperation operation,
                    QTextCursor::MoveMode mode = QTextCursor::MoveAnchor);

    CKyUISignal<void(QString)>& textChanged();
    CKyUISignal<void(QString)>& textEdited();
    // Never emitted.
    CKyUISignal<void()>& editingFinished();
    CKyUISignal<void()>& returnPressed();
};
