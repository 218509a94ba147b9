#pragma once

#include "UI/CKyUIObject.h"
#include "UI/slimsig/detail/signal_base"
#include "commonui_export.h"

#include <functional>
#include <utility>

/// \file
/// The signal type of every public notification, and the guard that names the
/// sender of an emission.

// Qt's keywords define `emit` as an empty macro; set it aside here (the
// signal's own emission carries that name) and restore it at the end.
#pragma push_macro("emit")
#undef emit

/// The signal of every public notification, bound to the public object whose
/// blockSignals() drops its emissions (see
/// \ref behaviours_signals "behaviours"). Clients connect through the object's
/// accessor.
///
/// Connect any callable with connect(); it returns a
/// slimsig::connection, a plain value: keep it to disconnect later, or drop
/// it, which leaves the slot connected for the signal's whole life. A
/// slimsig::scoped_connection disconnects when it goes out of scope.
///
/// \code
/// auto connection = button->clicked().connect([](bool) { /* ... */ });
/// connection.disconnect();
/// \endcode
///
/// Slots are called in connection order. Slots connected during an emission
/// are first called by the next one; a slot disconnected during an emission,
/// before its turn, is skipped. A slot may connect, disconnect, emit again, or
/// delete the object that owns the signal: deleting it ends that emission (the
/// later slots are not called), and the slot's own captures die with it, so
/// copy what the slot still needs into locals first.
///
/// The signal lives as long as its owner's implementation; a connection that
/// outlives it refers to nothing, and disconnecting through it does nothing.
/// Single-threaded: connect, emit and destroy on the user-interface thread.
///
/// \tparam Sig the signature of the slots, for instance `void(int)`.
template <class Sig>
class CKyUISignal;

/// The signal for slots of signature `R(Args...)`; see CKyUISignal.
/// \ingroup classes_foundation
template <class R, class... Args>
class CKyUISignal<R(Args...)>
    : public slimsig::signal_base<slimsig::signal_traits<R(Args...)>,
                                  std::allocator<std::function<R(Args...)>>, R(Args...)>
{
public:
    /// An empty signal whose blocking follows @p owner. The library creates
    /// its signals; clients reach them through accessors such as clicked().
    explicit CKyUISignal(CKyUIObject* owner)
        : m_owner(owner)
        , m_blocked(owner ? owner->signalsBlockedFlag() : &kNeverBlocked)
    {
    }

    /// The object whose blockSignals() silences this signal.
    CKyUIObject* owner() const { return m_owner; }

    /// Calls the slots unless the owner's signals are blocked. Asks the owner
    /// on every call, so blocking takes effect for the very next emission, also
    /// one made from inside a slot. The sender is left alone.
    void Emit(Args... args)
    {
        if (*m_blocked)
            return;
        this->emit(std::forward<Args>(args)...);
    }

private:
    static constexpr bool kNeverBlocked = false;

    CKyUIObject* const m_owner;
    // The owner's flag, which lives as long as the owner: the signal dies
    // with the owner's implementation, before the owner's state.
    const bool* const m_blocked;
};

/// Tells the receivers of an emission who sent it: sets the object's sender for
/// the guard's lifetime. Guards do not nest: the inner one's end clears the
/// sender even if an outer guard set it.
class COMMONUI_EXPORT CKyUIEmitScope
{
public:
    /// Sets @p sender as the sender of @p object; a null @p object makes the
    /// guard do nothing at either end.
    CKyUIEmitScope(CKyUIObject* object, CKyUIObject* sender);
    /// Clears the object's sender. Never throws.
    ~CKyUIEmitScope();

    CKyUIEmitScope(const CKyUIEmitScope&) = delete;
    CKyUIEmitScope& operator=(const CKyUIEmitScope&) = delete;

private:
    CKyUIObject* const m_object;
};

#pragma pop_macro("emit")
