#include "UI/CKyUIPushButton.h"

#include "UI/Impl/CKyUIPushButtonImpl.h"

CKyUIPushButton::CKyUIPushButton()
{
    createImpl<CKyUIPushButtonImpl>(this);
}

CKyUIPushButton::~CKyUIPushButton() = default;

void CKyUIPushButton::setText(const QString& text)
{
    implAs<CKyUIPushButtonImpl>()->SetText(text);
}

QString CKyUIPushButton::text() const
{
    return implAs<CKyUIPushButtonImpl>()->Text();
}

void CKyUIPushButton::setIcon(const QIcon& icon)
{
    implAs<CKyUIPushButtonImpl>()->SetIcon(icon);
}

void CKyUIPushButton::setResourceIcon(const QString& path)
{
    implAs<CKyUIPushButtonImpl>()->SetResourceIcon(path);
}

void CKyUIPushButton::setTextAlignment(TextAlignment alignment)
{
    implAs<CKyUIPushButtonImpl>()->SetTextAlignmentImpl(alignment);
}

void CKyUIPushButton::setBoldText(bool bold)
{
    implAs<CKyUIPushButtonImpl>()->SetBoldTextImpl(bold);
}

void CKyUIPushButton::setToolTip(const QString& toolTip)
{
    // Recorded for toolTip() as well; the button's own step stays as it is.
    implAs<CKyUIPushButtonImpl>()->RecordHelpText(CKyUIBaseViewImpl::HelpText::ToolTip, toolTip);
    implAs<CKyUIPushButtonImpl>()->SetToolTipImpl(toolTip);
}

void CKyUIPushButton::setCheckable(bool checkable)
{
    implAs<CKyUIPushButtonImpl>()->SetCheckableImpl(checkable);
}

CKyUISignal<void(bool)>& CKyUIPushButton::clicked()
{
    return implAs<CKyUIPushButtonImpl>()->clicked;
}

CKyUISignal<void()>& CKyUIPushButton::pressed()
{
    return implAs<CKyUIPushButtonImpl>()->pressed;
}

CKyUISignal<void()>& CKyUIPushButton::released()
{
    return implAs<CKyUIPushButtonImpl>()->released;
}
