#include "UI/CKyUITextEdit.h"

#include "UI/Impl/CKyUITextEditImpl.h"

CKyUITextEdit::CKyUITextEdit(_Size size)
{
    auto* impl = createImpl<CKyUITextEditImpl>(this);
    impl->SetPreferableSize(CKyUITextEditImpl::WidthFor(size), -1);
}

CKyUITextEdit::~CKyUITextEdit() = default;

void CKyUITextEdit::setText(const QString& text)
{
    implAs<CKyUITextEditImpl>()->SetText(text);
}

void CKyUITextEdit::setPlainText(const QString& text)
{
    implAs<CKyUITextEditImpl>()->SetText(text);
}

QString CKyUITextEdit::text() const
{
    return implAs<CKyUITextEditImpl>()->Text();
}

QString CKyUITextEdit::toPlainText() const
{
    return implAs<CKyUITextEditImpl>()->Text();
}

void CKyUITextEdit::setPlaceholderText(const QString& text)
{
    implAs<CKyUITextEditImpl>()->SetPlaceholderText(text);
}

QString CKyUITextEdit::placeholderText() const
{
    return implAs<CKyUITextEditImpl>()->PlaceholderText();
}

void CKyUITextEdit::setInputMask(const QString& mask)
{
    implAs<CKyUITextEditImpl>()->SetInputMask(mask);
}

QString CKyUITextEdit::inputMask() const
{
    return implAs<CKyUITextEditImpl>()->InputMask();
}

void CKyUITextEdit::setClearButtonEnabled(bool enabled)
{
    implAs<CKyUITextEditImpl>()->SetClearButtonEnabled(enabled);
}

bool CKyUITextEdit::isClearButtonEnabled() const
{
    return implAs<CKyUITextEditImpl>()->IsClearButtonEnabled();
}

void CKyUITextEdit::setFocus()
{
    implAs<CKyUITextEditImpl>()->SetFocus();
}

void CKyUITextEdit::setInputType(int type)
{
    implAs<CKyUITextEditImpl>()->SetInputType(type);
}

void CKyUITextEdit::selectAll()
{
    implAs<CKyUITextEditImpl>()->SelectAll();
}

void CKyUITextEdit::clear()
{
    implAs<CKyUITextEditImpl>()->Clear();
}

void CKyUITextEdit::setReadOnly(bool readOnly)
{
    implAs<CKyUITextEditImpl>()->SetReadOnly(readOnly);
}

void CKyUITextEdit::moveCursor(QTextCursor::MoveOperation operation, QTextCursor::MoveMode mode)
{
    implAs<CKyUITextEditImpl>()->MoveCursor(operation, mode);
}

CKyUISignal<void(QString)>& CKyUITextEdit::textChanged()
{
    return implAs<CKyUITextEditImpl>()->textChanged;
}

CKyUISignal<void(QString)>& CKyUITextEdit::textEdited()
{
    return implAs<CKyUITextEditImpl>()->textEdited;
}

CKyUISignal<void()>& CKyUITextEdit::editingFinished()
{
    return implAs<CKyUITextEditImpl>()->editingFinished;
}

CKyUISignal<void()>& CKyUITextEdit::returnPressed()
{
    return implAs<CKyUITextEditImpl>()->returnPressed;
}
