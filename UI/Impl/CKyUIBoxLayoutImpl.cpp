#include "UI/Impl/CKyUIBoxLayoutImpl.h"

#include "UI/CKyUIObject.h"

CKyUIBoxLayoutImpl::CKyUIBoxLayoutImpl(CKyUIObject* owner, Direction direction)
    : CKyUIBaseViewImpl(owner)
    , m_direction(direction)
{}

QString CKyUIBoxLayoutImpl::GetFrontendClassName()
{
    return m_direction == Direction::Horizontal ? QStringLiteral("QHBoxLayout")
                                                : QStringLiteral("QVBoxLayout");
}

void CKyUIBoxLayoutImpl::SetTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    SetTitleImpl(title);
}

void CKyUIBoxLayoutImpl::SetTitleImpl(const QString&) {}

CKyUIHorizontalLayoutImpl::CKyUIHorizontalLayoutImpl(CKyUIObject* owner)
    : CKyUIBoxLayoutImpl(owner, Direction::Horizontal)
{}

void CKyUIHorizontalLayoutImpl::RemoveViewImpl(CKyUIBaseView* view)
{
    if (owner()->isInteractive())
        RemoveWidgetImpl(view);
}

CKyUIVerticalLayoutImpl::CKyUIVerticalLayoutImpl(CKyUIObject* owner)
    : CKyUIBoxLayoutImpl(owner, Direction::Vertical)
{}

void CKyUIVerticalLayoutImpl::RemoveViewImpl(CKyUIBaseView* view)
{
    RemoveWidgetImpl(view);
}
