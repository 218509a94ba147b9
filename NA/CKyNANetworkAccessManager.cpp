#include "NA/CKyNANetworkAccessManager.h"

#include "NA/Impl/CKyNANetworkAccessManagerImpl.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

CKyNANetworkAccessManager::CKyNANetworkAccessManager()
{
    setImpl(new CKyNANetworkAccessManagerImpl(this));
}

CKyNANetworkAccessManager::~CKyNANetworkAccessManager() = default;

CKyNANetworkReply* CKyNANetworkAccessManager::get(const CKyNANetworkRequest& request)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->get(request);
}

CKyNANetworkReply* CKyNANetworkAccessManager::post(const CKyNANetworkRequest& request, QIODevice* data)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->post(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManager::post(const CKyNANetworkRequest& request, const QByteArray& data)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->post(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManager::put(const CKyNANetworkRequest& request, QIODevice* data)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->put(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManager::put(const CKyNANetworkRequest& request, const QByteArray& data)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->put(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManager::post(const CKyNANetworkRequest& request,
                                                   const QJsonDocument& json)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->sendJson(request, json, false);
}

CKyNANetworkReply* CKyNANetworkAccessManager::post(const CKyNANetworkRequest& request,
                                                   const QJsonObject& json)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->sendJson(request, QJsonDocument(json), false);
}

CKyNANetworkReply* CKyNANetworkAccessManager::put(const CKyNANetworkRequest& request,
                                                  const QJsonDocument& json)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->sendJson(request, json, true);
}

CKyNANetworkReply* CKyNANetworkAccessManager::put(const CKyNANetworkRequest& request, const QJsonObject& json)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->sendJson(request, QJsonDocument(json), true);
}

CKyNANetworkReply* CKyNANetworkAccessManager::post(const CKyNANetworkRequest& request,
                                                   const CKyNAMultipartForm& form)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->sendForm(request, form, false);
}

CKyNANetworkReply* CKyNANetworkAccessManager::put(const CKyNANetworkRequest& request,
                                                  const CKyNAMultipartForm& form)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->sendForm(request, form, true);
}

CKyNANetworkReply* CKyNANetworkAccessManager::deleteResource(const CKyNANetworkRequest& request)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->deleteResource(request);
}

CKyNANetworkReply* CKyNANetworkAccessManager::head(const CKyNANetworkRequest& request)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->head(request);
}

CKyNANetworkReply* CKyNANetworkAccessManager::sendCustomRequest(const CKyNANetworkRequest& request,
                                                                const QByteArray& verb,
                                                                const QByteArray& body)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->sendCustomRequest(request, verb, body);
}

void CKyNANetworkAccessManager::setProxy(const CKyNAProxy& proxy)
{
    implAs<CKyNANetworkAccessManagerImpl>()->setProxy(proxy);
}

CKyNAProxy CKyNANetworkAccessManager::proxy() const
{
    return implAs<CKyNANetworkAccessManagerImpl>()->proxy();
}

CKyUISignal<void(CKyNAAuthentication&)>& CKyNANetworkAccessManager::proxyAuthenticationRequired()
{
    return implAs<CKyNANetworkAccessManagerImpl>()->proxyAuthenticationRequired;
}

CKyUISignal<void(CKyNAAuthentication&)>& CKyNANetworkAccessManager::authenticationRequired()
{
    return implAs<CKyNANetworkAccessManagerImpl>()->authenticationRequired;
}
