#include "UI/Impl/CKyUIDockWidgetImpl.h"

CKyUIDockWidgetImpl::CKyUIDockWidgetImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
{
}

CKyUIDockWidgetImpl::~CKyUIDockWidgetImpl() = default;

QString CKyUIDockWidgetImpl::GetFrontendClassName()
{
    return QStringLiteral("QDockWidget");
}

void CKyUIDockWidgetImpl::CreateFrontendControl()
{
    // No widget of its own: the handle stays as it is, null unless a host sets one.
}

void CKyUIDockWidgetImpl::SetArea(int area)
{
    SetAreaImpl(area);
}

void CKyUIDockWidgetImpl::SetWidget(CKyUIBaseView* view)
{
    m_widget = view;
    SetWidgetImpl(view);
}

void CKyUIDockWidgetImpl::SetTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    SetTitleImpl(title);
}

void CKyUIDockWidgetImpl::SetAreaImpl(int)
{
}

void CKyUIDockWidgetImpl::SetWidgetImpl(CKyUIBaseView*)
{
}

void CKyUIDockWidgetImpl::SetTitleImpl(const QString&)
{
}
