#include "UI/Impl/CKyUIImageViewImpl.h"

#include <QtGui/QPainter>

CKyUIImageViewImpl::CKyUIImageViewImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
{
}

CKyUIImageViewImpl::~CKyUIImageViewImpl() = default;

QString CKyUIImageViewImpl::GetFrontendClassName()
{
    return QString();
}

void CKyUIImageViewImpl::CreateFrontendControl()
{
}

void CKyUIImageViewImpl::OnSizeChanged(int width, int height)
{
    CKyUIBaseViewImpl::OnSizeChanged(width, height);
    UpdateImpl();
}

void CKyUIImageViewImpl::SetPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
}

void CKyUIImageViewImpl::SetPixmapImpl(const QImage&)
{
}

void CKyUIImageViewImpl::MakePreviewWidget()
{
}
