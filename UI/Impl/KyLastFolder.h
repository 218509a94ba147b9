#pragma once

#include <QtCore/QString>

// The folder a file dialog last ended in, per key of the caller's choosing.
// Kept in the dialogs' store, so that it outlives the host's session; these
// two are the one way in and out of it.
namespace KyLastFolder
{
// The folder last stored under the key; empty when there is none, and for
// the empty key.
QString Get(const QString& key);
// Stores the folder under the key; the empty key stores nothing.
void Set(const QString& key, const QString& folder);
} // namespace KyLastFolder
