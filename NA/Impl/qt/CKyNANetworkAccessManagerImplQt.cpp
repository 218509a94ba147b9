#include "NA/Impl/CKyNANetworkAccessManagerImpl.h"

#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "NA/Impl/CKyNANetworkReplyImpl.h"
#include "NA/Impl/qt/CKyNANetworkReplyTimeout.h"

#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

namespace
{

// The one start path of every transfer; the six steps differ only in the
// toolkit call they hand in.
template <typename Send>
CKyNANetworkReply* StartTransfer(const CKyUIObject* owner, const CKyNANetworkRequest& request, Send send)
{
    auto* manager = qobject_cast<QNetworkAccessManager*>(owner->getHandle());
    QNetworkRequest* toolkitRequest = request.getHandle();
    if (!manager || !toolkitRequest)
        return nullptr;
    QNetworkReply* reply = send(*manager, *toolkitRequest);
    if (!reply)
        return nullptr;
    const int timeout = request.requestTimeout() > 0 ? request.requestTimeout()
                                                     : CKyNANetworkAccessManagerImpl::DefaultTimeoutMs;
    auto* guard = new CKyNANetworkReplyTimeout(reply, timeout);
    if (request.inactivityTimeout() > 0)
        guard->watchInactivity(request.inactivityTimeout());
    // A downgrade the client allowed is confirmed each time the toolkit asks.
    if (toolkitRequest->attribute(QNetworkRequest::RedirectPolicyAttribute).toInt() ==
        QNetworkRequest::UserVerifiedRedirectPolicy)
        QObject::connect(reply, &QNetworkReply::redirected, reply, &QNetworkReply::redirectAllowed);
    // Made before the public reply connects its own handlers, so the timer is
    // stopped before anyone hears of the finish.
    QObject::connect(
        reply, &QNetworkReply::finished, reply, [guard] { guard->stop(); }, Qt::DirectConnection);
    auto* result = new CKyNANetworkReply(reply);
    result->setRequest(request);
    if (request.streaming())
        static_cast<CKyNANetworkReplyImpl*>(result->impl())->StartStreaming();
    return result;
}

} // namespace

void CKyNANetworkAccessManagerImpl::CreateNetworkAccessManagerImpl()
{
    auto* manager = new QNetworkAccessManager(nullptr);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 follows redirects unless told otherwise; a reply reports the
    // redirect response itself, as on Qt 5. A request's own policy still wins.
    manager->setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
#endif
    owner()->setHandle(manager);
}

void CKyNANetworkAccessManagerImpl::DestroyNetworkAccessManagerImpl()
{
    QObject* manager = owner()->getHandle();
    if (!manager)
        return;
    // At once, not later: replies not yet deleted go with it.
    delete manager;
    owner()->setHandle(nullptr);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::GetImpl(const CKyNANetworkRequest& request)
{
    return StartTransfer(owner(), request, [](QNetworkAccessManager& manager, const QNetworkRequest& r) {
        return manager.get(r);
    });
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PostImpl(const CKyNANetworkRequest& request,
                                                           QIODevice* data)
{
    return StartTransfer(owner(), request, [data](QNetworkAccessManager& manager, const QNetworkRequest& r) {
        return manager.post(r, data);
    });
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PostImpl(const CKyNANetworkRequest& request,
                                                           const QByteArray& data)
{
    return StartTransfer(owner(), request, [&data](QNetworkAccessManager& manager, const QNetworkRequest& r) {
        return manager.post(r, data);
    });
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PutImpl(const CKyNANetworkRequest& request, QIODevice* data)
{
    return StartTransfer(owner(), request, [data](QNetworkAccessManager& manager, const QNetworkRequest& r) {
        return manager.put(r, data);
    });
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PutImpl(const CKyNANetworkRequest& request,
                                                          const QByteArray& data)
{
    return StartTransfer(owner(), request, [&data](QNetworkAccessManager& manager, const QNetworkRequest& r) {
        return manager.put(r, data);
    });
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::DeleteResourceImpl(const CKyNANetworkRequest& request)
{
    return StartTransfer(owner(), request, [](QNetworkAccessManager& manager, const QNetworkRequest& r) {
        return manager.deleteResource(r);
    });
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::HeadImpl(const CKyNANetworkRequest& request)
{
    return StartTransfer(owner(), request, [](QNetworkAccessManager& manager, const QNetworkRequest& r) {
        return manager.head(r);
    });
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::SendCustomRequestImpl(const CKyNANetworkRequest& request,
                                                                        const QByteArray& verb,
                                                                        const QByteArray& body)
{
    return StartTransfer(owner(), request,
                         [&verb, &body](QNetworkAccessManager& manager, const QNetworkRequest& r) {
                             return manager.sendCustomRequest(r, verb, body);
                         });
}
