// Renders every page of the gallery offscreen, in every look of the scale the
// program runs at, and compares it with its picture in docs/screenshots, so
// that a change in the theme, a rewrite rule or a layout shows up as a
// failure a person can look at: the new picture and a difference picture are
// written next to the build.

#include "GalleryRendering.h"
#include "PictureComparison.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITimer.h"
#include "UI/CKyUIVerticalLayout.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QSet>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QAbstractButton>

#include <functional>

namespace
{

const QString ReferenceDir = QStringLiteral(COMMONUI_GALLERY_REFERENCE_DIR);
const QString FailureDir = QStringLiteral(COMMONUI_GALLERY_FAILURE_DIR);

int Scale()
{
    return qRound(qApp->devicePixelRatio());
}

// A checkable button and a text edit, for the states test.
class StatesDialog : public CKyUIDialog
{
public:
    void SetupUI() override
    {
        toggle->setText("Toggle");
        toggle->setCheckable(true);
        edit->setText("Text");
        GetLayout()->addView(toggle);
        GetLayout()->addView(edit);
    }
    CKyUIPushButton* toggle = new CKyUIPushButton;
    CKyUITextEdit* edit = new CKyUITextEdit(CKyUITextEdit::Medium);
};

QWidget* WidgetOf(CKyUIObject* object)
{
    return qobject_cast<QWidget*>(object->getHandle());
}
} // namespace

// In both variants a control disabled, a toggle checked and a field with the
// keyboard focus each look different from before.
TEST(GalleryPictures, StatesAreVisibleInBothVariants)
{
    for (const CKyUIStyle::Variant variant : {CKyUIStyle::Variant::Dark, CKyUIStyle::Variant::Light}) {
        CKyUIStyle::setVariant(variant);
        StatesDialog dialog;
        CKyUITimer::singleShot(0, [&dialog]() {
            WidgetOf(&dialog)->activateWindow(); // focus shows in the active window only
            QCoreApplication::processEvents();
            WidgetOf(dialog.toggle)->setFocus();
            auto* toggle = qobject_cast<QAbstractButton*>(WidgetOf(dialog.toggle));
            const std::pair<CKyUIBaseView*, std::function<void(bool)>> states[] = {
                {dialog.toggle, [&](bool on) { dialog.toggle->setEnabled(!on); }},
                {dialog.edit, [&](bool on) { dialog.edit->setEnabled(!on); }},
                {dialog.toggle, [&](bool on) { toggle->setChecked(on); }},
                {dialog.edit,
                 [&](bool on) {
                     WidgetOf(on ? static_cast<CKyUIBaseView*>(dialog.edit) : dialog.toggle)->setFocus();
                 }},
            };
            for (const auto& state : states) {
                const QImage before = WidgetOf(state.first)->grab().toImage();
                state.second(true);
                const PictureComparison result =
                    ComparePictures(before, WidgetOf(state.first)->grab().toImage());
                state.second(false);
                EXPECT_GT(result.differing, result.total / 20)
                    << &state - states << ": " << result.summary().toStdString();
            }
            dialog.accept();
        });
        dialog.exec();
    }
    CKyUIStyle::setVariant(CKyUIStyle::Variant::Default);
}

// Every page looks like its committed picture, and every committed picture is a page.
TEST(GalleryPictures, EveryPageLooksLikeItsCommittedPicture)
{
    QString problem;
    ASSERT_TRUE(GalleryRendering::UseStableLook(&problem))
        << "the gallery's font is missing: " << problem.toStdString();
    const QList<GalleryRendering::RenderedPage> pages = GalleryRendering::RenderLooks(Scale());
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
    // The pictures of the other scale belong to the other run.
    for (const QString& file : QDir(ReferenceDir).entryList({"*.png"}, QDir::Files)) {
        if (file.endsWith("-200.png") != (Scale() == 2))
            continue;
        EXPECT_TRUE(rendered.contains(file)) << file.toStdString() << " in " << ReferenceDir.toStdString()
                                             << " belongs to no gallery page; remove it or add the page";
    }
}
