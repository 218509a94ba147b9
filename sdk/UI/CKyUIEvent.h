#pragma once

#include "commonui_export.h"

#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QRegion>

#include <cstdint>

// Toolkit-neutral event records handed to the event handlers of views. The
// type numbers are the toolkit's.
class COMMONUI_EXPORT CKyUIEvent
{
public:
    enum Type : std::uint16_t {
        None = 0,
        FocusIn = 8,
        FocusOut = 9,
        Paint = 12,
        Resize = 14,
        Show = 17,
        Hide = 18,
    };

    explicit CKyUIEvent(Type type);
    virtual ~CKyUIEvent();

    Type type() const { return m_type; }

private:
    Type m_type;
};

class COMMONUI_EXPORT CKyUIHideEvent : public CKyUIEvent
{
public:
    CKyUIHideEvent();
};

class COMMONUI_EXPORT CKyUIShowEvent : public CKyUIEvent
{
public:
    CKyUIShowEvent();
};

class COMMONUI_EXPORT CKyUIResizeEvent : public CKyUIEvent
{
public:
    CKyUIResizeEvent(const QSize& size, const QSize& oldSize);

    const QSize& size() const { return m_size; }
    const QSize& oldSize() const { return m_oldSize; }

private:
    QSize m_size;
    QSize m_oldSize;
};

// Carries either a rectangle or a region, whichever the constructor was given;
// the other stays empty and is not derived from it.
class COMMONUI_EXPORT CKyUIPaintEvent : public CKyUIEvent
{
public:
    explicit CKyUIPaintEvent(const QRegion& region);
    explicit CKyUIPaintEvent(const QRect& rect);

    const QRect& rect() const { return m_rect; }
    const QRegion& region() const { return m_region; }

private:
    QRect m_rect;
    QRegion m_region;
};

class COMMONUI_EXPORT CKyUIFocusEvent : public CKyUIEvent
{
public:
    // The values of the toolkit's focus reasons.
    enum FocusReason : std::int32_t {
        MouseFocusReason,
        TabFocusReason,
        BacktabFocusReason,
        ActiveWindowFocusReason,
        PopupFocusReason,
        ShortcutFocusReason,
        MenuBarFocusReason,
        OtherFocusReason,
        NoFocusReason,
    };

    // The type argument is ignored: every focus event reports FocusIn, also
    // one built for focus-out. Clients rely on this.
    CKyUIFocusEvent(Type type, FocusReason reason);

    FocusReason reason() const { return m_reason; }

private:
    FocusReason m_reason;
};
