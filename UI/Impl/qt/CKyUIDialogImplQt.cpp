#include "UI/Impl/CKyUIDialogImpl.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIStyle.h"
#include "UI/CKyUIVerticalLayout.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QVBoxLayout>

namespace
{
QDialog* DialogOf(const CKyUIObject* owner)
{
    return qobject_cast<QDialog*>(owner->getHandle());
}
} // namespace

void CKyUIDialogImpl::CreateFrontendDialogImpl()
{
    owner()->setHandle(new QDialog(nullptr, Qt::WindowFlags()));
}

void CKyUIDialogImpl::DestroyFrontendDialogImpl()
{
    // The QDialog is deliberately not deleted, only forgotten: a dialog is no
    // view, so nothing releases its widget, and the hidden window stays behind
    // without an owner. It still owns the box layout and the root layout's
    // group box, so their handles are dropped before the root layout goes.
    owner()->setHandle(nullptr);
    if (!m_rootLayout)
        return;
    m_rootLayout->setHandle(nullptr);
    m_boxLayout = nullptr;
    delete m_rootLayout;
    m_rootLayout = nullptr;
}

void CKyUIDialogImpl::SetupUIImpl(QObject*)
{
    QDialog* dialog = DialogOf(owner());
    if (!dialog)
        return;
    // The only place the theme is applied: it cascades to every control.
    if (const std::shared_ptr<CKyUIStyle> style = GetStyle())
        dialog->setStyleSheet(style->styleSheet);
    dialog->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);

    auto* boxLayout = new QVBoxLayout(dialog);
    boxLayout->setObjectName(QStringLiteral("mainLayout"));
    // A second exec() replaces the root layout object without deleting it.
    m_rootLayout = new CKyUIVerticalLayout;
    m_rootLayout->setObjectName(QStringLiteral("main_layout"));
    m_boxLayout = boxLayout;

    boxLayout->setContentsMargins(0, 0, 0, 0);
    if (QWidget* root = qobject_cast<QWidget*>(m_rootLayout->getHandle())) {
        root->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        boxLayout->addWidget(root, 0, Qt::Alignment());
    }

    m_dialog->SetupUI();
}

int CKyUIDialogImpl::ExecImpl(bool)
{
    QDialog* dialog = DialogOf(owner());
    return dialog ? dialog->exec() : m_result;
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
