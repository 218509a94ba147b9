#include "UI/CKyUIImageView.h"

#include "UI/CKyUIEvent.h"
#include "UI/Impl/CKyUIImageViewImpl.h"

CKyUIImageView::CKyUIImageView()
{
    createImpl<CKyUIImageViewImpl>(this);
}

CKyUIImageView::~CKyUIImageView() = default;

void CKyUIImageView::setPixmap(const QPixmap& pixmap)
{
    implAs<CKyUIImageViewImpl>()->SetPixmap(pixmap);
}

QPixmap* CKyUIImageView::pixmap() const
{
    return implAs<CKyUIImageViewImpl>()->Pixmap();
}

QPainter* CKyUIImageView::GetPainter()
{
    return implAs<CKyUIImageViewImpl>()->GetPainter();
}

void CKyUIImageView::paintEvent(CKyUIPaintEvent* event)
{
    if (event)
        implAs<CKyUIImageViewImpl>()->DrawPixmap(event->rect());
}
