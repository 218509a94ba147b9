#pragma once

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>

class CKyUIShowEvent;
class CKyUIHideEvent;
class CKyUIVerticalLayout;

/// The top-level window of a plug-in's user interface, run modally by exec()
/// whatever its flag, ended by accept() and reject() without a signal, and
/// leaving its toolkit dialog behind unless released (see
/// \ref behaviours_dialog "behaviours"). Derive from it, build the content in
/// SetupUI() and run it with exec(). A dialog is not a view and cannot be
/// placed in a layout.
///
/// While a dialog runs modally the host application is told so: exec() tells
/// it that a dialog starts, accept(), reject(), done(), hide() and
/// setVisible(false) that it ends. A dialog the user closes with Escape or the
/// window's close button ends without telling the host.
///
/// **Interactive** (setInteractive()): every way out ends the run once. The
/// host hears once that the modal run ended, whether the program or the user
/// (Escape, the close button) closed the dialog; accept(), reject(), done() and
/// the user's close emit finished() and then accepted() (result 1) or
/// rejected() (result 0). A close asked for while that report runs (the button
/// box relays it as a press of OK or Cancel, whose slot calls accept() again)
/// does nothing. exec(false) shows the dialog beside the host's window and
/// returns at once; finished() tells when it closes.
///
/// **Lifetime.** The views created in SetupUI() and added to GetLayout() are
/// owned by the root layout, which the dialog deletes with itself; so is the
/// CKyUIDialogButtonBox, a child of the dialog. The toolkit dialog behind it
/// stays alive by design when the dialog object is deleted: it is hidden and
/// no longer referenced. A dialog deleted while shown, or while its exec()
/// runs (from one of its own slots, or from a nested event loop inside the
/// run), is hidden once the slots have returned, after the views' widgets
/// went; that ends the run, and exec() returns the toolkit's current result
/// code. Leak checkers report it; the library's suppression
/// files name it. A host that opens dialogs thousands of times turns on
/// setReleasesToolkitDialog() (or setDefaultReleasesToolkitDialog() once for
/// every dialog made afterwards), and the toolkit dialog then goes with the
/// dialog object.
///
/// See \ref quickstart for a complete dialog.
class COMMONUI_EXPORT CKyUIDialog : public CKyUIObject
{
public:
    /// Creates the hidden toolkit dialog; nothing else happens until exec().
    CKyUIDialog();
    /// Deletes the root layout and its views; the toolkit dialog is left
    /// behind, hidden, unless releasesToolkitDialog() is on.
    ~CKyUIDialog() override;

    /// Whether deleting this dialog object also deletes its toolkit dialog,
    /// with the layouts and widgets still inside it. Off by default, which
    /// keeps the toolkit dialog alive after the dialog object; a new dialog
    /// takes defaultReleasesToolkitDialog(). Only the value at deletion counts.
    ///
    /// When on, the toolkit dialog goes on the next pass of the event loop,
    /// after the views' widgets. A dialog deleted while its exec() still runs
    /// (from one of its own slots, or from a nested event loop inside the run)
    /// is hidden once the slots have returned, which ends the run: exec()
    /// returns the toolkit's current result code, and the toolkit dialog is
    /// deleted as exec() returns. The host is not told that the dialog ends,
    /// as when the user closes it.
    void setReleasesToolkitDialog(bool release);
    /// Whether deleting this dialog object deletes its toolkit dialog too.
    bool releasesToolkitDialog() const;
    /// The value of releasesToolkitDialog() that dialogs created from now on
    /// start with, for the whole library; false unless set. Dialogs that exist
    /// already keep theirs.
    static void setDefaultReleasesToolkitDialog(bool release);
    /// The value new dialogs take for releasesToolkitDialog().
    static bool defaultReleasesToolkitDialog();

    /// Makes the dialog remember, under @p key in the store
    /// (CKyUISettingsStore), its window's size, position and screen, and the
    /// values of the controls given a name with CKyUIBaseView::remember().
    /// Set it before exec(). exec() gives them back after SetupUI() and before
    /// the window shows: the controls through their own setters, the window
    /// on the screen it was on, or, when that screen is gone, on the nearest
    /// one, moved and shrunk to fit its available area. When the run closes,
    /// the window's place is saved whatever the result; the controls' values
    /// only when the result is 1 (accept(), done(1)), never on Cancel or
    /// Escape. Empty by default: the dialog then reads and writes nothing. See
    /// \ref remember.
    void setRememberKey(const QString& key);
    /// The key given to setRememberKey(), or an empty string.
    QString rememberKey() const;
    /// Forgets what the store keeps under rememberKey(): the window's place and
    /// the controls' values. The next run opens with the defaults; a run going
    /// on now saves again when it closes. Does nothing without a key.
    void resetRemembered();

    /// Called by every exec(), after the theme and the root layout are in place:
    /// add views to GetLayout(), connect to their signals and, last, create a
    /// CKyUIDialogButtonBox so that it lands at the bottom.
    virtual void SetupUI() = 0;

    /// Runs the dialog modally and returns its result code. The flag has no
    /// effect unless the dialog is interactive: then false shows the dialog
    /// without a modal loop and without telling the host, and returns the
    /// stored result at once. A dialog object is meant to be executed once.
    ///
    /// In order: tells the host that a dialog runs, applies the theme, builds
    /// the root layout, calls SetupUI(), then runs the toolkit's modal loop,
    /// in which your slots run. Returns 1 after accept(), 0 after reject() or
    /// when the user closes the window (Escape, close button), the code given
    /// to done() or setResult() otherwise.
    virtual int exec(bool modal = true);

    /// Event handler for subclasses; does nothing here.
    virtual void showEvent(CKyUIShowEvent* event);
    /// Event handler for subclasses; does nothing here.
    virtual void hideEvent(CKyUIHideEvent* event);

    /// Closes with result 1 and tells the host that the dialog ends. Emits no
    /// signal (neither accepted() nor finished()); an interactive dialog emits
    /// finished(1), then accepted().
    virtual void accept();
    /// Closes with result 0 and tells the host that the dialog ends. Emits no
    /// signal; an interactive dialog emits finished(0), then rejected().
    virtual void reject();
    /// Closes with @p result, which exec() returns, and tells the host that
    /// the dialog ends. Emits no signal; an interactive dialog emits
    /// finished(result), then accepted() for 1 or rejected() for 0.
    virtual void done(int result);

    /// The root layout of the running dialog; null before the first exec().
    /// Add your views to it inside SetupUI(); it owns them.
    CKyUIVerticalLayout* GetLayout();

    /// Closes with the current result code and tells the host that the dialog
    /// ends.
    void hide();
    /// Shows or hides the toolkit dialog. true shows it without set-up and
    /// without a modal loop; false also closes it as hide() does.
    void setVisible(bool visible);
    /// Stored; reaches the toolkit when the dialog closes.
    void setResult(int result);
    /// The stored result code.
    int result() const;

    /// The title last given to setWindowTitle() (not read back from the
    /// toolkit).
    QString windowTitle() const;
    /// Stores the title and shows it on the window.
    void setWindowTitle(const QString& title);

    /// Raised by client code only, unless the dialog is interactive; the button
    /// box reports them as clicks of OK and Cancel.
    CKyUISignal<void()>& accepted();
    /// Raised by client code only, unless the dialog is interactive; the button
    /// box reports it as a click of Cancel and then as its own rejected().
    CKyUISignal<void()>& rejected();
    /// Never emitted by the library, unless the dialog is interactive: then
    /// with the result code whenever the dialog closes, before accepted() or
    /// rejected().
    CKyUISignal<void(int)>& finished();
};
