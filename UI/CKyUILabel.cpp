#include "UI/CKyUILabel.h"

#include "UI/Impl/CKyUILabelImpl.h"

CKyUILabel::CKyUILabel()
{
    createImpl<CKyUILabelImpl>(this);
}

CKyUILabel::~CKyUILabel() = default;

void CKyUILabel::setText(const QString& text)
{
    implAs<CKyUILabelImpl>()->SetText(text);
}

QString CKyUILabel::text() const
{
    return implAs<CKyUILabelImpl>()->Text();
}

void CKyUILabel::clear()
{
    implAs<CKyUILabelImpl>()->SetText(QString());
}

void CKyUILabel::setIcon(const QIcon& icon)
{
    implAs<CKyUILabelImpl>()->SetIcon(icon);
}

void CKyUILabel::setBoldText(bool bold)
{
    implAs<CKyUILabelImpl>()->SetBoldTextImpl(bold);
}

void CKyUILabel::setFontSize(int size)
{
    implAs<CKyUILabelImpl>()->SetFontSize(size);
}

void CKyUILabel::setWordWrap(bool on)
{
    implAs<CKyUILabelImpl>()->SetWordWrap(on);
}

bool CKyUILabel::wordWrap() const
{
    return implAs<CKyUILabelImpl>()->WordWrap();
}

void CKyUILabel::setToolTip(const QString& toolTip)
{
    implAs<CKyUILabelImpl>()->SetToolTip(toolTip);
}
