#include "UI/CKyUIStyle.h"
#include "UI/Impl/qt/KyControlSheet.h"
#include "UI/Impl/qt/KyThemeVariant.h"
#include "support/TestDialogs.h"

#include <QtCore/QProcess>
#include <QtCore/QResource>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPalette>

namespace
{
using Variant = CKyUIStyle::Variant;

// Puts the variant and the application palette back, whatever the test did.
struct VariantRestorer
{
    const QPalette palette = QApplication::palette();
    ~VariantRestorer()
    {
        CKyUIStyle::setVariant(Variant::Default);
        QApplication::setPalette(palette);
    }
};

QPalette HostPalette(const QColor& window)
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, window);
    return palette;
}
} // namespace

// Every run takes the variant chosen then; under FollowHost the host's window
// colour decides, at each run and while a dialog runs. The control sheets
// come along.
TEST(CKyUIStyleVariantTest, EachRunTakesTheChosenVariantAndFollowsTheHostsPalette)
{
    const VariantRestorer restorer;
    EXPECT_EQ(CKyUIStyle::variant(), Variant::Default);
    const QString dark = KyThemeVariant::Sheet(Variant::Dark), light = KyThemeVariant::Sheet(Variant::Light);
    ASSERT_FALSE(dark.isEmpty());
    ASSERT_FALSE(light.isEmpty());

    // A control's own sheet in both folders, compiled for the test.
    QTemporaryDir dir;
    for (const char* folder : {"dark", "light"}) {
        QDir(dir.path()).mkpath(QStringLiteral("controls/%1").arg(folder));
        QFile sheet(dir.filePath(QStringLiteral("controls/%1/probe.qss").arg(folder)));
        ASSERT_TRUE(sheet.open(QIODevice::WriteOnly) && sheet.write(QByteArray("QWidget { } /* ") + folder + " */"));
    }
    QFile qrc(dir.filePath("probe.qrc"));
    ASSERT_TRUE(qrc.open(QIODevice::WriteOnly) &&
                qrc.write("<RCC><qresource prefix=\"/commonui\"><file>controls/dark/probe.qss</file>"
                          "<file>controls/light/probe.qss</file></qresource></RCC>"));
    qrc.close();
    ASSERT_EQ(QProcess::execute(COMMONUI_RCC, {"-binary", qrc.fileName(), "-o", dir.filePath("probe.rcc")}), 0);
    ASSERT_TRUE(QResource::registerResource(dir.filePath("probe.rcc")));

    SampleDialog dialog;
    QWidget control(dialog.widget());
    KyControlSheet::Apply(&control, "probe");
    const struct
    {
        Variant chosen;
        QColor hostWindow;
        QString sheet;
        const char* folder;
    } runs[] = {
        {Variant::Default, Qt::white, GetStyle()->styleSheet, "dark"},
        {Variant::Light, Qt::black, light, "light"},
        {Variant::Dark, Qt::white, dark, "dark"},
        {Variant::FollowHost, QColor(0xF0, 0xF0, 0xF0), light, "light"},
        {Variant::FollowHost, QColor(0x2D, 0x2D, 0x30), dark, "dark"},
    };
    for (const auto& run : runs) {
        CKyUIStyle::setVariant(run.chosen);
        QApplication::setPalette(HostPalette(run.hostWindow));
        RunModally(dialog, [&run, &control](SampleDialog& running) {
            EXPECT_EQ(running.widget()->styleSheet(), run.sheet) << run.folder;
            EXPECT_EQ(KyControlSheet::VariantFolder(), run.folder);
            EXPECT_TRUE(control.styleSheet().contains(run.folder)) << control.styleSheet().toStdString();
            running.accept();
        });
    }
    // The host turns light while the dialog runs: it turns light with it.
    RunModally(dialog, [&](SampleDialog& running) {
        QApplication::setPalette(HostPalette(Qt::white));
        EXPECT_EQ(running.widget()->styleSheet(), light);
        EXPECT_TRUE(control.styleSheet().contains("light"));
        running.accept();
    });
    EXPECT_TRUE(QResource::unregisterResource(dir.filePath("probe.rcc")));
}
