#include "NA/Impl/CKyNANetworkAccessManagerImpl.h"

#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "NA/Impl/CKyNANetworkReplyTimeout.h"

#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

CKyNANetworkAccessManagerImpl::CKyNANetworkAccessManagerImpl(CKyNANetworkAccessManager* owner)
    : CKyUIObjectImpl(owner)
{
    CreateNetworkAccessManagerImpl();
}

CKyNANetworkAccessManagerImpl::~CKyNANetworkAccessManagerImpl()
{
    DestroyNetworkAccessManagerImpl();
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::get(const CKyNANetworkRequest& request)
{
    return GetImpl(request);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::post(const CKyNANetworkRequest& request, QIODevice* data)
{
    return PostImpl(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::post(const CKyNANetworkRequest& request,
                                                       const QByteArray& data)
{
    return PostImpl(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::put(const CKyNANetworkRequest& request, QIODevice* data)
{
    return PutImpl(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::put(const CKyNANetworkRequest& request,
                                                      const QByteArray& data)
{
    return PutImpl(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::deleteResource(const CKyNANetworkRequest& request)
{
    return DeleteResourceImpl(request);
}

void CKyNANetworkAccessManagerImpl::CreateNetworkAccessManagerImpl()
{
    owner()->setHandle(new QNetworkAccessManager(nullptr));
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

bool CKyNANetworkAccessManagerImpl::Toolkit(const CKyNANetworkRequest& request,
                                            QNetworkAccessManager*& manager,
                                            QNetworkRequest*& toolkitRequest) const
{
    manager = qobject_cast<QNetworkAccessManager*>(owner()->getHandle());
    toolkitRequest = request.getHandle();
    return manager && toolkitRequest;
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::StartReply(QNetworkReply* reply,
                                                             const CKyNANetworkRequest& request)
{
    if (!reply)
        return nullptr;
    const int timeout = request.requestTimeout() > 0 ? request.requestTimeout() : DefaultTimeoutMs;
    auto* guard = new CKyNANetworkReplyTimeout(reply, timeout);
    // Made before the public reply connects its own handlers, so the timer is
    // stopped before anyone hears of the finish.
    QObject::connect(
        reply, &QNetworkReply::finished, reply, [guard] { guard->stop(); }, Qt::DirectConnection);
    auto* result = new CKyNANetworkReply(reply);
    result->setRequest(request);
    return result;
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::GetImpl(const CKyNANetworkRequest& request)
{
    QNetworkAccessManager* manager = nullptr;
    QNetworkRequest* toolkitRequest = nullptr;
    if (!Toolkit(request, manager, toolkitRequest))
        return nullptr;
    return StartReply(manager->get(*toolkitRequest), request);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PostImpl(const CKyNANetworkRequest& request,
                                                           QIODevice* data)
{
    QNetworkAccessManager* manager = nullptr;
    QNetworkRequest* toolkitRequest = nullptr;
    if (!Toolkit(request, manager, toolkitRequest))
        return nullptr;
    return StartReply(manager->post(*toolkitRequest, data), request);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PostImpl(const CKyNANetworkRequest& request,
                                                           const QByteArray& data)
{
    QNetworkAccessManager* manager = nullptr;
    QNetworkRequest* toolkitRequest = nullptr;
    if (!Toolkit(request, manager, toolkitRequest))
        return nullptr;
    return StartReply(manager->post(*toolkitRequest, data), request);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PutImpl(const CKyNANetworkRequest& request, QIODevice* data)
{
    QNetworkAccessManager* manager = nullptr;
    QNetworkRequest* toolkitRequest = nullptr;
    if (!Toolkit(request, manager, toolkitRequest))
        return nullptr;
    return StartReply(manager->put(*toolkitRequest, data), request);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PutImpl(const CKyNANetworkRequest& request,
                                                          const QByteArray& data)
{
    QNetworkAccessManager* manager = nullptr;
    QNetworkRequest* toolkitRequest = nullptr;
    if (!Toolkit(request, manager, toolkitRequest))
        return nullptr;
    return StartReply(manager->put(*toolkitRequest, data), request);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::DeleteResourceImpl(const CKyNANetworkRequest& request)
{
    QNetworkAccessManager* manager = nullptr;
    QNetworkRequest* toolkitRequest = nullptr;
    if (!Toolkit(request, manager, toolkitRequest))
        return nullptr;
    return StartReply(manager->deleteResource(*toolkitRequest), request);
}
