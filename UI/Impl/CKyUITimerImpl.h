#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <functional>

// Creates the toolkit timer itself, at construction, and deletes it at
// destruction. The active flag is the library's own: set by start, cleared by
// stop and by every timeout.
class CKyUITimerImpl : public CKyUIObjectImpl
{
public:
    explicit CKyUITimerImpl(CKyUIObject* owner);
    ~CKyUITimerImpl() override;

    void start(int msec);
    void stop();
    bool isActive() const { return m_active; }
    static void singleShot(int msec, std::function<void()> callback);

    void CreateTimerImpl();
    void DestroyTimerImpl();
    void StartImpl(int msec);
    void StopImpl();
    static void SingleShotImpl(int msec, std::function<void()> callback);

    void OnTimeout();

private:
    bool m_active = false;

public:
    CKyUISignal<void()> timeout;
};
