#pragma once

// The host application's kernel library, as far as this library uses it.

#include <QtCore/QString>

class CKyString
{
public:
    CKyString(const QString& text);

    operator const QString&() const;

    // Replaces the characters & < > " ' by their HTML entities, in place.
    CKyString& EncodeHTML();

private:
    QString m_text;
};

// The companion host object of a document; the host learns through it that a
// modal dialog starts or stops running.
class CKyDocumentHost
{
public:
    virtual ~CKyDocumentHost();
    virtual void SetModalDialogRunning(bool running);
};

struct CKyDocument
{
    CKyDocumentHost* host = nullptr;
};

// The active document; never null.
CKyDocument* ACTIVE_DOCUMENT();
