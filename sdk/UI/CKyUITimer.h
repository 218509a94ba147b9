#pragma once

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <functional>

/// A repeating timer whose isActive() turns false at the first timeout, while
/// it keeps firing and emitting timeout() (see
/// \ref behaviours_controls "behaviours"). For one shot, call stop() in the
/// slot or use singleShot(). An interactive timer (see setInteractive()) stays
/// active until stop().
///
/// The toolkit timer is created with the object and deleted with it.
class COMMONUI_EXPORT CKyUITimer : public CKyUIObject
{
public:
    /// An inactive timer.
    CKyUITimer();
    /// Deletes the toolkit timer: no timeout follows.
    ~CKyUITimer() override;

    /// Starts (or restarts) the timer, firing every @p msec milliseconds
    /// until stop(); isActive() is true until the first timeout.
    void start(int msec);
    /// Stops the timer; isActive() is false.
    void stop();
    /// The stored flag: true from start() until the first timeout or stop(),
    /// not the toolkit timer's state. Interactive: true from start() until
    /// stop().
    bool isActive() const;

    /// Emitted at every firing, also after isActive() turned false.
    CKyUISignal<void()>& timeout();

    /// Runs the callback once, msec milliseconds from now, on the calling
    /// thread's event loop; nothing ties it to a receiver. singleShot(0, f)
    /// runs f on the next pass of the event loop, not inside the call.
    static void singleShot(int msec, std::function<void()> callback);
};
