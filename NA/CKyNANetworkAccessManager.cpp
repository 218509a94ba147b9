#include "NA/CKyNANetworkAccessManager.h"

#include "NA/Impl/CKyNANetworkAccessManagerImpl.h"

CKyNANetworkAccessManager::CKyNANetworkAccessManager()
{
    setImpl(new CKyNANetworkAccessManagerImpl(this));
}

CKyNANetworkAccessManager::~CKyNANetworkAccessManager() = default;

CKyNANetworkAccessManagerImpl* CKyNANetworkAccessManager::d() const
{
    return static_cast<CKyNANetworkAccessManagerImpl*>(impl());
}

CKyNANetworkReply* CKyNANetworkAccessManager::get(const CKyNANetworkRequest& request)
{
    return d()->get(request);
}

CKyNANetworkReply* CKyNANetworkAccessManager::post(const CKyNANetworkRequest& request, QIODevice* data)
{
    return d()->post(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManager::post(const CKyNANetworkRequest& request, const QByteArray& data)
{
    return d()->post(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManager::put(const CKyNANetworkRequest& request, QIODevice* data)
{
    return d()->put(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManager::put(const CKyNANetworkRequest& request, const QByteArray& data)
{
    return d()->put(request, data);
}

CKyNANetworkReply* CKyNANetworkAccessManager::deleteResource(const CKyNANetworkRequest& request)
{
    return d()->deleteResource(request);
}
