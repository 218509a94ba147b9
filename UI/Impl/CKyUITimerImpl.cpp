#include "UI/Impl/CKyUITimerImpl.h"

#include "UI/CKyUIObject.h"

#include <utility>

CKyUITimerImpl::CKyUITimerImpl(CKyUIObject* owner)
    : CKyUIObjectImpl(owner)
    , timeout(owner)
{
    CreateTimerImpl();
}

CKyUITimerImpl::~CKyUITimerImpl()
{
    DestroyTimerImpl();
}

void CKyUITimerImpl::start(int msec)
{
    m_active = true;
    StartImpl(msec);
}

void CKyUITimerImpl::stop()
{
    m_active = false;
    StopImpl();
}

void CKyUITimerImpl::singleShot(int msec, std::function<void()> callback)
{
    SingleShotImpl(msec, std::move(callback));
}

void CKyUITimerImpl::OnTimeout()
{
    // Cleared although the timer goes on firing, unless the owner follows
    // its user: then the flag tells the truth until stop().
    if (!owner()->isInteractive())
        m_active = false;
    timeout.Emit();
}
