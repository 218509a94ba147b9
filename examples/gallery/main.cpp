// The gallery of every control. With a display it runs modally until the user
// closes it, in the theme's variant named by --variant=dark, light or host.
// Without one it runs on the offscreen platform, saves a picture of every page
// in every look (the default theme and both variants; with --scale=2 both
// variants at 200 %) to the folder given as the first other argument
// (default: screenshots) and prints the pictures' paths.

#include "GalleryDialog.h"
#include "GalleryRendering.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const bool headless =
        qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const int scale = GalleryRendering::ScaleFromArguments(argc, argv);
    if (headless)
        GalleryRendering::UseOffscreenPlatform(scale);
    QApplication application(argc, argv);
    QString folderName = "screenshots";
    for (const QString& argument : QApplication::arguments().mid(1)) {
        if (argument == "--variant=dark")
            CKyUIStyle::setVariant(CKyUIStyle::Variant::Dark);
        else if (argument == "--variant=light")
            CKyUIStyle::setVariant(CKyUIStyle::Variant::Light);
        else if (argument == "--variant=host")
            CKyUIStyle::setVariant(CKyUIStyle::Variant::FollowHost);
        else if (!argument.startsWith("--"))
            folderName = argument;
    }

    QString problem;
    if (!GalleryRendering::UseStableLook(&problem)) {
        std::fprintf(stderr, "gallery: %s\n", qPrintable(problem));
        if (headless)
            return 1;
    }

    if (!headless) {
        GalleryDialog dialog;
        dialog.setInteractive(true); // a person trying it sees every control answer
        const int result = dialog.exec();
        std::printf("gallery: the dialog ended with result %d (%s)\n", result,
                    result == 1 ? "accepted" : "rejected");
        return 0;
    }

    const QDir folder(QFileInfo(folderName).absoluteFilePath());
    if (!QDir().mkpath(folder.path())) {
        std::fprintf(stderr, "gallery: cannot create %s\n", qPrintable(folder.path()));
        return 1;
    }
    const QList<GalleryRendering::RenderedPage> pages = GalleryRendering::RenderLooks(scale);
    if (pages.isEmpty()) {
        std::fprintf(stderr, "gallery: no page was rendered\n");
        return 1;
    }
    for (const GalleryRendering::RenderedPage& page : pages) {
        const QString path = folder.filePath(page.fileName);
        if (!page.image.save(path, "PNG")) {
            std::fprintf(stderr, "gallery: could not save %s\n", qPrintable(path));
            return 1;
        }
        std::printf("gallery: page \"%s\" saved to %s\n", qPrintable(page.title), qPrintable(path));
    }
    return 0;
}
