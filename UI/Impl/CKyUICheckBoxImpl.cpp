#include "UI/Impl/CKyUICheckBoxImpl.h"

#include "UI/Impl/KySettingsStore.h"

CKyUICheckBoxImpl::CKyUICheckBoxImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , stateChanged(owner)
    , toggled(owner)
    , clicked(owner)
{}

CKyUICheckBoxImpl::~CKyUICheckBoxImpl() = default;

QString CKyUICheckBoxImpl::GetFrontendClassName()
{
    return QStringLiteral("QCheckBox");
}

void CKyUICheckBoxImpl::SetText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    SetTextImpl(m_text);
}

void CKyUICheckBoxImpl::SetChecked(bool checked)
{
    if (m_checked == checked)
        return;
    m_checked = checked;
    SetCheckedImpl(checked);
    EmitState(checked);
}

void CKyUICheckBoxImpl::SetTextSize(float size)
{
    m_textSize = size;
    SetTextSizeImpl(size);
}

void CKyUICheckBoxImpl::SetResourceIcon(const QString& name)
{
    if (m_resourceIcon == name)
        return;
    m_resourceIcon = name;
    SetResourceIconImpl(m_resourceIcon);
}

void CKyUICheckBoxImpl::OnClicked(bool checked)
{
    // The toolkit's own order: state, toggle, click.
    m_checked = checked;
    EmitInOrder([&] { stateChanged.Emit(checked ? 1 : 0); }, [&] { toggled.Emit(checked); },
                [&] { clicked.Emit(checked); });
}

void CKyUICheckBoxImpl::OnSwitchChanged(bool checked)
{
    m_checked = checked;
    EmitState(checked);
}

void CKyUICheckBoxImpl::EmitState(bool checked)
{
    // 1 and 0, not the toolkit's check-state numbering.
    EmitInOrder([&] { stateChanged.Emit(checked ? 1 : 0); }, [&] { toggled.Emit(checked); });
}

QVariant CKyUICheckBoxImpl::RememberedValue() const
{
    return m_checked;
}

bool CKyUICheckBoxImpl::RestoreRememberedValue(const QVariant& value)
{
    bool checked = false;
    if (!KySettingsStore::ReadBool(value, &checked))
        return false;
    SetChecked(checked);
    return true;
}
