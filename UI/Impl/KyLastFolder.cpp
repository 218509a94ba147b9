#include "UI/Impl/KyLastFolder.h"

#include "UI/Impl/KySettingsStore.h"

#include <QtCore/QDir>
#include <QtCore/QHash>

namespace
{
QHash<QString, QString>& Folders()
{
    static QHash<QString, QString> folders;
    return folders;
}

QString StoreGroup(const QString& key)
{
    return QStringLiteral("file-dialogs/") + key;
}

const QString kFolderEntry = QStringLiteral("folder");
} // namespace

QString KyLastFolder::Get(const QString& key)
{
    if (key.isEmpty())
        return QString();
    const auto known = Folders().constFind(key);
    if (known != Folders().constEnd())
        return known.value();
    // Across restarts through the dialogs' store; a folder removed since is
    // no place to start in.
    QString stored;
    if (!KySettingsStore::ReadString(KySettingsStore::ReadImpl(StoreGroup(key)).value(kFolderEntry), &stored) ||
        stored.isEmpty() || !QDir(stored).exists())
        return QString();
    Folders().insert(key, stored);
    return stored;
}

void KyLastFolder::Set(const QString& key, const QString& folder)
{
    if (key.isEmpty())
        return;
    Folders().insert(key, folder);
    KySettingsStore::WriteImpl(StoreGroup(key), {{kFolderEntry, folder}});
}
