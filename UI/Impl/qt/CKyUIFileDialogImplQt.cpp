#include "UI/Impl/CKyUIFileDialogImpl.h"

#include "UI/Impl/qt/KyToolkitDialog.h"

#include <QtWidgets/QFileDialog>

namespace
{
QFileDialog* DialogOf(const CKyUIObject* owner)
{
    return qobject_cast<QFileDialog*>(owner->getHandle());
}
} // namespace

void CKyUIFileDialogImpl::CreateFrontendControl()
{
    m_parentWindow = KyToolkitDialog::WindowOf(m_parent);
    m_parent = nullptr;
    auto* dialog = new QFileDialog(nullptr);
    // The toolkit's own dialog: themed like ours, and the same on every desktop.
    dialog->setOption(QFileDialog::DontUseNativeDialog, true);
    owner()->setHandle(dialog);
    SetModeImpl(m_mode);
}

void CKyUIFileDialogImpl::DestroyFrontendControlImpl()
{
    QFileDialog* dialog = DialogOf(owner());
    owner()->setHandle(nullptr);
    KyToolkitDialog::Release(dialog);
}

void CKyUIFileDialogImpl::SetModeImpl(CKyUIFileDialog::Mode mode)
{
    QFileDialog* dialog = DialogOf(owner());
    if (!dialog)
        return;
    static const QFileDialog::FileMode kFileModes[] = {QFileDialog::ExistingFile, QFileDialog::ExistingFiles,
                                                       QFileDialog::AnyFile, QFileDialog::Directory};
    if (mode < 0 || mode >= int(sizeof kFileModes / sizeof kFileModes[0]))
        return;
    dialog->setFileMode(kFileModes[mode]);
    dialog->setAcceptMode(mode == CKyUIFileDialog::SaveFile ? QFileDialog::AcceptSave
                                                            : QFileDialog::AcceptOpen);
    dialog->setOption(QFileDialog::ShowDirsOnly, mode == CKyUIFileDialog::ChooseFolder);
}

void CKyUIFileDialogImpl::SetWindowTitleImpl(const QString& title)
{
    if (QFileDialog* dialog = DialogOf(owner()))
        dialog->setWindowTitle(title);
}

void CKyUIFileDialogImpl::SetNameFiltersImpl(const QStringList& filters)
{
    if (QFileDialog* dialog = DialogOf(owner()))
        dialog->setNameFilters(filters);
}

QStringList CKyUIFileDialogImpl::ExecImpl(const QString& startFolder)
{
    QFileDialog* dialog = DialogOf(owner());
    if (!dialog)
        return QStringList();
    if (!startFolder.isEmpty())
        dialog->setDirectory(startFolder);
    // Here rather than at creation: the toolkit builds the widgets inside late.
    KyToolkitDialog::ApplyTheme(dialog, QStringLiteral("filedialog"));
    KyToolkitDialog::PlaceOver(dialog, m_parentWindow);
    const Lifetime lifetime = GetLifetime();
    const bool accepted = KyToolkitDialog::RunModal(dialog);
    if (!lifetime.Alive() || !accepted)
        return QStringList();
    return dialog->selectedFiles();
}
