#pragma once

#include <QtCore/QByteArray>

// The headers the library refuses to send. A line break or a NUL in a name or
// a value would let the bytes after it pass for a header of their own, and a
// name that is no token is no header at all.
namespace KyHeaderCheck
{

// Why the header must not be sent; null when it may.
const char* Fault(const QByteArray& name, const QByteArray& value);

// True when the header must not be sent; then says why, once, on the
// toolkit's warning channel, naming the operation it was given to.
bool Refuse(const char* operation, const QByteArray& name, const QByteArray& value);

// Writes one line to the toolkit's warning channel.
void WarnImpl(const QByteArray& message);

} // namespace KyHeaderCheck
