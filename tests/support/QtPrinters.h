#pragma once

#include <QtCore/QString>

#include <ostream>

// Lets failure messages show strings (and lists of them) as text rather than
// as bytes.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
