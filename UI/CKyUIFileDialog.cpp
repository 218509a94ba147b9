#include "UI/CKyUIFileDialog.h"

#include "UI/Impl/CKyUIFileDialogImpl.h"

namespace
{
QStringList Run(CKyUIBaseView* parent, CKyUIFileDialog::Mode mode, const QString& title,
                const QString& filter, const QString& folderKey)
{
    CKyUIFileDialog dialog(parent);
    dialog.setMode(mode);
    dialog.setWindowTitle(title);
    if (!filter.isEmpty())
        dialog.setNameFilters(filter.split(QStringLiteral(";;")));
    dialog.setFolderKey(folderKey);
    return dialog.exec();
}

QString First(const QStringList& paths)
{
    return paths.isEmpty() ? QString() : paths.first();
}
} // namespace

CKyUIFileDialog::CKyUIFileDialog(CKyUIBaseView* parent)
{
    createImpl<CKyUIFileDialogImpl>(this, parent);
}

CKyUIFileDialog::~CKyUIFileDialog() = default;

void CKyUIFileDialog::setMode(Mode mode)
{
    implAs<CKyUIFileDialogImpl>()->SetMode(mode);
}

CKyUIFileDialog::Mode CKyUIFileDialog::mode() const
{
    return implAs<CKyUIFileDialogImpl>()->GetMode();
}

void CKyUIFileDialog::setWindowTitle(const QString& title)
{
    implAs<CKyUIFileDialogImpl>()->SetWindowTitle(title);
}

QString CKyUIFileDialog::windowTitle() const
{
    return implAs<CKyUIFileDialogImpl>()->WindowTitle();
}

void CKyUIFileDialog::setNameFilters(const QStringList& filters)
{
    implAs<CKyUIFileDialogImpl>()->SetNameFilters(filters);
}

QStringList CKyUIFileDialog::nameFilters() const
{
    return implAs<CKyUIFileDialogImpl>()->NameFilters();
}

void CKyUIFileDialog::setFolderKey(const QString& key)
{
    implAs<CKyUIFileDialogImpl>()->SetFolderKey(key);
}

QString CKyUIFileDialog::folderKey() const
{
    return implAs<CKyUIFileDialogImpl>()->FolderKey();
}

void CKyUIFileDialog::setDirectory(const QString& folder)
{
    implAs<CKyUIFileDialogImpl>()->SetDirectory(folder);
}

QString CKyUIFileDialog::directory() const
{
    return implAs<CKyUIFileDialogImpl>()->Directory();
}

QStringList CKyUIFileDialog::exec()
{
    return implAs<CKyUIFileDialogImpl>()->Exec();
}

QStringList CKyUIFileDialog::selectedFiles() const
{
    return implAs<CKyUIFileDialogImpl>()->SelectedFiles();
}

QString CKyUIFileDialog::getOpenFileName(CKyUIBaseView* parent, const QString& title, const QString& filter,
                                         const QString& folderKey)
{
    return First(Run(parent, OpenFile, title, filter, folderKey));
}

QStringList CKyUIFileDialog::getOpenFileNames(CKyUIBaseView* parent, const QString& title,
                                              const QString& filter, const QString& folderKey)
{
    return Run(parent, OpenFiles, title, filter, folderKey);
}

QString CKyUIFileDialog::getSaveFileName(CKyUIBaseView* parent, const QString& title, const QString& filter,
                                         const QString& folderKey)
{
    return First(Run(parent, SaveFile, title, filter, folderKey));
}

QString CKyUIFileDialog::getExistingDirectory(CKyUIBaseView* parent, const QString& title,
                                              const QString& folderKey)
{
    return First(Run(parent, ChooseFolder, title, QString(), folderKey));
}
