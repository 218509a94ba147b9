#include "NA/CKyNANetworkRequest.h"

#include "NA/Impl/CKyNANetworkRequestImpl.h"

CKyNANetworkRequest::CKyNANetworkRequest(const QUrl& url)
    : m_impl(nullptr)
    , m_handle(nullptr)
{
    m_impl = new CKyNANetworkRequestImpl(this, url);
}

CKyNANetworkRequest::CKyNANetworkRequest(const CKyNANetworkRequest& other)
    : m_impl(nullptr)
    , m_handle(nullptr)
{
    m_impl = new CKyNANetworkRequestImpl(this, other.url());
}

CKyNANetworkRequest& CKyNANetworkRequest::operator=(const CKyNANetworkRequest& other)
{
    // The previous implementation and its toolkit request are deliberately
    // left alive: assignment only ever installs a fresh one.
    m_impl = new CKyNANetworkRequestImpl(this, other.url());
    return *this;
}

CKyNANetworkRequest::~CKyNANetworkRequest()
{
    if (m_impl) {
        delete m_impl;
        m_impl = nullptr;
    }
}

QUrl CKyNANetworkRequest::url() const
{
    return m_impl->url();
}

void CKyNANetworkRequest::setUrl(const QUrl& url)
{
    m_impl->setUrl(url);
}

void CKyNANetworkRequest::setHeader(KnownHeaders header, const QVariant& value)
{
    m_impl->setHeader(header, value);
}

QVariant CKyNANetworkRequest::header(KnownHeaders header) const
{
    return m_impl->header(header);
}

void CKyNANetworkRequest::setRawHeader(const QByteArray& name, const QByteArray& value)
{
    m_impl->setRawHeader(name, value);
}

QVariant CKyNANetworkRequest::rawHeader(const QByteArray& name) const
{
    return m_impl->rawHeader(name);
}

QList<QByteArray> CKyNANetworkRequest::rawHeaderList() const
{
    return m_impl->rawHeaderList();
}

void CKyNANetworkRequest::setRequestTimeout(int ms)
{
    m_impl->setRequestTimeout(ms);
}

int CKyNANetworkRequest::requestTimeout() const
{
    return m_impl->requestTimeout();
}

QNetworkRequest* CKyNANetworkRequest::getHandle() const
{
    return m_handle;
}

void CKyNANetworkRequest::setHandle(QNetworkRequest* handle)
{
    m_handle = handle;
}

void CKyNANetworkRequest::setInactivityTimeout(int ms)
{
    m_impl->setInactivityTimeout(ms);
}

int CKyNANetworkRequest::inactivityTimeout() const
{
    return m_impl->inactivityTimeout();
}

void CKyNANetworkRequest::setCaCertificates(const QList<QSslCertificate>& certificates)
{
    m_impl->setCaCertificates(certificates);
}

QList<QSslCertificate> CKyNANetworkRequest::caCertificates() const
{
    return m_impl->caCertificates();
}

void CKyNANetworkRequest::setClientCertificate(const QSslCertificate& certificate, const QSslKey& key)
{
    m_impl->setClientCertificate(certificate, key);
}

QSslCertificate CKyNANetworkRequest::clientCertificate() const
{
    return m_impl->clientCertificate();
}

QSslKey CKyNANetworkRequest::clientKey() const
{
    return m_impl->clientKey();
}

void CKyNANetworkRequest::setFollowRedirects(bool follow)
{
    m_impl->setFollowRedirects(follow);
}

bool CKyNANetworkRequest::followRedirects() const
{
    return m_impl->followRedirects();
}

void CKyNANetworkRequest::setMaximumRedirects(int count)
{
    m_impl->setMaximumRedirects(count);
}

int CKyNANetworkRequest::maximumRedirects() const
{
    return m_impl->maximumRedirects();
}

void CKyNANetworkRequest::setAllowInsecureRedirects(bool allow)
{
    m_impl->setAllowInsecureRedirects(allow);
}

bool CKyNANetworkRequest::allowInsecureRedirects() const
{
    return m_impl->allowInsecureRedirects();
}

void CKyNANetworkRequest::setStreaming(bool streaming)
{
    m_impl->setStreaming(streaming);
}

bool CKyNANetworkRequest::streaming() const
{
    return m_impl->streaming();
}

void CKyNANetworkRequest::setCredentials(const QString& user, const QString& password)
{
    m_impl->setCredentials(user, password);
}

QString CKyNANetworkRequest::user() const
{
    return m_impl->user();
}

QString CKyNANetworkRequest::password() const
{
    return m_impl->password();
}

void CKyNANetworkRequest::setBearerToken(const QByteArray& token)
{
    // Through the header check like any other header.
    setRawHeader(QByteArrayLiteral("Authorization"), QByteArrayLiteral("Bearer ") + token);
}

void CKyNANetworkRequest::setRetryPolicy(int tries, int initialDelayMs)
{
    m_impl->setRetryPolicy(tries, initialDelayMs);
}

int CKyNANetworkRequest::retryTries() const
{
    return m_impl->retryTries();
}

int CKyNANetworkRequest::retryInitialDelay() const
{
    return m_impl->retryInitialDelay();
}
