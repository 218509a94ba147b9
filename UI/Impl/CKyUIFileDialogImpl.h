#pragma once

#include "UI/CKyUIFileDialog.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <QtCore/QPointer>
#include <QtCore/QStringList>

class QWidget;

// Drives one non-native QFileDialog without a toolkit parent; the parent
// view's window only places it.
class CKyUIFileDialogImpl : public CKyUIObjectImpl
{
public:
    CKyUIFileDialogImpl(CKyUIObject* owner, CKyUIBaseView* parent);
    ~CKyUIFileDialogImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetMode(CKyUIFileDialog::Mode mode);
    CKyUIFileDialog::Mode GetMode() const { return m_mode; }
    void SetWindowTitle(const QString& title);
    const QString& WindowTitle() const { return m_windowTitle; }
    void SetNameFilters(const QStringList& filters);
    const QStringList& NameFilters() const { return m_nameFilters; }
    void SetFolderKey(const QString& key) { m_folderKey = key; }
    const QString& FolderKey() const { return m_folderKey; }
    void SetDirectory(const QString& folder) { m_directory = folder; }
    const QString& Directory() const { return m_directory; }
    // Starts in the key's folder, tells the host around the run and stores
    // the chosen folder under the key.
    QStringList Exec();
    const QStringList& SelectedFiles() const { return m_selectedFiles; }

    // Toolkit steps; each does nothing unless the handle is a QFileDialog.
    void SetModeImpl(CKyUIFileDialog::Mode mode);
    void SetWindowTitleImpl(const QString& title);
    void SetNameFiltersImpl(const QStringList& filters);
    // The chosen paths; empty on cancel and when this object went meanwhile.
    QStringList ExecImpl(const QString& startFolder);
    void DestroyFrontendControlImpl();

private:
    CKyUIBaseView* m_parent; // only until the dialog is created
    QPointer<QWidget> m_parentWindow;
    CKyUIFileDialog::Mode m_mode = CKyUIFileDialog::OpenFile;
    QString m_windowTitle;
    QStringList m_nameFilters;
    QString m_folderKey;
    QString m_directory;
    QStringList m_selectedFiles;
};
