#include "NA/Impl/CKyNANetworkRequestImpl.h"

#include "NA/Impl/KyHeaderCheck.h"

CKyNANetworkRequestImpl::CKyNANetworkRequestImpl(CKyNANetworkRequest* owner, const QUrl& url)
    : m_owner(owner)
{
    // The URL field stays empty: only setUrl writes it.
    CreateNetworkRequestImpl(url);
}

CKyNANetworkRequestImpl::~CKyNANetworkRequestImpl()
{
    DestroyNetworkRequestImpl();
}

QUrl CKyNANetworkRequestImpl::url() const
{
    return m_url;
}

void CKyNANetworkRequestImpl::setUrl(const QUrl& url)
{
    m_url = url;
    SetUrlImpl(url);
}

void CKyNANetworkRequestImpl::setHeader(CKyNANetworkRequest::KnownHeaders header, const QVariant& value)
{
    // Only the toolkit knows the bytes a value becomes, so it checks them
    // before anything is kept.
    if (!SetHeaderImpl(header, value))
        return;
    m_knownHeaders[int(header)] = value;
}

QVariant CKyNANetworkRequestImpl::header(CKyNANetworkRequest::KnownHeaders header) const
{
    return m_knownHeaders.value(int(header));
}

void CKyNANetworkRequestImpl::setRawHeader(const QByteArray& name, const QByteArray& value)
{
    if (KyHeaderCheck::Refuse("CKyNANetworkRequest::setRawHeader", name, value))
        return;
    m_rawHeaders[name] = value;
    SetRawHeaderImpl(name, value);
}

QVariant CKyNANetworkRequestImpl::rawHeader(const QByteArray& name) const
{
    const auto found = m_rawHeaders.constFind(name);
    if (found == m_rawHeaders.constEnd())
        return QVariant();
    return QVariant(found.value());
}

QList<QByteArray> CKyNANetworkRequestImpl::rawHeaderList() const
{
    return m_rawHeaders.keys();
}

void CKyNANetworkRequestImpl::setRequestTimeout(int ms)
{
    m_requestTimeout = ms;
}

int CKyNANetworkRequestImpl::requestTimeout() const
{
    return m_requestTimeout;
}

void CKyNANetworkRequestImpl::setInactivityTimeout(int ms)
{
    m_inactivityTimeout = ms;
}

void CKyNANetworkRequestImpl::setCaCertificates(const QList<QSslCertificate>& certificates)
{
    m_caCertificates = certificates;
    SetSslConfigurationImpl();
}

void CKyNANetworkRequestImpl::setClientCertificate(const QSslCertificate& certificate, const QSslKey& key)
{
    m_client.reset(new QPair<QSslCertificate, QSslKey>(certificate, key));
    SetSslConfigurationImpl();
}

QSslCertificate CKyNANetworkRequestImpl::clientCertificate() const
{
    return m_client ? m_client->first : QSslCertificate();
}

QSslKey CKyNANetworkRequestImpl::clientKey() const
{
    return m_client ? m_client->second : QSslKey();
}

void CKyNANetworkRequestImpl::setFollowRedirects(bool follow)
{
    m_followRedirects = follow;
    SetRedirectPolicyImpl();
}

void CKyNANetworkRequestImpl::setMaximumRedirects(int count)
{
    m_maximumRedirects = count;
    SetRedirectPolicyImpl();
}

void CKyNANetworkRequestImpl::setAllowInsecureRedirects(bool allow)
{
    m_allowInsecureRedirects = allow;
    SetRedirectPolicyImpl();
}

void CKyNANetworkRequestImpl::setStreaming(bool streaming)
{
    m_streaming = streaming;
}

void CKyNANetworkRequestImpl::setCredentials(const QString& user, const QString& password)
{
    m_user = user;
    m_password = password;
    SetCredentialsImpl();
}

void CKyNANetworkRequestImpl::setRetryPolicy(int tries, int initialDelayMs)
{
    m_retryTries = tries;
    m_retryInitialDelay = initialDelayMs;
}

QByteArray CKyNANetworkRequestImpl::GetKnowHeaderName(CKyNANetworkRequest::KnownHeaders header)
{
    switch (int(header)) {
    case CKyNANetworkRequest::ContentTypeHeader:
        return QByteArrayLiteral("Content-Type");
    case CKyNANetworkRequest::ContentLengthHeader:
        return QByteArrayLiteral("Content-Length");
    case CKyNANetworkRequest::LocationHeader:
        return QByteArrayLiteral("Location");
    case CKyNANetworkRequest::LastModifiedHeader:
        return QByteArrayLiteral("Last-Modified");
    case CKyNANetworkRequest::CookieHeader:
        return QByteArrayLiteral("Cookie");
    case CKyNANetworkRequest::SetCookieHeader:
        return QByteArrayLiteral("Set-Cookie");
    case CKyNANetworkRequest::ContentDispositionHeader:
        return QByteArrayLiteral("Content-Disposition");
    case CKyNANetworkRequest::UserAgentHeader:
        return QByteArrayLiteral("User-Agent");
    case CKyNANetworkRequest::ServerHeader:
        return QByteArrayLiteral("Server");
    }
    return QByteArray();
}
