#pragma once

#include "UI/Impl/CKyUIFrontendBase.h"

#include <QtWidgets/QTextEdit>

class CKyUITextViewImpl;

// The text view's widget: reports every content change and focus change to
// the implementation (focus before the toolkit's own handling), moves the
// focus on Tab, takes pasted and dropped content as plain text, and replaces
// its text as one undoable step.
class CKyUITextViewFrontend : public QTextEdit, public CKyUIFrontendBase<CKyUITextViewImpl>
{
    Q_OBJECT

public:
    CKyUITextViewFrontend();

    // Hides the toolkit's own: a non-empty text goes in as plain text with
    // the character format in use.
    void setText(QString text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private Q_SLOTS:
    void OnEditContentChanged();
};
