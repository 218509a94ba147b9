#include "UI/CKyUISettingsStore.h"

#include "UI/Impl/KySettingsStore.h"

void CKyUISettingsStore::setApplication(const QString& organization, const QString& application)
{
    KySettingsStore::SetApplication(organization, application);
}

void CKyUISettingsStore::setFile(const QString& path)
{
    KySettingsStore::SetFile(path);
}

void CKyUISettingsStore::setHostFile(const QString& path)
{
    KySettingsStore::SetHostFile(path);
}

QString CKyUISettingsStore::hostFile()
{
    return KySettingsStore::HostFile();
}

QString CKyUISettingsStore::location()
{
    return KySettingsStore::LocationImpl();
}

void CKyUISettingsStore::forget(const QString& rememberKey)
{
    KySettingsStore::RemoveImpl(rememberKey);
}
