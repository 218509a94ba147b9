#pragma once

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>

class CKyUIShowEvent;
class CKyUIHideEvent;
class CKyUIVerticalLayout;

// The top-level window of a plug-in's user interface. Derive from it, build
// the content in SetupUI() and run it with exec(). A dialog is not a view and
// cannot be placed in a layout.
//
// While a dialog runs modally the host application is told so: exec() tells
// it that a dialog starts, accept(), reject(), done(), hide() and
// setVisible(false) that it ends. A dialog the user closes with Escape or the
// window's close button ends without telling the host.
class COMMONUI_EXPORT CKyUIDialog : public CKyUIObject
{
public:
    CKyUIDialog();
    ~CKyUIDialog() override;

    // Called by every exec(), after the theme and the root layout are in place:
    // add views to GetLayout(), connect to their signals and, last, create a
    // CKyUIDialogButtonBox so that it lands at the bottom.
    virtual void SetupUI() = 0;

    // Runs the dialog modally and returns its result code. The flag has no
    // effect. A dialog object is meant to be executed once.
    virtual int exec(bool modal = true);

    virtual void showEvent(CKyUIShowEvent* event);
    virtual void hideEvent(CKyUIHideEvent* event);

    // Close with result 1, 0 or the given code. None of them emits a signal.
    virtual void accept();
    virtual void reject();
    virtual void done(int result);

    // The root layout of the running dialog; null before the first exec().
    CKyUIVerticalLayout* GetLayout();

    // Closes with the current result code.
    void hide();
    void setVisible(bool visible);
    // Stored; reaches the toolkit when the dialog closes.
    void setResult(int result);
    int result() const;

    QString windowTitle() const;
    void setWindowTitle(const QString& title);

    // Raised by client code only; the button box reports them as clicks of OK
    // and Cancel. finished() is never emitted by the library.
    CKyUISignal<void()>& accepted();
    CKyUISignal<void()>& rejected();
    CKyUISignal<void(int)>& finished();
};
