#pragma once

#include "UI/Impl/CKyUIObjectImpl.h"

class QByteArray;
class QIODevice;
class QJsonDocument;
class CKyNAMultipartForm;
class CKyNANetworkAccessManager;
class CKyNANetworkReply;
class CKyNANetworkRequest;

// Drives one toolkit access manager; keeps no list of its replies.
class CKyNANetworkAccessManagerImpl : public CKyUIObjectImpl
{
public:
    // Applies when the request sets no positive time-out of its own.
    static constexpr int DefaultTimeoutMs = 30000;

    explicit CKyNANetworkAccessManagerImpl(CKyNANetworkAccessManager* owner);
    ~CKyNANetworkAccessManagerImpl() override;

    CKyNANetworkReply* get(const CKyNANetworkRequest& request);
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, QIODevice* data);
    CKyNANetworkReply* post(const CKyNANetworkRequest& request, const QByteArray& data);
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, QIODevice* data);
    CKyNANetworkReply* put(const CKyNANetworkRequest& request, const QByteArray& data);
    // A PUT when `put`, else a POST.
    CKyNANetworkReply* sendJson(const CKyNANetworkRequest& request, const QJsonDocument& json, bool put);
    CKyNANetworkReply* sendForm(const CKyNANetworkRequest& request, const CKyNAMultipartForm& form, bool put);
    CKyNANetworkReply* deleteResource(const CKyNANetworkRequest& request);
    CKyNANetworkReply* head(const CKyNANetworkRequest& request);
    CKyNANetworkReply* sendCustomRequest(const CKyNANetworkRequest& request, const QByteArray& verb,
                                         const QByteArray& body);

    // Toolkit steps.
    void CreateNetworkAccessManagerImpl();
    void DestroyNetworkAccessManagerImpl();
    CKyNANetworkReply* GetImpl(const CKyNANetworkRequest& request);
    CKyNANetworkReply* PostImpl(const CKyNANetworkRequest& request, QIODevice* data);
    CKyNANetworkReply* PostImpl(const CKyNANetworkRequest& request, const QByteArray& data);
    CKyNANetworkReply* PutImpl(const CKyNANetworkRequest& request, QIODevice* data);
    CKyNANetworkReply* PutImpl(const CKyNANetworkRequest& request, const QByteArray& data);
    CKyNANetworkReply* SendJsonImpl(const CKyNANetworkRequest& request, const QJsonDocument& json, bool put);
    CKyNANetworkReply* SendFormImpl(const CKyNANetworkRequest& request, const CKyNAMultipartForm& form,
                                    bool put);
    CKyNANetworkReply* DeleteResourceImpl(const CKyNANetworkRequest& request);
    CKyNANetworkReply* HeadImpl(const CKyNANetworkRequest& request);
    CKyNANetworkReply* SendCustomRequestImpl(const CKyNANetworkRequest& request, const QByteArray& verb,
                                             const QByteArray& body);
};
