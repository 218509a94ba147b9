#include "UI/Impl/CKyUIDialogImpl.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"
#include "UI/Impl/KySettingsStore.h"

#include "UI/Impl/KyModalRun.h"

#include <QtCore/QRect>

#include <utility>
#include <vector>

namespace
{
bool g_defaultReleasesToolkitDialog = false;

// Entries below a dialog's remember key.
const QString kValues = QStringLiteral("values/");
const QString kX = QStringLiteral("window/x");
const QString kY = QStringLiteral("window/y");
const QString kWidth = QStringLiteral("window/width");
const QString kHeight = QStringLiteral("window/height");
const QString kScreen = QStringLiteral("window/screen");

// Far beyond any desktop, yet safe to add up.
constexpr int kFarAway = 1 << 24;

using RememberingView = std::pair<CKyUIBaseViewImpl*, CKyUIObjectImpl::Lifetime>;

// The views below root that keep a value, parents before their children.
void CollectRemembering(CKyUIObject* root, std::vector<RememberingView>& found)
{
    if (!root)
        return;
    auto* view = dynamic_cast<CKyUIBaseViewImpl*>(root->impl());
    if (view && !view->RememberName().isEmpty())
        found.emplace_back(view, view->GetLifetime());
    const QList<CKyUIObject*> children = root->children();
    for (CKyUIObject* child : children)
        CollectRemembering(child, found);
}

// Those of a dialog: below its root layout, then below its other children.
std::vector<RememberingView> RememberingViews(CKyUIObject* rootLayout, CKyUIObject* dialog)
{
    std::vector<RememberingView> found;
    CollectRemembering(rootLayout, found);
    const QList<CKyUIObject*> children = dialog->children();
    for (CKyUIObject* child : children)
        CollectRemembering(child, found);
    return found;
}
} // namespace

CKyUIDialogImpl::CKyUIDialogImpl(CKyUIDialog* owner)
    : CKyUIObjectImpl(owner)
    , m_dialog(owner)
    , m_windowTitle(QString())
    , m_releasesToolkitDialog(g_defaultReleasesToolkitDialog)
    , accepted(owner)
    , rejected(owner)
    , finished(owner)
{
    CreateFrontendDialogImpl();
}

CKyUIDialogImpl::~CKyUIDialogImpl()
{
    DestroyFrontendDialogImpl();
}

void CKyUIDialogImpl::showEvent(CKyUIShowEvent* event)
{
    m_dialog->showEvent(event);
}

void CKyUIDialogImpl::hideEvent(CKyUIHideEvent* event)
{
    m_dialog->hideEvent(event);
}

void CKyUIDialogImpl::SetDefaultReleasesToolkitDialog(bool release)
{
    g_defaultReleasesToolkitDialog = release;
}

bool CKyUIDialogImpl::DefaultReleasesToolkitDialog()
{
    return g_defaultReleasesToolkitDialog;
}

void CKyUIDialogImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIObjectImpl::SetInteractiveImpl(interactive);
    if (interactive)
        LinkToolkitCloseImpl();
    SetInteractiveTree(m_rootLayout, interactive);
    const QList<CKyUIObject*> children = owner()->children();
    for (CKyUIObject* child : children)
        SetInteractiveTree(child, interactive);
}

int CKyUIDialogImpl::Exec(bool modal)
{
    // SetupUI() and the slots of the run may delete the dialog.
    const Lifetime lifetime = GetLifetime();
    // Under the switch exec(false) runs beside the host's own window, which
    // is then no modal run to announce.
    const bool modalRun = modal || !owner()->isInteractive();
    if (modalRun) {
        KyModalRun::NotifyHost(true);
        m_hostToldRunning = true;
    }
    SetupUIImpl(nullptr);
    if (!lifetime.Alive())
        return 0;
    // Views made by SetupUI() outside the root layout's tree follow as well.
    if (owner()->isInteractive())
        SetInteractiveImpl(true);
    if (!m_rememberKey.isEmpty()) {
        if (!RestoreRemembered())
            return 0;
        m_rememberRun = true;
    }
    const int result = ExecImpl(modalRun);
    if (!lifetime.Alive())
        return result;
    m_result = result;
    // The toolkit's own close (Escape, the close button) passed no close of ours.
    if (modalRun)
        RememberOnClose(m_result);
    return m_result;
}

