#include "UI/Impl/CKyUILabelImpl.h"

CKyUILabelImpl::CKyUILabelImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
{}

CKyUILabelImpl::~CKyUILabelImpl() = default;

QString CKyUILabelImpl::GetFrontendClassName()
{
    return QStringLiteral("QLabel");
}

void CKyUILabelImpl::SetText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    SetTextImpl(text);
}

void CKyUILabelImpl::SetIcon(const QIcon& icon)
{
    m_icon = icon;
    SetIconImpl(icon);
}

void CKyUILabelImpl::SetFontSize(int size)
{
    m_fontSize = size;
    SetFontSizeImpl(size);
}

void CKyUILabelImpl::SetWordWrap(bool on)
{
    m_wordWrap = on;
    SetWordWrapImpl(on);
}

void CKyUILabelImpl::SetToolTip(const QString& toolTip)
{
    if (m_toolTip == toolTip)
        return;
    m_toolTip = toolTip;
    RecordHelpText(HelpText::ToolTip, toolTip);
    SetToolTipImpl(toolTip);
}

void CKyUILabelImpl::OnHelpTextSet(HelpText kind, const QString& text)
{
    if (kind == HelpText::ToolTip)
        m_toolTip = text;
}

void CKyUILabelImpl::clear()
{
    m_icon = QIcon();
    SetIconImpl(m_icon);
    m_text.clear();
    SetTextImpl(m_text);
}
