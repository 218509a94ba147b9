#include "UI/Impl/CKyUICheckBoxImpl.h"

#include <QtWidgets/QCheckBox>

namespace
{
QCheckBox* CheckBoxOf(const CKyUIObject* owner)
{
    return qobject_cast<QCheckBox*>(owner->getHandle());
}
} // namespace

void CKyUICheckBoxImpl::CreateFrontendControl()
{
    auto* checkBox = new QCheckBox;
    checkBox->setStyleSheet(QStringLiteral("QCheckBox { }"));
    // The height is fixed whatever the text; the theme agrees.
    checkBox->setMinimumHeight(25);
    checkBox->setMaximumHeight(25);
    owner()->setHandle(checkBox);
}

void CKyUICheckBoxImpl::SetTextImpl(const QString& text)
{
    if (QCheckBox* checkBox = CheckBoxOf(owner()))
        checkBox->setText(text);
}

void CKyUICheckBoxImpl::SetCheckedImpl(bool checked)
{
    if (QCheckBox* checkBox = CheckBoxOf(owner()))
        checkBox->setChecked(checked);
}
