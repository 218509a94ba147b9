#include "UI/Impl/CKyUIActionImpl.h"

#include "UI/CKyUIObject.h"

CKyUIActionImpl::CKyUIActionImpl(CKyUIObject* owner)
    : CKyUIObjectImpl(owner)
    , triggered(owner)
{}

QString CKyUIActionImpl::GetFrontendClassName()
{
    return QStringLiteral("QAction");
}

void CKyUIActionImpl::SetText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    SetTextImpl(text);
}

void CKyUIActionImpl::SetIcon(const QIcon& icon)
{
    m_pendingResourceIcon.clear();
    m_icon = icon;
    SetIconImpl(icon);
}

void CKyUIActionImpl::SetResourceIcon(const QString& name)
{
    if (owner()->isInteractive())
        SetResourceIconImpl(name);
    else
        m_pendingResourceIcon = name;
}

void CKyUIActionImpl::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    SetEnabledImpl(enabled);
}

void CKyUIActionImpl::SetCheckable(bool checkable)
{
    m_checkable = checkable;
    SetCheckableImpl(checkable);
}

void CKyUIActionImpl::SetChecked(bool checked)
{
    m_checked = checked;
    SetCheckedImpl(checked);
}

void CKyUIActionImpl::SetVisible(bool visible)
{
    m_visible = visible;
    SetVisibleImpl(visible);
}

void CKyUIActionImpl::onTriggered(bool checked)
{
    triggered.Emit(checked);
}
