#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QImage>

// Rendering the gallery the same way on every machine: the demo writes these
// pictures, the visual regression test compares them with the committed ones.
namespace GalleryRendering
{

// Before the QApplication exists: the offscreen platform at a scale of 1,
// whatever scaling the caller's environment asks for.
void UseOffscreenPlatform();

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

// Runs the gallery dialog, grabs it once per page and accepts it.
QList<RenderedPage> RenderPages();

QString FileNameFor(const QString& title);

} // namespace GalleryRendering
