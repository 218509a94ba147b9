#include "UI/Impl/CKyUIRadioButtonImpl.h"

CKyUIRadioButtonImpl::CKyUIRadioButtonImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , released(owner)
    , clicked(owner)
    , toggled(owner)
{}

CKyUIRadioButtonImpl::~CKyUIRadioButtonImpl() = default;

QString CKyUIRadioButtonImpl::GetFrontendClassName()
{
    return QStringLiteral("QRadioButton");
}

void CKyUIRadioButtonImpl::SetText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    SetTextImpl(m_text);
}

void CKyUIRadioButtonImpl::SetChecked(bool checked)
{
    // The widget first and always, unlike the check box: it may have been
    // switched on screen by a click or by a sibling's exclusion.
    SetCheckedImpl(checked);
    if (m_checked == checked)
        return;
    m_checked = checked;
    toggled.Emit(checked);
}

void CKyUIRadioButtonImpl::OnClicked()
{
    clicked.Emit();
}

void CKyUIRadioButtonImpl::OnToggled(bool checked)
{
    if (m_checked != checked) {
        m_checked = checked;
        if (!EmitInOrder([&] { toggled.Emit(checked); }))
            return;
    }
    released.Emit();
}

void CKyUIRadioButtonImpl::OnUserToggled(bool checked)
{
    if (m_checked == checked)
        return;
    m_checked = checked;
    toggled.Emit(checked);
}

void CKyUIRadioButtonImpl::SetContainer(CKyUIRadioGroupImpl* container)
{
    m_container = container;
}
