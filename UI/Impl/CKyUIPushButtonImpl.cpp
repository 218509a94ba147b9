#include "UI/Impl/CKyUIPushButtonImpl.h"

#include "UI/CKyUIPushButton.h"

CKyUIPushButtonImpl::CKyUIPushButtonImpl(CKyUIPushButton* owner)
    : CKyUIBaseViewImpl(owner)
    , clicked(owner)
    , pressed(owner)
    , released(owner)
    , m_button(owner)
{}

CKyUIPushButtonImpl::~CKyUIPushButtonImpl()
{
    // The widget is deleted later and keeps its pointer to us until then.
    DisconnectFrontendImpl();
}

QString CKyUIPushButtonImpl::GetFrontendClassName()
{
    return QStringLiteral("CKyUIPushButtonFrontend");
}

void CKyUIPushButtonImpl::SetText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    SetTextImpl(text);
}

void CKyUIPushButtonImpl::SetIcon(const QIcon& icon)
{
    m_pendingResourceIcon.clear();
    m_icon = icon;
    SetIconImpl(icon);
}

void CKyUIPushButtonImpl::SetResourceIcon(const QString& path)
{
    if (m_button->isInteractive())
        SetResourceIconImpl(path);
    else
        m_pendingResourceIcon = path;
}

void CKyUIPushButtonImpl::OnPressed()
{
    // A click that unchecks a checkable button still reports true, unless the
    // button follows its user.
    if (!m_button->signalsBlocked())
        clicked.Emit(m_button->isInteractive() ? ClickedStateImpl() : true);
}
