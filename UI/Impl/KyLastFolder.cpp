#include "UI/Impl/KyLastFolder.h"

#include <QtCore/QHash>

namespace
{
QHash<QString, QString>& Folders()
{
    static QHash<QString, QString> folders;
    return folders;
}
} // namespace

QString KyLastFolder::Get(const QString& key)
{
    return key.isEmpty() ? QString() : Folders().value(key);
}

void KyLastFolder::Set(const QString& key, const QString& folder)
{
    if (!key.isEmpty())
        Folders().insert(key, folder);
}
