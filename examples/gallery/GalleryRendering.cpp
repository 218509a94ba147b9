#include "GalleryRendering.h"

#include "GalleryDialog.h"

#include "UI/CKyUITimer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QWidget>

namespace GalleryRendering
{

namespace
{
// Installed by fonts-dejavu-core, which scripts/setup lists.
const char* const FontFiles[] = {
    "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
    "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf",
};
} // namespace

void UseOffscreenPlatform(int scale)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* scaling : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
                                "QT_ENABLE_HIGHDPI_SCALING", "QT_DEVICE_PIXEL_RATIO", "QT_FONT_DPI"})
        qunsetenv(scaling);
    if (scale != 1)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
}

int ScaleFromArguments(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (QByteArray(argv[i]) == "--scale=2")
            return 2;
    }
    return 1;
}

bool UseStableLook(QString* problem)
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    for (const char* file : FontFiles) {
        if (QFontDatabase::addApplicationFont(QString::fromLatin1(file)) < 0) {
            if (problem)
                *problem = QString("cannot load %1 (install fonts-dejavu-core: scripts/setup)")
                               .arg(QString::fromLatin1(file));
            return false;
        }
    }
    QFont font("DejaVu Sans");
    font.setPixelSize(12);
    // Hinting and sub-pixel smoothing follow the desktop's settings otherwise.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    QApplication::setFont(font);
    return true;
}

QString FileNameFor(const QString& title, const QString& suffix)
{
    return title.toLower().replace(' ', '-') + suffix + ".png";
}

QList<Look> LooksAt(int scale)
{
    using Variant = CKyUIStyle::Variant;
    if (scale == 2)
        return {{Variant::Dark, "-dark-200"}, {Variant::Light, "-light-200"}};
    return {{Variant::Default, ""}, {Variant::Dark, "-dark"}, {Variant::Light, "-light"}};
}

QList<RenderedPage> RenderLooks(int scale)
{
    QList<RenderedPage> pages;
    for (const Look& look : LooksAt(scale)) {
        CKyUIStyle::setVariant(look.variant);
        pages += RenderPages(look.suffix);
    }
    CKyUIStyle::setVariant(CKyUIStyle::Variant::Default);
    return pages;
}

QList<RenderedPage> RenderPages(const QString& suffix)
{
    GalleryDialog dialog;
    QList<RenderedPage> pages;
    // Runs inside the modal loop, once the dialog is laid out and shown.
    CKyUITimer::singleShot(0, [&dialog, &pages, &suffix]() {
        auto* window = qobject_cast<QWidget*>(dialog.getHandle());
        const QStringList titles = dialog.pageTitles();
        for (int index = 0; window && index < titles.size(); ++index) {
            dialog.showPage(index);
            QCoreApplication::processEvents();
            const QImage image = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
            pages.append({titles[index], FileNameFor(titles[index], suffix), image});
        }
        dialog.accept();
    });
    dialog.exec();
    return pages;
}

} // namespace GalleryRendering
