#pragma once

#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtGui/QImage>
#include <QtGui/QPixmap>

#include <memory>

class QPainter;
class QRect;

// The image view's off-screen surface and the pixmap its default handler
// draws. There is no toolkit widget; the hooks that would show the image are
// empty.
class CKyUIImageViewImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUIImageViewImpl(CKyUIObject* owner);
    ~CKyUIImageViewImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void OnSizeChanged(int width, int height) override;
    // Paints a fresh image of the stored size through the owner's paintEvent.
    void UpdateImpl() override;

    void SetPixmap(const QPixmap& pixmap);
    QPixmap* Pixmap() { return &m_pixmap; }
    QPainter* GetPainter() const { return m_painter.get(); }
    const QImage& Image() const { return m_image; }

    // The default drawing of the public paintEvent.
    void DrawPixmap(const QRect& rect);

    void SetPixmapImpl(const QImage& image);
    void MakePreviewWidget();

private:
    QImage m_image;
    QPixmap m_pixmap;
    std::unique_ptr<QPainter> m_painter; // open on m_image only during an update
};
