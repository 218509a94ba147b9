#include "UI/CKyUITextView.h"

#include "UI/Impl/CKyUITextViewImpl.h"

CKyUITextView::CKyUITextView()
{
    createImpl<CKyUITextViewImpl>(this);
}

CKyUITextView::~CKyUITextView() = default;

void CKyUITextView::setText(const QString& text)
{
    implAs<CKyUITextViewImpl>()->SetText(text);
}

void CKyUITextView::setHtmlText(const QString& text)
{
    implAs<CKyUITextViewImpl>()->SetHtmlText(text);
}

void CKyUITextView::addText(const QString& text)
{
    implAs<CKyUITextViewImpl>()->AddText(text);
}

void CKyUITextView::addHtmlText(const QString& text)
{
    implAs<CKyUITextViewImpl>()->AddHtmlText(text);
}

void CKyUITextView::clear()
{
    implAs<CKyUITextViewImpl>()->Clear();
}

QString CKyUITextView::getContent() const
{
    return implAs<CKyUITextViewImpl>()->GetContent();
}

void CKyUITextView::setReadOnly(bool readOnly)
{
    implAs<CKyUITextViewImpl>()->SetReadOnly(readOnly);
}

void CKyUITextView::setMultiline(bool multiline)
{
    implAs<CKyUITextViewImpl>()->SetMultiline(multiline);
}

void CKyUITextView::setPlaceholderText(const QString& text)
{
    implAs<CKyUITextViewImpl>()->SetPlaceholderText(text);
}

QString CKyUITextView::placeholderText() const
{
    return implAs<CKyUITextViewImpl>()->PlaceholderText();
}

void CKyUITextView::setAdjustHeightToContent(const bool& adjust)
{
    implAs<CKyUITextViewImpl>()->SetAdjustHeightToContent(adjust);
}

bool CKyUITextView::getAdjustHeightToContent() const
{
    return implAs<CKyUITextViewImpl>()->GetAdjustHeightToContent();
}

CKyUISignal<void()>& CKyUITextView::textChanged()
{
    return implAs<CKyUITextViewImpl>()->textChanged;
}

CKyUISignal<void()>& CKyUITextView::focusInEventSignal()
{
    return implAs<CKyUITextViewImpl>()->focusInEventSignal;
}

CKyUISignal<void()>& CKyUITextView::focusOutEventSignal()
{
    return implAs<CKyUITextViewImpl>()->focusOutEventSignal;
}
