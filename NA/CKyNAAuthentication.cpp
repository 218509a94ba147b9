#include "NA/CKyNAAuthentication.h"

CKyNAAuthentication::CKyNAAuthentication(const QUrl& url, const QString& realm, bool retry)
    : m_url(url)
    , m_realm(realm)
    , m_retry(retry)
{}

void CKyNAAuthentication::setCredentials(const QString& user, const QString& password)
{
    m_user = user;
    m_password = password;
    m_answered = true;
}
