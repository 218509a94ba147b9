#include "UI/Impl/CKyUITimerImpl.h"

#include "UI/CKyUIObject.h"

#include <QtCore/QTimer>

#include <utility>

void CKyUITimerImpl::CreateTimerImpl()
{
    // Left repeating, as the toolkit creates it.
    auto* timer = new QTimer(nullptr);
    owner()->setHandle(timer);
    QObject::connect(timer, &QTimer::timeout, [this]() { OnTimeout(); });
}

void CKyUITimerImpl::DestroyTimerImpl()
{
    if (QObject* timer = owner()->getHandle()) {
        delete timer;
        owner()->setHandle(nullptr);
    }
}

void CKyUITimerImpl::StartImpl(int msec)
{
    if (auto* timer = qobject_cast<QTimer*>(owner()->getHandle()))
        timer->start(msec);
}

void CKyUITimerImpl::StopImpl()
{
    if (auto* timer = qobject_cast<QTimer*>(owner()->getHandle()))
        timer->stop();
}

void CKyUITimerImpl::SingleShotImpl(int msec, std::function<void()> callback)
{
    // An empty callback would throw from inside the event loop.
    if (!callback)
        return;
    QTimer::singleShot(msec, std::move(callback));
}
