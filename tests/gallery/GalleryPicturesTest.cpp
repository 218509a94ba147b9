// Renders every page of the gallery offscreen and compares it with its picture
// in docs/screenshots, so that a change in the theme, a rewrite rule or a
// layout shows up as a failure a person can look at: the new picture and a
// difference picture are written next to the build.

#include "GalleryRendering.h"
#include "PictureComparison.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QSet>

namespace
{

const QString ReferenceDir = QStringLiteral(COMMONUI_GALLERY_REFERENCE_DIR);
const QString FailureDir = QStringLiteral(COMMONUI_GALLERY_FAILURE_DIR);

} // namespace

// Every page looks like its committed picture, and every committed picture is a page.
TEST(GalleryPictures, EveryPageLooksLikeItsCommittedPicture)
{
    QString problem;
    ASSERT_TRUE(GalleryRendering::UseStableLook(&problem))
        << "the gallery's font is missing: " << problem.toStdString();
    const QList<GalleryRendering::RenderedPage> pages = GalleryRendering::RenderPages();
    ASSERT_FALSE(pages.isEmpty()) << "the gallery rendered no page";
    QSet<QString> rendered;
    QDir().mkpath(FailureDir);
    for (const GalleryRendering::RenderedPage& page : pages) {
        rendered.insert(page.fileName);
        const QString reference = QDir(ReferenceDir).filePath(page.fileName);
        const QString fresh = QDir(FailureDir).filePath(page.fileName);
        const QString difference =
            QDir(FailureDir).filePath(QString(page.fileName).replace(".png", "-difference.png"));
        QFile::remove(fresh);
        QFile::remove(difference);

        const QImage expected(reference);
        if (expected.isNull()) {
            page.image.save(fresh);
            ADD_FAILURE() << "page \"" << page.title.toStdString() << "\": no picture at "
                          << reference.toStdString() << "; the rendered page is in " << fresh.toStdString();
            continue;
        }
        const PictureComparison result = ComparePictures(expected, page.image);
        if (result.matches())
            continue;
        page.image.save(fresh);
        const auto size = [](const QImage& image) {
            return QString("%1x%2").arg(image.width()).arg(image.height());
        };
        QString what = "is " + size(page.image) + " pixels, the picture " + size(expected);
        if (result.sameSize) {
            result.difference.save(difference);
            what = QString("differs from the picture in %1 by more than %2 levels (at most %3 % "
                           "may); difference picture: %4")
                       .arg(result.summary())
                       .arg(PictureComparison::DefaultLevels)
                       .arg(100 * PictureComparison::DefaultShare)
                       .arg(difference);
        }
        ADD_FAILURE() << "page \"" << page.title.toStdString() << "\" " << what.toStdString()
                      << "\n  committed: " << reference.toStdString()
                      << "\n  rendered:  " << fresh.toStdString()
                      << "\n  if the change is intended, run scripts/demo and copy "
                         "build/screenshots/*.png to docs/screenshots/";
    }
    for (const QString& file : QDir(ReferenceDir).entryList({"*.png"}, QDir::Files))
        EXPECT_TRUE(rendered.contains(file)) << file.toStdString() << " in " << ReferenceDir.toStdString()
                                             << " belongs to no gallery page; remove it or add the page";
}
