#pragma once

#include "commonui_export.h"

#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QRegion>

#include <cstdint>

/// Toolkit-neutral event records handed to the event handlers of views. The
/// type numbers are the toolkit's.
///
/// Events are plain values owned by whoever constructs them. The library
/// creates a paint event for an image view's paintEvent() and passes a dock
/// widget's show and hide events on to its content; otherwise clients build
/// events and call the handlers of their own views.
class COMMONUI_EXPORT CKyUIEvent
{
public:
    /// The kind of event, with the toolkit's numbers.
    enum Type : std::uint16_t {
        None = 0,     ///< No event.
        FocusIn = 8,  ///< Reported by every CKyUIFocusEvent.
        FocusOut = 9, ///< Never reported: a focus event always says FocusIn.
        Paint = 12,   ///< A CKyUIPaintEvent.
        Resize = 14,  ///< A CKyUIResizeEvent.
        Show = 17,    ///< A CKyUIShowEvent.
        Hide = 18,    ///< A CKyUIHideEvent.
    };

    /// An event of the given type.
    explicit CKyUIEvent(Type type);
    virtual ~CKyUIEvent();

    /// The event's type.
    Type type() const { return m_type; }

private:
    Type m_type;
};

/// A view is hidden (type Hide).
class COMMONUI_EXPORT CKyUIHideEvent : public CKyUIEvent
{
public:
    /// A hide event.
    CKyUIHideEvent();
};

/// A view is shown (type Show).
class COMMONUI_EXPORT CKyUIShowEvent : public CKyUIEvent
{
public:
    /// A show event.
    CKyUIShowEvent();
};

/// A view's size changed (type Resize).
class COMMONUI_EXPORT CKyUIResizeEvent : public CKyUIEvent
{
public:
    /// An event from @p oldSize to @p size.
    CKyUIResizeEvent(const QSize& size, const QSize& oldSize);

    /// The new size.
    const QSize& size() const { return m_size; }
    /// The size before.
    const QSize& oldSize() const { return m_oldSize; }

private:
    QSize m_size;
    QSize m_oldSize;
};

/// A view is to be painted (type Paint). Carries either a rectangle or a
/// region, whichever the constructor was given; the other stays empty and is
/// not derived from it, so a handler reads the one it was built with.
class COMMONUI_EXPORT CKyUIPaintEvent : public CKyUIEvent
{
public:
    /// An event for a region; rect() stays null.
    explicit CKyUIPaintEvent(const QRegion& region);
    /// An event for a rectangle; region() stays empty. The image view uses
    /// this form, with the whole image as rectangle.
    explicit CKyUIPaintEvent(const QRect& rect);

    /// The rectangle given to the constructor, or a null rectangle.
    const QRect& rect() const { return m_rect; }
    /// The region given to the constructor, or an empty region.
    const QRegion& region() const { return m_region; }

private:
    QRect m_rect;
    QRegion m_region;
};

/// A view gained or lost the focus. Its type is always FocusIn.
class COMMONUI_EXPORT CKyUIFocusEvent : public CKyUIEvent
{
public:
    /// Why the focus changed: the values of the toolkit's focus reasons.
    enum FocusReason : std::int32_t {
        MouseFocusReason,        ///< A mouse action.
        TabFocusReason,          ///< The Tab key.
        BacktabFocusReason,      ///< Backtab.
        ActiveWindowFocusReason, ///< The window became active or inactive.
        PopupFocusReason,        ///< A pop-up opened or closed.
        ShortcutFocusReason,     ///< A label's buddy shortcut.
        MenuBarFocusReason,      ///< The menu bar took the focus.
        OtherFocusReason,        ///< Any other reason.
        NoFocusReason,           ///< No reason given.
    };

    /// The type argument is ignored: every focus event reports FocusIn, also
    /// one built for focus-out. Clients rely on this.
    CKyUIFocusEvent(Type type, FocusReason reason);

    /// The reason given to the constructor.
    FocusReason reason() const { return m_reason; }

private:
    FocusReason m_reason;
};
