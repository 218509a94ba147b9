#include "NA/Impl/CKyNANetworkAccessManagerImpl.h"

#include "NA/CKyNANetworkAccessManager.h"

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

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::sendJson(const CKyNANetworkRequest& request,
                                                           const QJsonDocument& json, bool put)
{
    return SendJsonImpl(request, json, put);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::sendForm(const CKyNANetworkRequest& request,
                                                           const CKyNAMultipartForm& form, bool put)
{
    return SendFormImpl(request, form, put);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::deleteResource(const CKyNANetworkRequest& request)
{
    return DeleteResourceImpl(request);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::head(const CKyNANetworkRequest& request)
{
    return HeadImpl(request);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::sendCustomRequest(const CKyNANetworkRequest& request,
                                                                    const QByteArray& verb,
                                                                    const QByteArray& body)
{
    return SendCustomRequestImpl(request, verb, body);
}
