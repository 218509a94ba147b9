// Runs the pad feature panel. With a display it runs until the user closes it
// and prints the values chosen. Without one it plays the user itself with
// real input events (choose "Two dimensions", type both lengths, tick
// "Reversed", press OK) and fails unless the values read back are those, and
// unless a second run opens with them.

#include "PadDialog.h"

#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIDoubleSpinBox.h"
#include "UI/CKyUISettingsStore.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITimer.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <cstdio>

namespace
{
QWidget* WidgetOf(const CKyUIBaseView* view)
{
    return qobject_cast<QWidget*>(view->getHandle());
}

void Retype(const CKyUIBaseView* field, const char* text)
{
    QWidget* widget = WidgetOf(field);
    QTest::mouseDClick(widget, Qt::LeftButton);
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(widget, QString::fromLatin1(text));
    // Moving on is what makes a spin box take a typed number.
    QTest::keyClick(widget, Qt::Key_Tab);
}

// What a user does, from inside the dialog's run.
void PlayTheUser(PadDialog& dialog)
{
    // Focus moves, and with it a spin box takes what was typed, only in the
    // active window, as it would under the user's hands.
    auto* window = qobject_cast<QWidget*>(dialog.getHandle());
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window))
        qWarning("featurepanel: the dialog did not become active; the script types anyway");
    QWidget* mode = WidgetOf(dialog.mode);
    mode->setFocus();
    QTest::keyClick(mode, Qt::Key_Down); // Dimension -> Two dimensions
    Retype(dialog.length, "25");
    Retype(dialog.secondLength, "7.5");
    QWidget* reversed = WidgetOf(dialog.reversed);
    // A click on the box itself: the widget may be wider than box and text.
    QTest::mouseClick(reversed, Qt::LeftButton, Qt::NoModifier, QPoint(8, reversed->height() / 2));
    for (QPushButton* button : window->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String("OK"))
            QTest::mouseClick(button, Qt::LeftButton);
    }
}
} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const bool unattended = QGuiApplication::platformName() == QLatin1String("offscreen");
    // Played without a display, the panel starts afresh in a file of its own.
    QTemporaryDir scratch;
    if (unattended)
        CKyUISettingsStore::setFile(scratch.filePath("featurepanel.ini"));
    else
        CKyUISettingsStore::setApplication("CommonUI examples", "featurepanel");

    PadDialog dialog;
    if (unattended)
        CKyUITimer::singleShot(0, [&dialog]() { PlayTheUser(dialog); });
    const int result = dialog.exec();

    const PadDialog::Values values = dialog.values();
    std::printf("featurepanel: result %d, %s, length %g, second length %g, reversed %s, symmetric %s\n",
                result, qPrintable(values.mode), values.length, values.secondLength,
                values.reversed ? "yes" : "no", values.symmetric ? "yes" : "no");
    if (!unattended)
        return 0;
    const bool asPlayed = result == 1 && values.mode == QLatin1String("Two dimensions") &&
                          values.length == 25 && values.secondLength == 7.5 && values.reversed &&
                          !values.symmetric && !dialog.symmetric->isVisible();

    // The next run opens with what the user accepted; Cancel keeps it.
    PadDialog again;
    PadDialog::Values reopened;
    CKyUITimer::singleShot(0, [&again, &reopened]() {
        reopened = again.values();
        again.reject();
    });
    const bool restored = again.exec() == 0 && reopened.mode == values.mode &&
                          reopened.length == values.length && reopened.secondLength == values.secondLength &&
                          reopened.reversed && !again.symmetric->isVisible();
    std::printf("featurepanel: reopened with %s, length %g\n", qPrintable(reopened.mode), reopened.length);
    return asPlayed && restored ? 0 : 1;
}
