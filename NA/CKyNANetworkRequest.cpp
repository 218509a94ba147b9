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
