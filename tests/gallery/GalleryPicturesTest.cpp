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

class GalleryPictures : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        stable = GalleryRendering::UseStableLook(&problem);
        if (stable)
            pages = GalleryRendering::RenderPages();
    }

    void SetUp() override
    {
        ASSERT_TRUE(stable) << "the gallery's font is missing: " << problem.toStdString();
        ASSERT_FALSE(pages.isEmpty()) << "the gallery rendered no page";
    }

    static bool stable;
    static QString problem;
    static QList<GalleryRendering::RenderedPage> pages;
};

bool GalleryPictures::stable = false;
QString GalleryPictures::problem;
QList<GalleryRendering::RenderedPage> GalleryPictures::pages;

} // namespace

TEST_F(GalleryPictures, EveryPageLooksLikeItsCommittedPicture)
{
    QDir().mkpath(FailureDir);
    for (const GalleryRendering::RenderedPage& page : pages) {
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
        std::string what;
        if (!result.sameSize) {
            what = QString("is %1x%2 pixels, the picture %3x%4")
                       .arg(page.image.width())
                       .arg(page.image.height())
                       .arg(expected.width())
                       .arg(expected.height())
                       .toStdString();
        } else {
            result.difference.save(difference);
            what = QString("differs from the picture in %1 by more than %2 levels (at most %3 % "
                           "may); difference picture: %4")
                       .arg(result.summary())
                       .arg(PictureComparison::DefaultLevels)
                       .arg(100 * PictureComparison::DefaultShare)
                       .arg(difference)
                       .toStdString();
        }
        ADD_FAILURE() << "page \"" << page.title.toStdString() << "\" " << what
                      << "\n  committed: " << reference.toStdString()
                      << "\n  rendered:  " << fresh.toStdString()
                      << "\n  if the change is intended, run scripts/demo and copy "
                         "build/screenshots/*.png to docs/screenshots/";
    }
}

TEST_F(GalleryPictures, EveryCommittedPictureIsAPage)
{
    QSet<QString> rendered;
    for (const GalleryRendering::RenderedPage& page : pages)
        rendered.insert(page.fileName);
    for (const QString& file : QDir(ReferenceDir).entryList({"*.png"}, QDir::Files))
        EXPECT_TRUE(rendered.contains(file)) << file.toStdString() << " in " << ReferenceDir.toStdString()
                                             << " belongs to no gallery page; remove it or add the page";
}
