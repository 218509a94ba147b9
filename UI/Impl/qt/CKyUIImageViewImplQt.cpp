#include "UI/Impl/CKyUIImageViewImpl.h"

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUIEvent.h"

#include <QtCore/QRectF>
#include <QtGui/QPainter>

void CKyUIImageViewImpl::UpdateImpl()
{
    const int width = Width();
    const int height = Height();
    // A negative size makes no image either (and its rectangle would not
    // fit an int).
    if (width <= 0 || height <= 0)
        return;
    // Not cleared: whatever paints must cover the whole image.
    m_image = QImage(width, height, QImage::Format_ARGB32);
    m_painter.reset(new QPainter(&m_image));
    CKyUIPaintEvent event(QRect(0, 0, width, height));
    static_cast<CKyUIBaseView*>(owner())->paintEvent(&event);
    SetPixmapImpl(m_image);
    m_painter.reset();
}

void CKyUIImageViewImpl::DrawPixmap(const QRect& rect)
{
    if (!m_painter)
        return;
    m_painter->drawPixmap(QRectF(0, 0, rect.width(), rect.height()), m_pixmap, QRectF(m_pixmap.rect()));
}
