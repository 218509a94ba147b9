// The smallest plug-in: one dialog with a label, a button and the button box,
// built against an installed CommonUI. It tells the host stand-in's document
// about the modal run and checks that the theme came along with the library.
// Without a display it runs offscreen and accepts itself; exits with 0 when
// the dialog ended with 1 and the host heard the start and the end.

#include "CommonUIVersion.h"
#include "KyHostKernel.h"
#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUIPushButton.h"
#include "UI/CKyUIStyle.h"
#include "UI/CKyUITimer.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtWidgets/QApplication>

#include <cstdio>
#include <vector>

namespace
{

class GreetingDialog : public CKyUIDialog
{
public:
    void SetupUI() override
    {
        setWindowTitle("Greeting");
        auto* label = new CKyUILabel;
        label->setText("Hello from a plug-in");
        label->setBoldText(true);
        GetLayout()->addView(label);

        auto* button = new CKyUIPushButton;
        button->setText("Say it again");
        button->clicked().connect([label](bool) { label->setText("Hello again"); });
        GetLayout()->addView(button);

        auto* buttons = new CKyUIDialogButtonBox(this);
        buttons->accepted().connect([this]() { accept(); });
        buttons->rejected().connect([this]() { reject(); });
    }
};

// What the host application would do with the modal-run notifications.
class RecordingHost : public CKyDocumentHost
{
public:
    void SetModalDialogRunning(bool running) override { calls.push_back(running); }
    std::vector<bool> calls;
};

} // namespace

int main(int argc, char** argv)
{
    const bool headless =
        qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (headless)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);

    RecordingHost host;
    ACTIVE_DOCUMENT()->host = &host;

    GreetingDialog dialog;
    if (headless)
        CKyUITimer::singleShot(0, [&dialog]() { dialog.accept(); });
    const int result = dialog.exec();
    ACTIVE_DOCUMENT()->host = nullptr;

    const bool themed = !GetStyle()->styleSheet.isEmpty();
    const bool told = host.calls == std::vector<bool>{true, false};
    std::printf("consumer: built against CommonUI %s\n", COMMONUI_VERSION_STR);
    std::printf("consumer: result %d, theme %s, host told %s\n", result, themed ? "loaded" : "missing",
                told ? "start and end" : "something else");
    if (!headless)
        return 0;
    return result == 1 && themed && told ? 0 : 1;
}
