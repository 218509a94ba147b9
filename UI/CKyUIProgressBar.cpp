#include "UI/CKyUIProgressBar.h"

#include "UI/Impl/CKyUIProgressBarImpl.h"

CKyUIProgressBar::CKyUIProgressBar()
{
    createImpl<CKyUIProgressBarImpl>(this);
}

CKyUIProgressBar::~CKyUIProgressBar() = default;

void CKyUIProgressBar::setRange(int minimum, int maximum)
{
    implAs<CKyUIProgressBarImpl>()->SetRange(minimum, maximum);
}

int CKyUIProgressBar::minimum() const
{
    return implAs<CKyUIProgressBarImpl>()->Minimum();
}

int CKyUIProgressBar::maximum() const
{
    return implAs<CKyUIProgressBarImpl>()->Maximum();
}

void CKyUIProgressBar::setValue(int value)
{
    implAs<CKyUIProgressBarImpl>()->SetValue(value);
}

int CKyUIProgressBar::value() const
{
    return implAs<CKyUIProgressBarImpl>()->Value();
}

void CKyUIProgressBar::reset()
{
    implAs<CKyUIProgressBarImpl>()->Reset();
}

void CKyUIProgressBar::setProgress(long long received, long long total)
{
    implAs<CKyUIProgressBarImpl>()->SetProgress(received, total);
}

void CKyUIProgressBar::setBusy(bool busy)
{
    implAs<CKyUIProgressBarImpl>()->SetBusy(busy);
}

bool CKyUIProgressBar::isBusy() const
{
    return implAs<CKyUIProgressBarImpl>()->IsBusy();
}

void CKyUIProgressBar::setFormat(const QString& format)
{
    implAs<CKyUIProgressBarImpl>()->SetFormat(format);
}

QString CKyUIProgressBar::format() const
{
    return implAs<CKyUIProgressBarImpl>()->Format();
}

void CKyUIProgressBar::setTextVisible(bool visible)
{
    implAs<CKyUIProgressBarImpl>()->SetTextVisible(visible);
}

bool CKyUIProgressBar::isTextVisible() const
{
    return implAs<CKyUIProgressBarImpl>()->IsTextVisible();
}
