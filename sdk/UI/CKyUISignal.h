#pragma once

#include "UI/CKyUIObject.h"
#include "UI/slimsig/detail/signal_base"
#include "commonui_export.h"

#include <functional>
#include <utility>

// Qt's keywords define `emit` as an empty macro; set it aside here (the
// signal's own emission carries that name) and restore it at the end.
#pragma push_macro("emit")
#undef emit

// The signal of every public notification, bound to the public object whose
// blockSignals() silences it. Clients connect through the object's accessor.
template <class Sig>
class CKyUISignal;

template <class R, class... Args>
class CKyUISignal<R(Args...)>
    : public slimsig::signal_base<slimsig::signal_traits<R(Args...)>,
                                  std::allocator<std::function<R(Args...)>>, R(Args...)>
{
public:
    explicit CKyUISignal(CKyUIObject* owner)
        : m_owner(owner)
    {
    }

    CKyUIObject* owner() const { return m_owner; }

    // Asks the owner on every call, so blocking takes effect for the very next
    // emission, also one made from inside a slot. The sender is left alone.
    void Emit(Args... args)
    {
        if (m_owner && m_owner->signalsBlocked())
            return;
        this->emit(std::forward<Args>(args)...);
    }

private:
    CKyUIObject* const m_owner;
};

// Tells the receivers of an emission who sent it: sets the object's sender for
// the guard's lifetime. Guards do not nest: the inner one's end clears the
// sender even if an outer guard set it.
class COMMONUI_EXPORT CKyUIEmitScope
{
public:
    CKyUIEmitScope(CKyUIObject* object, CKyUIObject* sender);
    ~CKyUIEmitScope();

    CKyUIEmitScope(const CKyUIEmitScope&) = delete;
    CKyUIEmitScope& operator=(const CKyUIEmitScope&) = delete;

private:
    CKyUIObject* const m_object;
};

#pragma pop_macro("emit")
