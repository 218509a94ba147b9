#include "UI/Impl/CKyUIRadioButtonImpl.h"

#include <QtWidgets/QRadioButton>

namespace
{
QRadioButton* RadioButtonOf(const CKyUIObject* owner)
{
    return qobject_cast<QRadioButton*>(owner->getHandle());
}
} // namespace

void CKyUIRadioButtonImpl::CreateFrontendControl()
{
    auto* button = new QRadioButton;
    button->setStyleSheet(QStringLiteral("QRadioButton { }"));
    owner()->setHandle(button);
}

void CKyUIRadioButtonImpl::SetTextImpl(const QString& text)
{
    if (QRadioButton* button = RadioButtonOf(owner()))
        button->setText(text);
}

void CKyUIRadioButtonImpl::SetCheckedImpl(bool checked)
{
    if (QRadioButton* button = RadioButtonOf(owner()))
        button->setChecked(checked);
}
