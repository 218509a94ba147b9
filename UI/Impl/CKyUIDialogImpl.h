#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIObjectImpl.h"

class CKyUIDialog;
class CKyUIShowEvent;
class CKyUIHideEvent;
class CKyUIVerticalLayout;
class QObject;
class QRect;
class QVBoxLayout;

// Drives one plain QDialog: the theme, the root layout, the result code and
// the host notification around a modal run.
class CKyUIDialogImpl : public CKyUIObjectImpl
{
public:
    explicit CKyUIDialogImpl(CKyUIDialog* owner);
    ~CKyUIDialogImpl() override;

    // Hand the events on to the public dialog.
    virtual void showEvent(CKyUIShowEvent* event);
    virtual void hideEvent(CKyUIHideEvent* event);

    int Exec(bool modal);
    void Accept();
    void Reject();
    void Done(int result);
    void Hide();
    void SetVisible(bool visible);
    void SetResult(int result) { m_result = result; }
    int Result() const { return m_result; }
    void SetWindowTitle(const QString& title);
    const QString& WindowTitle() const { return m_windowTitle; }
    CKyUIVerticalLayout* GetLayout() const { return m_rootLayout; }
    void SetReleasesToolkitDialog(bool release) { m_releasesToolkitDialog = release; }
    bool ReleasesToolkitDialog() const { return m_releasesToolkitDialog; }
    static void SetDefaultReleasesToolkitDialog(bool release);
    static bool DefaultReleasesToolkitDialog();
    void SetRememberKey(const QString& key) { m_rememberKey = key; }
    const QString& RememberKey() const { return m_rememberKey; }
    void ResetRemembered();
    // Hands the switch on to the dialog's tree: its root layout and children.
    void SetInteractiveImpl(bool interactive) override;

    // Under the switch: the toolkit's own close (Escape, the window's close
    // button) ends the run as reject() does.
    void OnToolkitFinished(int result);

    // No toolkit signal is connected to these; client code may call them.
    void OnAccepted();
    void OnAcceptPressed();
    void OnRejected();
    void OnRejectPressed();

    // Toolkit steps; each does nothing unless the handle is a QDialog.
    void CreateFrontendDialogImpl();
    // Forgets the QDialog, or releases it when asked to.
    void DestroyFrontendDialogImpl();
    // The argument is not used.
    void SetupUIImpl(QObject* parent);
    // The toolkit's result, or the stored one without a dialog. Only a run
    // under the switch may be non-modal: then the dialog is shown and the
    // stored result returned at once.
    int ExecImpl(bool modal);
    // Lets the toolkit's own close reach OnToolkitFinished.
    void LinkToolkitCloseImpl();
    void HideImpl();
    void SetVisibleImpl(bool visible);
    void SetWindowTitleImpl(const QString& title);
    // The window's place as stored: the frame's top-left corner, the inner
    // size and the name of the screen it is on. False without a window.
    bool WindowPlaceImpl(QRect* place, QString* screen) const;
    // Puts the window where it was, moved onto a screen that still exists.
    void RestoreWindowPlaceImpl(const QRect& place, const QString& screen);

private:
    // Gives the remembered values and the window's place back before the run
    // shows; answers whether the dialog survived the slots that this runs.
    bool RestoreRemembered();
    // Once per run, as the dialog closes: the window's place always, the
    // controls' values only when accepted (result 1).
    void RememberOnClose(int result);
    // Tells the host that the dialog no longer runs. Under the switch only
    // once, and only after a modal run was announced.
    void NotifyRunEnded();
    // Under the switch: stores the result, closes and reports finished, then
    // accepted (1) or rejected (0). A close asked for while that report runs
    // is the same end and does nothing: the button box relays the dialog's
    // accepted and rejected back as presses, whose slots close again.
    void EndRun(int result);

    CKyUIDialog* const m_dialog;
    QVBoxLayout* m_boxLayout = nullptr;          // owned by the QDialog
    CKyUIVerticalLayout* m_rootLayout = nullptr; // owned
    QString m_windowTitle;
    int m_result = 0;
    bool m_releasesToolkitDialog;
    bool m_hostToldRunning = false;
    bool m_reportingEnd = false;
    QString m_rememberKey;
    // Set while a run with a remember key has not closed yet.
    bool m_rememberRun = false;
    // Points into a running ExecImpl: set there when the dialog object goes
    // during the run and the QDialog is to be deleted once the run is over.
    bool* m_releaseAfterRun = nullptr;

public:
    CKyUISignal<void()> accepted;
    CKyUISignal<void()> rejected;
    CKyUISignal<void(int)> finished;
};
