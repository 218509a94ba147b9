// Runs the hole pattern dialog. With a display it runs modally until the user
// closes it and prints the result. Without one it runs on the offscreen
// platform, saves a picture of the dialog, accepts it and prints the
// picture's path (the first argument, or dialog.png).

#include "HolePatternDialog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTimer>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdio>

int main(int argc, char** argv)
{
    const bool headless =
        qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (headless)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QString picturePath =
        QFileInfo(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("dialog.png"))
            .absoluteFilePath();

    HolePatternDialog dialog;
    bool saved = false;
    if (headless) {
        // Runs inside the modal loop, once the dialog is laid out and shown.
        QTimer::singleShot(0, [&dialog, &picturePath, &saved]() {
            if (auto* window = qobject_cast<QWidget*>(dialog.getHandle())) {
                QDir().mkpath(QFileInfo(picturePath).absolutePath());
                saved = window->grab().save(picturePath, "PNG");
            }
            dialog.accept();
        });
    }

    const int result = dialog.exec();
    if (!headless) {
        std::printf("dialog_example: the dialog ended with result %d (%s)\n", result,
                    result == 1 ? "accepted" : "rejected");
        return 0;
    }
    if (!saved) {
        std::fprintf(stderr, "dialog_example: could not save %s\n", qPrintable(picturePath));
        return 1;
    }
    std::printf("dialog_example: accepted with result %d; picture saved to %s\n", result,
                qPrintable(picturePath));
    return 0;
}
