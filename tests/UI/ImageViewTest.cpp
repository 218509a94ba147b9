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
template <class Base>
class FillingView : public Base
{
public:
    void paintEvent(CKyUIPaintEvent* event) override
    {
        rects.push_back(event->rect());
        QPainter* painter = this->GetPainter();
        paintersSeen.push_back(painter);
        if (painter)
            painter->fillRect(event->rect(), fill);
    }

    QColor fill = QColor(10, 200, 30);
    std::vector<QRect> rects;
    std::vector<QPainter*> paintersSeen;
};

CKyUIImageViewImpl* ImplOf(CKyUIImageView& view)
{
    return static_cast<CKyUIImageViewImpl*>(view.impl());
}

bool AllPixelsAre(const QImage& image, QRgb expected)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != expected)
                return false;
    return true;
}
} // namespace

TEST(ImageViewTest, HasNoToolkitWidget)
{
    CKyUIImageView image;
    CKyUIPreviewView preview;
    EXPECT_EQ(image.getHandle(), nullptr);
    EXPECT_EQ(preview.getHandle(), nullptr);
    EXPECT_TRUE(image.impl()->GetFrontendClassName().isEmpty());
    EXPECT_EQ(image.GetPainter(), nullptr);
    ASSERT_NE(image.pixmap(), nullptr);
    EXPECT_TRUE(image.pixmap()->isNull());
}

TEST(ImageViewTest, SizeChangePaintsOnceThroughTheSubclassWithALivePainter)
{
    FillingView<CKyUIImageView> view;
    ImplOf(view)->OnSizeChanged(200, 100);

    ASSERT_EQ(view.rects.size(), 1u);
    EXPECT_EQ(view.rects[0], QRect(QPoint(0, 0), QPoint(199, 99)));
    ASSERT_NE(view.paintersSeen[0], nullptr);
    EXPECT_EQ(view.GetPainter(), nullptr);
    EXPECT_EQ(view.width(), 200);
    EXPECT_EQ(view.height(), 100);

    const QImage& image = ImplOf(view)->Image();
    EXPECT_EQ(image.size(), QSize(200, 100));
    EXPECT_EQ(image.format(), QImage::Format_ARGB32);
    EXPECT_TRUE(AllPixelsAre(image, view.fill.rgba()));
}

TEST(ImageViewTest, UpdateRepaintsAtTheRecordedSizeAndZeroSkips)
{
    FillingView<CKyUIImageView> view;
    view.update();
    EXPECT_TRUE(view.rects.empty());

    view.resize(30, 20);
    EXPECT_TRUE(view.rects.empty());
    view.update();
    ASSERT_EQ(view.rects.size(), 1u);
    EXPECT_EQ(view.rects[0].size(), QSize(30, 20));

    // A new surface at every update.
    view.fill = Qt::blue;
    view.update();
    EXPECT_TRUE(AllPixelsAre(ImplOf(view)->Image(), QColor(Qt::blue).rgba()));

    ImplOf(view)->OnSizeChanged(0, 100);
    EXPECT_EQ(view.rects.size(), 2u);
    EXPECT_EQ(ImplOf(view)->Image().size(), QSize(30, 20));
    ImplOf(view)->OnSizeChanged(100, 0);
    EXPECT_EQ(view.rects.size(), 2u);
}

TEST(ImageViewTest, DefaultHandlerStretchesThePixmapOverTheImage)
{
    QImage source(2, 1, QImage::Format_ARGB32);
    source.setPixel(0, 0, qRgb(255, 0, 0));
    source.setPixel(1, 0, qRgb(0, 0, 255));

    CKyUIImageView view;
    view.setPixmap(QPixmap::fromImage(source));
    // Stored only.
    EXPECT_TRUE(ImplOf(view)->Image().isNull());
    EXPECT_EQ(view.pixmap()->size(), QSize(2, 1));

    ImplOf(view)->OnSizeChanged(40, 10);
    const QImage& image = ImplOf(view)->Image();
    for (int y : {0, 9}) {
        EXPECT_EQ(image.pixel(2, y), qRgb(255, 0, 0)) << y;
        EXPECT_EQ(image.pixel(17, y), qRgb(255, 0, 0)) << y;
        EXPECT_EQ(image.pixel(22, y), qRgb(0, 0, 255)) << y;
        EXPECT_EQ(image.pixel(37, y), qRgb(0, 0, 255)) << y;
    }
}

TEST(ImageViewTest, AnOverrideReplacesThePixmapDrawing)
{
    QPixmap red(4, 4);
    red.fill(Qt::red);
    FillingView<CKyUIPreviewView> preview;
    preview.setPixmap(red);
    ImplOf(preview)->OnSizeChanged(8, 6);
    ASSERT_EQ(preview.rects.size(), 1u);
    EXPECT_TRUE(AllPixelsAre(ImplOf(preview)->Image(), preview.fill.rgba()));
}
