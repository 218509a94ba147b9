#include "UI/Impl/KySettingsStore.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>

#include <memory>

namespace
{
// A fresh QSettings per use: the choice may change between two runs, and
// every write ends with its own sync.
std::unique_ptr<QSettings> Open()
{
    const KySettingsStore::Choice choice = KySettingsStore::Chosen();
    if (!choice.file.isEmpty())
        return std::make_unique<QSettings>(choice.file, QSettings::IniFormat);
    if (!choice.organization.isEmpty() || !choice.application.isEmpty())
        return std::make_unique<QSettings>(choice.organization, choice.application);
    // The host application's own names; a host without an organisation
    // still gets a folder of its own.
    QString organization = QCoreApplication::organizationName();
    if (organization.isEmpty())
        organization = QStringLiteral("CommonUI");
    return std::make_unique<QSettings>(organization, QCoreApplication::applicationName());
}
} // namespace

namespace KySettingsStore
{
QString LocationImpl()
{
    return Open()->fileName();
}

QVariantMap ReadImpl(const QString& group)
{
    QVariantMap entries;
    if (group.isEmpty())
        return entries;
    const std::unique_ptr<QSettings> settings = Open();
    settings->beginGroup(group);
    const QStringList keys = settings->allKeys();
    for (const QString& key : keys)
        entries.insert(key, settings->value(key));
    return entries;
}

void WriteImpl(const QString& group, const QVariantMap& entries)
{
    if (group.isEmpty())
        return;
    const std::unique_ptr<QSettings> settings = Open();
    settings->beginGroup(group);
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        if (it.value().isValid())
            settings->setValue(it.key(), it.value());
        else
            settings->remove(it.key());
    }
    settings->endGroup();
    // Written through a temporary file that then replaces the old one.
    settings->sync();
}

void RemoveImpl(const QString& group)
{
    if (group.isEmpty())
        return;
    const std::unique_ptr<QSettings> settings = Open();
    settings->remove(group);
    settings->sync();
}
} // namespace KySettingsStore
