#include "KyHostKernel.h"

CKyString::CKyString(const QString& text)
    : m_text(text)
{
}

CKyString::operator const QString&() const
{
    return m_text;
}

CKyString& CKyString::EncodeHTML()
{
    QString encoded;
    encoded.reserve(m_text.size());
    for (const QChar character : qAsConst(m_text)) {
        switch (character.unicode()) {
        case '&':
            encoded += QLatin1String("&amp;");
            break;
        case '<':
            encoded += QLatin1String("&lt;");
            break;
        case '>':
            encoded += QLatin1String("&gt;");
            break;
        case '"':
            encoded += QLatin1String("&quot;");
            break;
        case '\'':
            encoded += QLatin1String("&#39;");
            break;
        default:
            encoded += character;
        }
    }
    m_text = encoded;
    return *this;
}

CKyDocumentHost::~CKyDocumentHost() = default;

void CKyDocumentHost::SetModalDialogRunning(bool)
{
}

CKyDocument* ACTIVE_DOCUMENT()
{
    static CKyDocument document;
    return &document;
}