bool CKyUIDialogImpl::RestoreRemembered()
{
    const QVariantMap stored = KySettingsStore::ReadImpl(m_rememberKey);
    if (stored.isEmpty())
        return true;
    const std::vector<RememberingView> views = RememberingViews(m_rootLayout, owner());
    const Lifetime lifetime = GetLifetime();
    for (const RememberingView& view : views) {
        // The setters' signals reach client slots, which may delete anything.
        if (!lifetime.Alive())
            return false;
        const auto entry = stored.find(kValues + view.first->RememberName());
        if (entry != stored.end() && view.second.Alive())
            view.first->RestoreRememberedValue(entry.value());
    }
    if (!lifetime.Alive())
        return false;
    int x = 0, y = 0, width = 0, height = 0;
    if (KySettingsStore::ReadInt(stored.value(kX), &x, -kFarAway, kFarAway) &&
        KySettingsStore::ReadInt(stored.value(kY), &y, -kFarAway, kFarAway) &&
        KySettingsStore::ReadInt(stored.value(kWidth), &width, 1, kFarAway) &&
        KySettingsStore::ReadInt(stored.value(kHeight), &height, 1, kFarAway)) {
        QString screen;
        KySettingsStore::ReadString(stored.value(kScreen), &screen);
        RestoreWindowPlaceImpl(QRect(x, y, width, height), screen);
    }
    return true;
}

void CKyUIDialogImpl::RememberOnClose(int result)
{
    if (!m_rememberRun)
        return;
    m_rememberRun = false;
    QVariantMap entries;
    QRect place;
    QString screen;
    if (WindowPlaceImpl(&place, &screen)) {
        entries.insert(kX, place.x());
        entries.insert(kY, place.y());
        entries.insert(kWidth, place.width());
        entries.insert(kHeight, place.height());
        entries.insert(kScreen, screen);
    }
    if (result == 1) {
        for (const RememberingView& view : RememberingViews(m_rootLayout, owner()))
            entries.insert(kValues + view.first->RememberName(), view.first->RememberedValue());
    }
    if (!entries.isEmpty())
        KySettingsStore::WriteImpl(m_rememberKey, entries);
}

void CKyUIDialogImpl::ResetRemembered()
{
    if (!m_rememberKey.isEmpty())
        KySettingsStore::RemoveImpl(m_rememberKey);
}

void CKyUIDialogImpl::Accept()
{
    if (owner()->isInteractive())
        return EndRun(1);
    m_result = 1;
    KyModalRun::NotifyHost(false);
    RememberOnClose(m_result);
    HideImpl();
}

void CKyUIDialogImpl::Reject()
{
    if (owner()->isInteractive())
        return EndRun(0);
    m_result = 0;
    KyModalRun::NotifyHost(false);
    RememberOnClose(m_result);
    HideImpl();
}

void CKyUIDialogImpl::Done(int result)
{
    if (owner()->isInteractive())
        return EndRun(result);
    m_result = result;
    KyModalRun::NotifyHost(false);
    RememberOnClose(m_result);
    HideImpl();
}

void CKyUIDialogImpl::Hide()
{
    NotifyRunEnded();
    RememberOnClose(m_result);
    HideImpl();
}

void CKyUIDialogImpl::NotifyRunEnded()
{
    if (!owner()->isInteractive())
        return KyModalRun::NotifyHost(false);
    if (!m_hostToldRunning)
        return;
    m_hostToldRunning = false;
    KyModalRun::NotifyHost(false);
}

void CKyUIDialogImpl::EndRun(int result)
{
    if (m_reportingEnd)
        return;
    m_reportingEnd = true;
    m_result = result;
    NotifyRunEnded();
    RememberOnClose(m_result);
    HideImpl();
    const bool alive = EmitInOrder([this, result] { finished.Emit(result); },
                                   [this, result] {
                                       if (result == 1)
                                           accepted.Emit();
                                       else if (result == 0)
                                           rejected.Emit();
                                   });
    if (alive)
        m_reportingEnd = false;
}

void CKyUIDialogImpl::OnToolkitFinished(int result)
{
    EndRun(result);
}

void CKyUIDialogImpl::SetVisible(bool visible)
{
    SetVisibleImpl(visible);
    if (!visible)
        Hide();
}

void CKyUIDialogImpl::SetWindowTitle(const QString& title)
{
    if (m_windowTitle == title)
        return;
    m_windowTitle = title;
    SetWindowTitleImpl(title);
}

void CKyUIDialogImpl::OnAccepted()
{
    accepted.Emit();
}

void CKyUIDialogImpl::OnAcceptPressed()
{
    accepted.Emit();
}

void CKyUIDialogImpl::OnRejected()
{
    rejected.Emit();
}

void CKyUIDialogImpl::OnRejectPressed()
{
    rejected.Emit();
}
