#include "UI/Impl/qt/CKyUITextViewFrontend.h"

#include "UI/Impl/CKyUITextViewImpl.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QFontMetrics>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

CKyUITextViewFrontend::CKyUITextViewFrontend()
    : QTextEdit(nullptr)
{
    connect(this, SIGNAL(textChanged()), this, SLOT(OnEditContentChanged()));
    setTabChangesFocus(true);
    setAcceptRichText(false);
}

void CKyUITextViewFrontend::setText(QString text)
{
    if (text.isEmpty()) {
        QTextEdit::setText(text);
        return;
    }
    QTextCursor editBlock(document());
    editBlock.beginEditBlock();
    QTextCursor cursor = textCursor();
    const int length = toPlainText().length();
    cursor.setPosition(length);
    for (int i = 0; i < length; ++i)
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, 1);
    cursor.insertText(text, currentCharFormat());
    adjustSize();
    document()->adjustSize();
    editBlock.endEditBlock();
    // Only once the edit block is closed: until then the layout still
    // describes the old text, and the toolkit, bringing the cursor into view,
    // would read the lines of a longer old text from freed memory.
    setTextCursor(cursor);
}

void CKyUITextViewFrontend::focusInEvent(QFocusEvent* event)
{
    if (impl)
        impl->OnFocusIn();
    QTextEdit::focusInEvent(event);
}

void CKyUITextViewFrontend::focusOutEvent(QFocusEvent* event)
{
    if (impl)
        impl->OnFocusOut();
    QTextEdit::focusOutEvent(event);
}

void CKyUITextViewFrontend::OnEditContentChanged()
{
    if (!impl)
        return;
    // A slot may delete the view, and the implementation with it.
    const CKyUIObjectImpl::Lifetime lifetime = impl->GetLifetime();
    impl->OnEditTextChanged(document()->toPlainText());
    if (!lifetime.Alive() || !impl->GetAdjustHeightToContent())
        return;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int documentHeight = static_cast<int>(document()->documentLayout()->documentSize().height());
    const int lineSpacing = QFontMetrics(font()).lineSpacing();
    setFixedHeight(documentHeight != 0 ? documentHeight + lineSpacing / 2 - 2 : 25);
}
