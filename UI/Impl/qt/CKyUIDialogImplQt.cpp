#include "UI/Impl/CKyUIDialogImpl.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIVerticalLayout.h"
#include "UI/Impl/qt/KyThemeVariant.h"
#include "UI/Impl/qt/KyWindowPlacement.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtWidgets/QDialog>
#include <QtWidgets/QVBoxLayout>

namespace
{
QDialog* DialogOf(const CKyUIObject* owner)
{
    return qobject_cast<QDialog*>(owner->getHandle());
}

// Hides its parent dialog when its own deferred deletion comes up. Posted
// after the views' widgets, it comes after them: the frontends, whose
// implementations are gone, never see the window hide, and a nested event
// loop does not run it before the loop it was posted from allows.
class HideOnDeferredDelete : public QObject
{
public:
    using QObject::QObject;

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::DeferredDelete) {
            if (auto* dialog = qobject_cast<QWidget*>(parent()))
                dialog->hide();
        }
        return QObject::event(event);
    }
};
} // namespace

void CKyUIDialogImpl::CreateFrontendDialogImpl()
{
    owner()->setHandle(new QDialog(nullptr, Qt::WindowFlags()));
}

void CKyUIDialogImpl::DestroyFrontendDialogImpl()
{
    // By default the QDialog is deliberately not deleted, only forgotten: a
    // dialog is no view, so nothing releases its widget, and the hidden window
    // stays behind without an owner. It owns the box layout and the root
    // layout's group box, so their handles are dropped before the root layout
    // goes.
    QDialog* dialog = DialogOf(owner());
    owner()->setHandle(nullptr);
    if (m_rootLayout) {
        m_rootLayout->setHandle(nullptr);
        m_boxLayout = nullptr;
        delete m_rootLayout;
        m_rootLayout = nullptr;
    }
    if (!dialog)
        return;
    if (!m_releasesToolkitDialog) {
        // A window still shown, or still running, is hidden after the views'
        // widgets go; hiding ends the run.
        if (dialog->isVisible())
            (new HideOnDeferredDelete(dialog))->deleteLater();
        return;
    }
    // Later, after the views' widgets: one of them, or the dialog itself, may
    // be inside an event handler right now.
    if (!m_releaseAfterRun) {
        dialog->deleteLater();
        return;
    }
    // Its exec() is still on the stack: end the run, and let ExecImpl delete
    // the dialog once the run's loop, and every loop inside it, has returned.
    *m_releaseAfterRun = true;
    (new HideOnDeferredDelete(dialog))->deleteLater();
}

void CKyUIDialogImpl::SetupUIImpl(QObject*)
{
    QDialog* dialog = DialogOf(owner());
    if (!dialog)
        return;
    // The only place the theme is applied: it cascades to every control. The
    // compiled-in sheet unless the client chose a variant.
    KyThemeVariant::ApplyTo(dialog);
    dialog->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);

    auto* boxLayout = new QVBoxLayout(dialog);
    boxLayout->setObjectName(QStringLiteral("mainLayout"));
    // A second exec() replaces the root layout object without deleting it.
    m_rootLayout = new CKyUIVerticalLayout;
    m_rootLayout->setObjectName(QStringLiteral("main_layout"));
    // Before SetupUI(), so that every view it adds inherits the switch.
    if (owner()->isInteractive())
        m_rootLayout->setInteractive(true);
    m_boxLayout = boxLayout;

    boxLayout->setContentsMargins(0, 0, 0, 0);
    if (QWidget* root = qobject_cast<QWidget*>(m_rootLayout->getHandle())) {
        root->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        boxLayout->addWidget(root, 0, Qt::Alignment());
    }

    m_dialog->SetupUI();
}

int CKyUIDialogImpl::ExecImpl(bool modal)
{
    QDialog* dialog = DialogOf(owner());
    if (!dialog)
        return m_result;
    if (!modal) {
        dialog->show();
        return m_result;
    }
    bool releaseAfterRun = false;
    m_releaseAfterRun = &releaseAfterRun;
    const Lifetime lifetime = GetLifetime();
    const QPointer<QDialog> guard(dialog);
    const int result = dialog->exec();
    if (lifetime.Alive())
        m_releaseAfterRun = nullptr;
    else if (releaseAfterRun)
        delete guard.data();
    return result;
}

void CKyUIDialogImpl::LinkToolkitCloseImpl()
{
    // Our own closing only hides the dialog, which the toolkit does not
    // report: what arrives here is the toolkit's close.
    if (QDialog* dialog = DialogOf(owner()))
        LinkUserInput(QObject::connect(dialog, &QDialog::finished, dialog,
                                       [this](int result) { OnToolkitFinished(result); }));
}

void CKyUIDialogImpl::HideImpl()
{
    // Hiding a dialog that runs modally ends its loop with this code.
    if (QDialog* dialog = DialogOf(owner())) {
        dialog->setResult(m_result);
        dialog->hide();
    }
}

void CKyUIDialogImpl::SetVisibleImpl(bool visible)
{
    if (QDialog* dialog = DialogOf(owner()))
        dialog->setVisible(visible);
}

void CKyUIDialogImpl::SetWindowTitleImpl(const QString& title)
{
    if (QDialog* dialog = DialogOf(owner()))
        dialog->setWindowTitle(title);
}

bool CKyUIDialogImpl::WindowPlaceImpl(QRect* place, QString* screen) const
{
    QDialog* dialog = DialogOf(owner());
    if (!dialog)
        return false;
    *place = QRect(dialog->pos(), dialog->size());
    const QVector<KyWindowPlacement::Screen> screens = KyWindowPlacement::Screens();
    const KyWindowPlacement::Screen* on =
        KyWindowPlacement::Nearest(dialog->frameGeometry().center(), screens);
    *screen = on ? on->name : QString();
    return true;
}

void CKyUIDialogImpl::RestoreWindowPlaceImpl(const QRect& place, const QString& screen)
{
    QDialog* dialog = DialogOf(owner());
    if (!dialog)
        return;
    // Before the window shows: a window moved and resized by the program is
    // neither centred nor sized by the toolkit.
    const QRect placed =
        KyWindowPlacement::Place(place, screen, KyWindowPlacement::Screens(), dialog->minimumSizeHint());
    dialog->resize(placed.size());
    dialog->move(placed.topLeft());
}
