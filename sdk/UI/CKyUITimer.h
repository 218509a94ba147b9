#pragma once

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <functional>

// A repeating timer. isActive() turns false at the first timeout although the
// timer keeps firing and emitting timeout(); for one shot, call stop() in the
// slot or use singleShot().
class COMMONUI_EXPORT CKyUITimer : public CKyUIObject
{
public:
    CKyUITimer();
    ~CKyUITimer() override;

    void start(int msec);
    void stop();
    bool isActive() const;

    CKyUISignal<void()>& timeout();

    // Runs the callback once, msec milliseconds from now, on the calling
    // thread's event loop; nothing ties it to a receiver.
    static void singleShot(int msec, std::function<void()> callback);
};
