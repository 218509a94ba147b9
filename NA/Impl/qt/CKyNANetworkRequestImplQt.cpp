#include "NA/Impl/CKyNANetworkRequestImpl.h"

#include <QtNetwork/QNetworkRequest>

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
    m_owner->setHandle(new QNetworkRequest(url));
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

void CKyNANetworkRequestImpl::SetHeaderImpl(CKyNANetworkRequest::KnownHeaders header, const QVariant& value)
{
    if (QNetworkRequest* request = m_owner->getHandle())
        request->setHeader(QNetworkRequest::KnownHeaders(header), value);
}

void CKyNANetworkRequestImpl::SetRawHeaderImpl(const QByteArray& name, const QByteArray& value)
{
    if (QNetworkRequest* request = m_owner->getHandle())
        request->setRawHeader(name, value);
}
