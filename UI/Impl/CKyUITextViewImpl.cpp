#include "UI/Impl/CKyUITextViewImpl.h"

#include "UI/CKyUIObject.h"

#include "KyHostKernel.h"

CKyUITextViewImpl::CKyUITextViewImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , textChanged(owner)
    , focusInEventSignal(owner)
    , focusOutEventSignal(owner)
{}

QString CKyUITextViewImpl::GetFrontendClassName()
{
    return QStringLiteral("CKyUITextViewFrontend");
}

void CKyUITextViewImpl::SetText(const QString& text)
{
    // Through the host's string class, without encoding.
    const QString hostText = CKyString(text);
    m_content = hostText;
    EmitInOrder([&] { SetTextImpl(hostText); }, [this] { textChanged.Emit(); });
}

void CKyUITextViewImpl::SetHtmlText(const QString& text)
{
    m_content = text;
    if (owner()->isInteractive()) {
        SetHtmlImpl(text);
        return;
    }
    const Lifetime lifetime = GetLifetime();
    SetTextImpl(text);
    if (lifetime.Alive())
        m_pendingHtml = text;
}

void CKyUITextViewImpl::AddText(const QString& text)
{
    // The one place where text is encoded for rich-text display.
    CKyString hostText(text);
    hostText.EncodeHTML();
    const QString encoded = hostText;
    m_content += encoded;
    AddTextImpl(encoded);
}

void CKyUITextViewImpl::AddHtmlText(const QString& text)
{
    m_content += text;
    AddTextImpl(text);
}

void CKyUITextViewImpl::Clear()
{
    m_content.clear();
    SetTextImpl(QString());
}

void CKyUITextViewImpl::SetMultiline(bool) {}

void CKyUITextViewImpl::SetPlaceholderText(const QString& text)
{
    if (m_placeholderText == text)
        return;
    m_placeholderText = text;
    SetPlaceholderTextImpl(m_placeholderText);
}

void CKyUITextViewImpl::OnEditTextChanged(const QString& text)
{
    m_content = text;
    if (m_quiet)
        return;
    m_pendingHtml.clear();
    textChanged.Emit();
}

void CKyUITextViewImpl::OnFocusIn()
{
    focusInEventSignal.Emit();
}

void CKyUITextViewImpl::OnFocusOut()
{
    focusOutEventSignal.Emit();
}

void CKyUITextViewImpl::OnEditingFinished() {}
