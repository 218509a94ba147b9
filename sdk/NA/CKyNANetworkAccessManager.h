#pragma once

#include "commonui_export.h"

#include "UI/CKyUIObject.h"

class QByteArray;
class QIODevice;
class CKyNANetworkReply;
class CKyNANetworkRequest;

// Starts HTTP transfers. Each call returns a new reply that the caller owns
// and deletes before the manager; every transfer is aborted when it runs
// longer than the request's time-out (30000 ms unless the request sets one).
class COMMONUI_EXPORT CKyNANetworkAccessManager : public CKyUIObject
{
public:
    CKyNANetworkAccessManager();
    ~CKyNANetworkAccessManager() override;

    CKyNANetworkReply* get(const CKyNANetworkRequest& request);
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, QIODevice* data);
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, const QByteArray& data);
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, QIODevice* data);
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, const QByteArray& data);
    CKyNANetworkReply* deleteResource(const CKyNANetworkRequest& request);
};
