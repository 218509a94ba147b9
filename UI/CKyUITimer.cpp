#include "UI/CKyUITimer.h"

#include "UI/Impl/CKyUITimerImpl.h"

#include <utility>

CKyUITimer::CKyUITimer()
{
    setImpl(new CKyUITimerImpl(this));
}

CKyUITimer::~CKyUITimer() = default;

void CKyUITimer::start(int msec)
{
    implAs<CKyUITimerImpl>()->start(msec);
}

void CKyUITimer::stop()
{
    implAs<CKyUITimerImpl>()->stop();
}

bool CKyUITimer::isActive() const
{
    return implAs<CKyUITimerImpl>()->isActive();
}

CKyUISignal<void()>& CKyUITimer::timeout()
{
    return implAs<CKyUITimerImpl>()->timeout;
}

void CKyUITimer::singleShot(int msec, std::function<void()> callback)
{
    CKyUITimerImpl::singleShot(msec, std::move(callback));
}
