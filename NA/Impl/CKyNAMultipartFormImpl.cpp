#include "NA/Impl/CKyNAMultipartFormImpl.h"

#include "NA/Impl/KyHeaderCheck.h"

bool CKyNAMultipartFormImpl::AcceptName(const QByteArray& name)
{
    // The name is quoted inside Content-Disposition: a quote would end it,
    // a line break would start a header of its own.
    if (!name.isEmpty() && !name.contains('"') && !KyHeaderCheck::Fault("Name", name))
        return true;
    KyHeaderCheck::WarnImpl("CKyNAMultipartForm: part not added: the name is empty or holds a quote, "
                            "CR, LF or NUL");
    return false;
}

bool CKyNAMultipartFormImpl::addField(const QString& name, const QString& value)
{
    const QByteArray bytes = name.toUtf8();
    if (!AcceptName(bytes))
        return false;
    m_parts.append(Part{bytes, value.toUtf8(), QString(), QByteArray()});
    return true;
}

bool CKyNAMultipartFormImpl::addFile(const QString& name, const QString& path, const QByteArray& contentType)
{
    const QByteArray bytes = name.toUtf8();
    if (!AcceptName(bytes) || KyHeaderCheck::Refuse("CKyNAMultipartForm", "Content-Type", contentType) ||
        !ReadableFileImpl(path))
        return false;
    m_parts.append(Part{bytes, QByteArray(), path, contentType});
    return true;
}
