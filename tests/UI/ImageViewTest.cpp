#include "UI/CKyUIEvent.h"
#include "UI/CKyUIImageView.h"
#include "UI/CKyUIPreviewView.h"
#include "UI/Impl/CKyUIImageViewImpl.h"

#include <gtest/gtest.h>

#include <QtGui/QPainter>

#include <vector>

namespace
{
// Fills whatever it is asked to paint with one colour and notes what it saw.
template <class Base> struct FillingView : Base
{
    void paintEvent(CKyUIPaintEvent* event) override
    {
        rects.push_back(event->rect());
        painters.push_back(this->GetPainter());
        if (painters.back())
            painters.back()->fillRect(event->rect(), fill);
    }
    CKyUIImageViewImpl* impl() { return static_cast<CKyUIImageViewImpl*>(Base::impl()); }

    QColor fill = QColor(10, 200, 30);
    std::vector<QRect> rects;
    std::vector<QPainter*> painters;
};

bool AllPixelsAre(const QImage& image, const QColor& colour)
{
    QImage expected(image.size(), image.format());
    expected.fill(colour);
    return image == expected;
}
} // namespace

// No toolkit widget: a size change paints once through the subclass, with a
// painter that lives only for that call.
TEST(ImageViewTest, SizeChangePaintsOnceThroughTheSubclassWithALivePainter)
{
    CKyUIPreviewView preview;
    EXPECT_EQ(preview.getHandle(), nullptr);
    FillingView<CKyUIImageView> view;
    EXPECT_EQ(view.getHandle(), nullptr);
    EXPECT_TRUE(view.impl()->GetFrontendClassName().isEmpty());
    EXPECT_EQ(view.GetPainter(), nullptr);
    ASSERT_NE(view.pixmap(), nullptr);
    EXPECT_TRUE(view.pixmap()->isNull());

    view.impl()->OnSizeChanged(200, 100);
    ASSERT_EQ(view.rects, std::vector<QRect>{QRect(QPoint(0, 0), QPoint(199, 99))});
    ASSERT_NE(view.painters[0], nullptr);
    EXPECT_EQ(view.GetPainter(), nullptr);
    EXPECT_EQ(QSize(view.width(), view.height()), QSize(200, 100));
    const QImage& image = view.impl()->Image();
    EXPECT_EQ(image.size(), QSize(200, 100));
    EXPECT_EQ(image.format(), QImage::Format_ARGB32);
    EXPECT_TRUE(AllPixelsAre(image, view.fill));
}

// Update repaints at the recorded size, on a new surface each time; a zero
// width or height skips painting.
TEST(ImageViewTest, UpdateRepaintsAtTheRecordedSizeAndZeroSkips)
{
    FillingView<CKyUIImageView> view;
    view.update();
    view.resize(30, 20);
    EXPECT_TRUE(view.rects.empty());
    view.update();
    ASSERT_EQ(view.rects.size(), 1u);
    EXPECT_EQ(view.rects[0].size(), QSize(30, 20));
    view.fill = Qt::blue;
    view.update();
    EXPECT_TRUE(AllPixelsAre(view.impl()->Image(), Qt::blue));
    view.impl()->OnSizeChanged(0, 100);
    view.impl()->OnSizeChanged(100, 0);
    EXPECT_EQ(view.rects.size(), 2u);
    EXPECT_EQ(view.impl()->Image().size(), QSize(30, 20));
}

// The pixmap is only stored; the default handler stretches it over the
// image, and an override replaces that drawing.
TEST(ImageViewTest, DefaultHandlerStretchesThePixmapOverTheImage)
{
    QImage source(2, 1, QImage::Format_ARGB32);
    source.setPixel(0, 0, qRgb(255, 0, 0));
    source.setPixel(1, 0, qRgb(0, 0, 255));
    FillingView<CKyUIPreviewView> preview;
    CKyUIImageView view;
    auto* impl = static_cast<CKyUIImageViewImpl*>(view.impl());
    for (CKyUIImageView* each : {static_cast<CKyUIImageView*>(&preview), &view})
        each->setPixmap(QPixmap::fromImage(source));
    EXPECT_TRUE(impl->Image().isNull());
    EXPECT_EQ(view.pixmap()->size(), QSize(2, 1));

    impl->OnSizeChanged(40, 10);
    for (int y : {0, 9}) {
        EXPECT_EQ(impl->Image().pixel(2, y), qRgb(255, 0, 0)) << y;
        EXPECT_EQ(impl->Image().pixel(17, y), qRgb(255, 0, 0)) << y;
        EXPECT_EQ(impl->Image().pixel(22, y), qRgb(0, 0, 255)) << y;
        EXPECT_EQ(impl->Image().pixel(37, y), qRgb(0, 0, 255)) << y;
    }
    preview.impl()->OnSizeChanged(8, 6);
    ASSERT_EQ(preview.rects.size(), 1u);
    EXPECT_TRUE(AllPixelsAre(preview.impl()->Image(), preview.fill));
}
