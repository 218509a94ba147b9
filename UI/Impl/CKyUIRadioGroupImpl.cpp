#include "UI/Impl/CKyUIRadioGroupImpl.h"

#include "UI/CKyUIRadioButton.h"

CKyUIRadioGroupImpl::CKyUIRadioGroupImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
{}

QString CKyUIRadioGroupImpl::GetFrontendClassName()
{
    return QStringLiteral("QButtonGroup");
}

void CKyUIRadioGroupImpl::SetTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    SetTitleImpl(m_title);
}

void CKyUIRadioGroupImpl::AddRadioButton(CKyUIRadioButton* button)
{
    if (!button)
        return;
    button->setParent(owner());
    m_buttons.append(button);
    AddRadioButtonImpl(button);
}

void CKyUIRadioGroupImpl::OnCurrentIndexChanged(int index)
{
    const QList<CKyUIRadioButton*> buttons = m_buttons;
    for (int i = 0; i < buttons.size(); ++i)
        buttons.at(i)->setChecked(i == index);
}

void CKyUIRadioGroupImpl::SetText(CKyUIRadioButton* button, const QString& text)
{
    const int index = m_buttons.indexOf(button);
    if (index >= 0)
        SetTextImpl(index, text);
}

void CKyUIRadioGroupImpl::SetCurrent(CKyUIRadioButton* button)
{
    const int index = m_buttons.indexOf(button);
    if (index >= 0)
        SetCurrentImpl(index);
}

void CKyUIRadioGroupImpl::SetTitleImpl(const QString&) {}

void CKyUIRadioGroupImpl::SetTextImpl(int, const QString&) {}

void CKyUIRadioGroupImpl::SetCurrentImpl(int) {}
