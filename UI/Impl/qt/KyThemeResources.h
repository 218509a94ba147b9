#pragma once

#include <QtCore/QString>

// Reads the theme's compiled-in resources.
namespace KyThemeResources
{
// The whole text of a resource, decoded by a text stream; false when it
// cannot be opened. Opened without QIODevice::Text: CR LF stays as it is.
bool Read(const QString& path, QString& text);
} // namespace KyThemeResources
