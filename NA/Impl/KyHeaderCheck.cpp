#include "NA/Impl/KyHeaderCheck.h"

#include <algorithm>
#include <cstring>

namespace
{

bool IsTokenChar(char c)
{
    static const char others[] = "!#$%&'*+-.^_`|~";
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           (c != '\0' && std::strchr(others, c));
}

bool HoldsLineBreak(const QByteArray& bytes)
{
    return bytes.contains('\r') || bytes.contains('\n') || bytes.contains('\0');
}

// The name as a log line can carry it: nothing but visible ASCII, the rest as
// \xHH, so that the warning cannot be split either.
QByteArray Printable(const QByteArray& name)
{
    QByteArray printable;
    for (const char c : name) {
        if (c > ' ' && c < 0x7f && c != '"' && c != '\\')
            printable += c;
        else
            printable += "\\x" + QByteArray::number(uchar(c), 16).rightJustified(2, '0');
    }
    return printable;
}

} // namespace

const char* KyHeaderCheck::Fault(const QByteArray& name, const QByteArray& value)
{
    if (HoldsLineBreak(name))
        return "the name holds CR, LF or NUL";
    if (name.isEmpty() || !std::all_of(name.begin(), name.end(), IsTokenChar))
        return "the name is not a token";
    if (HoldsLineBreak(value))
        return "the value holds CR, LF or NUL";
    return nullptr;
}

bool KyHeaderCheck::Refuse(const char* operation, const QByteArray& name, const QByteArray& value)
{
    const char* fault = Fault(name, value);
    if (!fault)
        return false;
    WarnImpl(QByteArray(operation) + ": header \"" + Printable(name) + "\" not set: " + fault);
    return true;
}
