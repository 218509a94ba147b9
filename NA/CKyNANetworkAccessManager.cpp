#include "NA/CKyNANetworkAccessManager.h"

#include "NA/Impl/CKyNANetworkAccessManagerImpl.h"

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

CKyNANetworkReply* CKyNANetworkAccessManager::deleteResource(const CKyNANetworkRequest& request)
{
    return implAs<CKyNANetworkAccessManagerImpl>()->deleteResource(request);
}
