#include "UI/CKyUIEvent.h"

CKyUIEvent::CKyUIEvent(Type type)
    : m_type(type)
{
}

CKyUIEvent::~CKyUIEvent() = default;

CKyUIHideEvent::CKyUIHideEvent()
    : CKyUIEvent(Hide)
{
}

CKyUIShowEvent::CKyUIShowEvent()
    : CKyUIEvent(Show)
{
}

CKyUIResizeEvent::CKyUIResizeEvent(const QSize& size, const QSize& oldSize)
    : CKyUIEvent(Resize)
    , m_size(size)
    , m_oldSize(oldSize)
{
}

CKyUIPaintEvent::CKyUIPaintEvent(const QRegion& region)
    : CKyUIEvent(Paint)
    , m_region(region)
{
}

CKyUIPaintEvent::CKyUIPaintEvent(const QRect& rect)
    : CKyUIEvent(Paint)
    , m_rect(rect)
{
}

CKyUIFocusEvent::CKyUIFocusEvent(Type, FocusReason reason)
    : CKyUIEvent(FocusIn)
    , m_reason(reason)
{
}
