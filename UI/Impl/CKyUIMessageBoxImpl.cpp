#include "UI/Impl/CKyUIMessageBoxImpl.h"

#include "UI/Impl/KyModalRun.h"

CKyUIMessageBoxImpl::CKyUIMessageBoxImpl(CKyUIObject* owner, CKyUIBaseView* parent)
    : CKyUIObjectImpl(owner)
    , m_parent(parent)
{}

CKyUIMessageBoxImpl::~CKyUIMessageBoxImpl()
{
    DestroyFrontendControlImpl();
}

QString CKyUIMessageBoxImpl::GetFrontendClassName()
{
    return QStringLiteral("QMessageBox");
}

void CKyUIMessageBoxImpl::SetIcon(CKyUIMessageBox::Icon icon)
{
    m_icon = icon;
    SetIconImpl(icon);
}

void CKyUIMessageBoxImpl::SetWindowTitle(const QString& title)
{
    if (m_windowTitle == title)
        return;
    m_windowTitle = title;
    SetWindowTitleImpl(title);
}

void CKyUIMessageBoxImpl::SetText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    SetTextImpl(text);
}

void CKyUIMessageBoxImpl::SetInformativeText(const QString& text)
{
    if (m_informativeText == text)
        return;
    m_informativeText = text;
    SetInformativeTextImpl(text);
}

void CKyUIMessageBoxImpl::SetStandardButtons(CKyUIMessageBox::StandardButtons buttons)
{
    m_buttons = buttons;
    SetStandardButtonsImpl(buttons);
    // The toolkit forgets a default button it no longer shows.
    SetDefaultButtonImpl(m_defaultButton);
}

void CKyUIMessageBoxImpl::SetDefaultButton(CKyUIMessageBox::StandardButton button)
{
    m_defaultButton = button;
    SetDefaultButtonImpl(button);
}

CKyUIMessageBox::StandardButton CKyUIMessageBoxImpl::Exec()
{
    const Lifetime lifetime = GetLifetime();
    CKyUIMessageBox::StandardButton pressed;
    {
        const KyModalRun::Scope run;
        pressed = ExecImpl();
    }
    if (!lifetime.Alive())
        return CKyUIMessageBox::NoButton;
    m_clicked = pressed;
    return pressed;
}
