#include "UI/Impl/CKyUIProgressBarImpl.h"

#include "UI/CKyUIObject.h"
#include "UI/Impl/qt/KyControlSheet.h"

#include <QtWidgets/QProgressBar>

namespace
{
QProgressBar* BarOf(CKyUIObject* owner)
{
    return qobject_cast<QProgressBar*>(owner->getHandle());
}
} // namespace

void CKyUIProgressBarImpl::CreateFrontendControl()
{
    auto* bar = new QProgressBar;
    KyControlSheet::Apply(bar, QStringLiteral("progressbar"));
    bar->setRange(Minimum(), Maximum());
    bar->setValue(Value());
    bar->setAlignment(Qt::AlignCenter);
    owner()->setHandle(bar);
}

void CKyUIProgressBarImpl::SetRangeImpl(int minimum, int maximum)
{
    if (auto* bar = BarOf(owner()))
        bar->setRange(minimum, maximum);
}

void CKyUIProgressBarImpl::SetValueImpl(int value)
{
    if (auto* bar = BarOf(owner()))
        bar->setValue(value);
}

void CKyUIProgressBarImpl::ResetImpl()
{
    if (auto* bar = BarOf(owner()))
        bar->reset();
}

void CKyUIProgressBarImpl::SetFormatImpl(const QString& format)
{
    if (auto* bar = BarOf(owner()))
        bar->setFormat(format);
}

void CKyUIProgressBarImpl::SetTextVisibleImpl(bool visible)
{
    if (auto* bar = BarOf(owner()))
        bar->setTextVisible(visible);
}
