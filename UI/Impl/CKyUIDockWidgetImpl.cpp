#include "UI/Impl/CKyUIDockWidgetImpl.h"

#include "UI/CKyUIBaseView.h"

CKyUIDockWidgetImpl::CKyUIDockWidgetImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
{}

CKyUIDockWidgetImpl::~CKyUIDockWidgetImpl()
{
    ReleaseDockImpl();
}

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
    m_area = area;
    SetAreaImpl(area);
}

void CKyUIDockWidgetImpl::SetWidget(CKyUIBaseView* view)
{
    m_widget = view;
    m_widgetLifetime.reset();
    if (view && view->impl())
        m_widgetLifetime = view->impl()->GetLifetime();
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
    // The host places the dock: it asks for the area.
}
