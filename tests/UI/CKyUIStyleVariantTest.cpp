#include "UI/CKyUIStyle.h"
#include "UI/Impl/qt/KyControlSheet.h"
#include "UI/Impl/qt/KyThemeVariant.h"
#include "support/TestDialogs.h"

#include <QtGui/QPalette>

// Every run takes the variant chosen then; under FollowHost the host's window
// colour decides, at each run and while a dialog runs. The control sheets'
// folder follows.
TEST(CKyUIStyleVariantTest, EachRunTakesTheChosenVariantAndFollowsTheHostsPalette)
{
    using Variant = CKyUIStyle::Variant;
    EXPECT_EQ(CKyUIStyle::variant(), Variant::Default);
    const QString dark = KyThemeVariant::Sheet(Variant::Dark), light = KyThemeVariant::Sheet(Variant::Light);
    ASSERT_FALSE(dark.isEmpty() || light.isEmpty());
    const QPalette hostPalette = QApplication::palette();
    const auto hostWindow = [&hostPalette](const QColor& window) {
        QPalette palette = hostPalette;
        palette.setColor(QPalette::Window, window);
        QApplication::setPalette(palette);
    };
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
    // A fresh dialog each run: a second exec() leaves the first root layout behind.
    for (const auto& run : runs) {
        SampleDialog dialog;
        CKyUIStyle::setVariant(run.chosen);
        hostWindow(run.hostWindow);
        RunModally(dialog, [&run](SampleDialog& running) {
            EXPECT_EQ(running.widget()->styleSheet(), run.sheet) << run.folder;
            EXPECT_EQ(KyControlSheet::VariantFolder(), run.folder);
            running.accept();
        });
    }
    // The host turns light while the dialog runs: so does the dialog.
    SampleDialog dialog;
    RunModally(dialog, [&](SampleDialog& running) {
        hostWindow(Qt::white);
        EXPECT_EQ(running.widget()->styleSheet(), light);
        running.accept();
    });
    CKyUIStyle::setVariant(Variant::Default);
    QApplication::setPalette(hostPalette);
}
