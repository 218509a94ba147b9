#include "NA/Impl/CKyNANetworkRequestImpl.h"

#include "NA/Impl/KyHeaderCheck.h"

#include <QtNetwork/QNetworkRequest>
#include <QtNetwork/QSslConfiguration>

// The codes go to the toolkit unchanged, so they must be the toolkit's.
static_assert(int(CKyNANetworkRequest::ContentTypeHeader) == int(QNetworkRequest::ContentTypeHeader), "");
static_assert(int(CKyNANetworkRequest::SetCookieHeader) == int(QNetworkRequest::SetCookieHeader), "");
static_assert(int(CKyNANetworkRequest::ServerHeader) == int(QNetworkRequest::ServerHeader), "");
static_assert(int(CKyNANetworkRequest::HttpStatusCodeAttribute) ==
                  int(QNetworkRequest::HttpStatusCodeAttribute),
              "");
static_assert(int(CKyNANetworkRequest::BackgroundRequestAttribute) ==
                  int(QNetworkRequest::BackgroundRequestAttribute),
              "");
// Qt 6 renumbered the attributes after BackgroundRequestAttribute; the
// reply translates those codes (ToolkitAttribute).
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
static_assert(int(CKyNANetworkRequest::EmitAllUploadProgressSignalsAttribute) ==
                  int(QNetworkRequest::EmitAllUploadProgressSignalsAttribute),
              "");
static_assert(int(CKyNANetworkRequest::RedirectPolicyAttribute) ==
                  int(QNetworkRequest::RedirectPolicyAttribute),
              "");
#endif
static_assert(int(CKyNANetworkRequest::User) == int(QNetworkRequest::User), "");
static_assert(int(CKyNANetworkRequest::UserMax) == int(QNetworkRequest::UserMax), "");

void CKyNANetworkRequestImpl::CreateNetworkRequestImpl(const QUrl& url)
{
    auto* request = new QNetworkRequest(url);
    // Said explicitly because toolkits differ in their default: redirects are
    // reported, not followed, unless the client asks.
    request->setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    m_owner->setHandle(request);
}

void CKyNANetworkRequestImpl::DestroyNetworkRequestImpl()
{
    QNetworkRequest* request = m_owner->getHandle();
    if (!request)
        return;
    delete request;
    m_owner->setHandle(nullptr);
}

void CKyNANetworkRequestImpl::SetUrlImpl(const QUrl& url)
{
    if (QNetworkRequest* request = m_owner->getHandle())
        request->setUrl(url);
}

bool CKyNANetworkRequestImpl::SetHeaderImpl(CKyNANetworkRequest::KnownHeaders header, const QVariant& value)
{
    QNetworkRequest* request = m_owner->getHandle();
    if (!request)
        return true;
    // Tried on a copy: the bytes are known only once the toolkit has converted
    // the value, under whatever name it gives the code.
    QNetworkRequest candidate(*request);
    candidate.setHeader(QNetworkRequest::KnownHeaders(header), value);
    for (const QByteArray& name : candidate.rawHeaderList()) {
        const QByteArray bytes = candidate.rawHeader(name);
        if (bytes != request->rawHeader(name) &&
            KyHeaderCheck::Refuse("CKyNANetworkRequest::setHeader", name, bytes))
            return false;
    }
    *request = candidate;
    return true;
}

void CKyNANetworkRequestImpl::SetRawHeaderImpl(const QByteArray& name, const QByteArray& value)
{
    if (QNetworkRequest* request = m_owner->getHandle())
        request->setRawHeader(name, value);
}

void CKyNANetworkRequestImpl::SetSslConfigurationImpl()
{
    QNetworkRequest* request = m_owner->getHandle();
    if (!request)
        return;
    // Built afresh each time, so that clearing an option restores the default.
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    if (!m_caCertificates.isEmpty())
        configuration.setCaCertificates(QSslConfiguration::systemCaCertificates() + m_caCertificates);
    if (m_client) {
        configuration.setLocalCertificate(m_client->first);
        configuration.setPrivateKey(m_client->second);
    }
    request->setSslConfiguration(configuration);
}

void CKyNANetworkRequestImpl::SetRedirectPolicyImpl()
{
    // Nothing reaches the toolkit: it keeps reporting redirects, and the
    // reply follows them itself (the toolkit would carry the credentials
    // along to another origin).
}

void CKyNANetworkRequestImpl::SetCredentialsImpl()
{
    QNetworkRequest* request = m_owner->getHandle();
    if (!request)
        return;
    const auto code = QNetworkRequest::Attribute(CredentialsAttribute);
    request->setAttribute(code, m_user.isEmpty() ? QVariant() : QVariant(QStringList{m_user, m_password}));
}
