#pragma once

#include "UI/CKyUIStyle.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QImage>

// Rendering the gallery the same way on every machine: the demo writes these
// pictures, the visual regression test compares them with the committed ones.
namespace GalleryRendering
{

// Before the QApplication exists: the offscreen platform at the given scale
// (2 for 200 %), whatever scaling the caller's environment asks for.
void UseOffscreenPlatform(int scale = 1);

// The scale asked for with "--scale=2" among the arguments; 1 without.
int ScaleFromArguments(int argc, char** argv);

// Fusion style and DejaVu Sans at 12 px (the theme's size) for the whole
// application, so that the pictures do not depend on the desktop's fonts.
// Returns false, with the reason, when the font files are missing; call it
// after the QApplication exists and before any dialog is built.
bool UseStableLook(QString* problem);

struct RenderedPage
{
    QString title;
    QString fileName; // "buttons-and-text.png" for "Buttons and text"
    QImage image;
};

// Runs the gallery dialog, grabs it once per page and accepts it. The
// suffix goes into every file name.
QList<RenderedPage> RenderPages(const QString& suffix = QString());

// "buttons-and-text-light-200.png" for "Buttons and text" and "-light-200"
QString FileNameFor(const QString& title, const QString& suffix = QString());

// A look the pictures are taken in: the theme's variant and the suffix of
// its file names.
struct Look
{
    CKyUIStyle::Variant variant;
    QString suffix;
};

// The looks pictured at a scale: the default theme and both variants at
// 100 % (suffixes "", "-dark", "-light"), both variants at 200 % ("-dark-200",
// "-light-200").
QList<Look> LooksAt(int scale);

// Every page in every look of the scale; the variant is Default again after.
QList<RenderedPage> RenderLooks(int scale);

} // namespace GalleryRendering
