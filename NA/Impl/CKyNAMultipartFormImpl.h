#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

class QHttpMultiPart;

// What a form sends, in order; the toolkit's multipart is made only when a
// transfer starts, so that the transfer alone owns the open files.
class CKyNAMultipartFormImpl
{
public:
    struct Part
    {
        QByteArray name;
        QByteArray value; // a field's text
        QString path;     // a file's, empty for a field
        QByteArray contentType;
    };

    bool addField(const QString& name, const QString& value);
    bool addFile(const QString& name, const QString& path, const QByteArray& contentType);
    int count() const { return m_parts.size(); }

    // Toolkit steps. The multipart has no parent; `complete` turns false when
    // a file could not be opened.
    QHttpMultiPart* CreateMultiPartImpl(bool& complete) const;
    static bool ReadableFileImpl(const QString& path);

private:
    // False, with one warning, for a name that would break the part's headers.
    static bool AcceptName(const QByteArray& name);

    QList<Part> m_parts;
};
