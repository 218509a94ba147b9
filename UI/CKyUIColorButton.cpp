#include "UI/CKyUIColorButton.h"

#include "UI/Impl/CKyUIColorButtonImpl.h"

CKyUIColorButton::CKyUIColorButton()
{
    createImpl<CKyUIColorButtonImpl>(this);
}

CKyUIColorButton::~CKyUIColorButton() = default;

void CKyUIColorButton::setColor(const QColor& color)
{
    implAs<CKyUIColorButtonImpl>()->SetColor(color);
}

QColor CKyUIColorButton::color() const
{
    return implAs<CKyUIColorButtonImpl>()->Color();
}

void CKyUIColorButton::setChooserTitle(const QString& title)
{
    implAs<CKyUIColorButtonImpl>()->SetChooserTitle(title);
}

QString CKyUIColorButton::chooserTitle() const
{
    return implAs<CKyUIColorButtonImpl>()->ChooserTitle();
}

CKyUISignal<void(QColor)>& CKyUIColorButton::colorChanged()
{
    return implAs<CKyUIColorButtonImpl>()->colorChanged;
}
