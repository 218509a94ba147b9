#include "UI/Impl/CKyUITextEditImpl.h"

#include "UI/CKyUIObject.h"
#include "UI/Impl/KySettingsStore.h"

CKyUITextEditImpl::CKyUITextEditImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , textChanged(owner)
    , editingFinished(owner)
    , textEdited(owner)
    , returnPressed(owner)
{}

QString CKyUITextEditImpl::GetFrontendClassName()
{
    return QStringLiteral("CKyUITextEditFrontend");
}

int CKyUITextEditImpl::WidthFor(int size)
{
    switch (size) {
    case 1:
        return 69;
    case 2:
        return 158;
    case 3:
        return 248;
    case 4:
        return 336;
    default:
        return 39;
    }
}

void CKyUITextEditImpl::SetText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    // The widget reports the change at once: textChanged and textEdited come
    // from there, and one more textChanged follows here.
    // A copy: the widget's report overwrites the stored text mid-call.
    EmitInOrder([this] { SetTextImpl(QString(m_text)); }, [this] { textChanged.Emit(m_text); });
}

void CKyUITextEditImpl::SetPlaceholderText(const QString& text)
{
    if (m_placeholderText == text)
        return;
    m_placeholderText = text;
    SetPlaceholderTextImpl(m_placeholderText);
}

void CKyUITextEditImpl::SetInputMask(const QString& mask)
{
    if (m_inputMask == mask)
        return;
    m_inputMask = mask;
    SetInputMaskImpl(m_inputMask);
}

void CKyUITextEditImpl::SetClearButtonEnabled(bool enabled)
{
    m_clearButtonEnabled = enabled;
    SetClearButtonEnabledImpl(enabled);
}

void CKyUITextEditImpl::SetFocus()
{
    SetFocusImpl();
}

void CKyUITextEditImpl::SetInputType(int type)
{
    m_inputType = type;
    m_inputTypeGiven = true;
    SetInputTypeImpl(type);
}

void CKyUITextEditImpl::SetReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    m_readOnlyGiven = true;
    if (owner()->isInteractive())
        SetReadOnlyImpl(readOnly);
}

void CKyUITextEditImpl::SelectAll()
{
    if (owner()->isInteractive())
        SelectAllImpl();
}

void CKyUITextEditImpl::Clear()
{
    if (owner()->isInteractive())
        SetText(QString());
}

void CKyUITextEditImpl::MoveCursor(int operation, int mode)
{
    if (owner()->isInteractive())
        MoveCursorImpl(operation, mode);
}

void CKyUITextEditImpl::OnEditTextChanged(const QString& text)
{
    // Every change the widget reports, typed or set, counts as an edit.
    m_text = text;
    m_changedSinceFinished = true;
    EmitInOrder([this] { textChanged.Emit(m_text); }, [this] { textEdited.Emit(m_text); });
}

void CKyUITextEditImpl::OnEditingFinished()
{
    m_changedSinceFinished = false;
    editingFinished.Emit();
}

void CKyUITextEditImpl::OnFocusLost()
{
    if (m_changedSinceFinished)
        OnEditingFinished();
}

void CKyUITextEditImpl::OnReturnPressed()
{
    returnPressed.Emit();
}

QVariant CKyUITextEditImpl::RememberedValue() const
{
    return m_text;
}

bool CKyUITextEditImpl::RestoreRememberedValue(const QVariant& value)
{
    QString text;
    if (!KySettingsStore::ReadString(value, &text))
        return false;
    SetText(text);
    return true;
}
