#include "UI/Impl/CKyUIFileDialogImpl.h"

#include "UI/Impl/KyLastFolder.h"
#include "UI/Impl/KyModalRun.h"

#include <QtCore/QFileInfo>

CKyUIFileDialogImpl::CKyUIFileDialogImpl(CKyUIObject* owner, CKyUIBaseView* parent)
    : CKyUIObjectImpl(owner)
    , m_parent(parent)
{}

CKyUIFileDialogImpl::~CKyUIFileDialogImpl()
{
    DestroyFrontendControlImpl();
}

QString CKyUIFileDialogImpl::GetFrontendClassName()
{
    return QStringLiteral("QFileDialog");
}

void CKyUIFileDialogImpl::SetMode(CKyUIFileDialog::Mode mode)
{
    m_mode = mode;
    SetModeImpl(mode);
}

void CKyUIFileDialogImpl::SetWindowTitle(const QString& title)
{
    if (m_windowTitle == title)
        return;
    m_windowTitle = title;
    SetWindowTitleImpl(title);
}

void CKyUIFileDialogImpl::SetNameFilters(const QStringList& filters)
{
    m_nameFilters = filters;
    SetNameFiltersImpl(filters);
}

QStringList CKyUIFileDialogImpl::Exec()
{
    const QString remembered = KyLastFolder::Get(m_folderKey);
    const Lifetime lifetime = GetLifetime();
    QStringList chosen;
    {
        const KyModalRun::Scope run;
        chosen = ExecImpl(remembered.isEmpty() ? m_directory : remembered);
    }
    if (!lifetime.Alive())
        return QStringList();
    m_selectedFiles = chosen;
    if (!chosen.isEmpty()) {
        const QFileInfo first(chosen.first());
        KyLastFolder::Set(m_folderKey, m_mode == CKyUIFileDialog::ChooseFolder ? first.absoluteFilePath()
                                                                               : first.absolutePath());
    }
    return chosen;
}
