// The quick start: the smallest complete dialog a plug-in writes. With a
// display it runs until the user closes it; without one it accepts itself as
// soon as it runs, so the program can run unattended.

//! [dialog]
#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUIVerticalLayout.h"

class HolePatternDialog : public CKyUIDialog
{
public:
    void SetupUI() override // called by exec(), with the theme and root layout in place
    {
        setWindowTitle("Hole pattern");
        auto* title = new CKyUILabel;
        title->setText("Drill a hole pattern");
        title->setBoldText(true);
        GetLayout()->addView(title);

        auto* preview = new CKyUIPushButton;
        preview->setText("Preview on the part");
        preview->clicked().connect([](bool) { /* draw the preview */ });
        GetLayout()->addView(preview);

        auto* diameter = new CKyUITextEdit(CKyUITextEdit::Small);
        diameter->setText("6");
        // Return in the field reports here and does not press OK.
        diameter->returnPressed().connect([]() { /* draw the preview */ });
        GetLayout()->addView(diameter);

        // Last, so that it lands at the bottom; it never closes the dialog by itself.
        auto* buttons = new CKyUIDialogButtonBox(this);
        buttons->accepted().connect([this]() { accept(); });
        buttons->rejected().connect([this]() { reject(); });
    }
};
//! [dialog]

#include "UI/CKyUITimer.h"

#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    // The host application owns the toolkit application; a plug-in does not.
    QApplication application(argc, argv);
    const bool unattended = QGuiApplication::platformName() == QLatin1String("offscreen");

    //! [run]
    HolePatternDialog dialog;
    dialog.setInteractive(true); // every control of the dialog follows its user
    //! [run]
    if (unattended)
        CKyUITimer::singleShot(0, [&dialog]() { dialog.accept(); }); // runs inside exec()
    //! [exec]
    int result = dialog.exec(); // 1 after OK, 0 after Cancel or Escape
    //! [exec]

    std::printf("quickstart: the dialog ended with result %d\n", result);
    return unattended && result != 1 ? 1 : 0;
}
