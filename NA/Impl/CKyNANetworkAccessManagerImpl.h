#pragma once

#include "NA/CKyNAAuthentication.h"
#include "NA/CKyNAProxy.h"
#include "UI/CKyUISignal.h"
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

    void setProxy(const CKyNAProxy& proxy);
    CKyNAProxy proxy() const { return m_proxy; }

    enum class Challenger { Server, Proxy };
    // Answers a request for credentials. `refusals` counts the answers the
    // challenger already refused for this transfer; after two it gets none,
    // so that wrong credentials end the transfer instead of looping. The
    // credentials given ahead go first, then the client's slot is asked.
    // False: send nothing, which ends the transfer with its error.
    bool AnswerChallenge(Challenger challenger, const QUrl& url, const QString& realm, int refusals,
                         const QString& aheadUser, const QString& aheadPassword, QString& user,
                         QString& password);

    // Toolkit steps.
    void CreateNetworkAccessManagerImpl();
    void SetProxyImpl();
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

    CKyUISignal<void(CKyNAAuthentication&)> proxyAuthenticationRequired;
    CKyUISignal<void(CKyNAAuthentication&)> authenticationRequired;

    // What a slot gave after the proxy had refused once: the toolkit tells
    // no transfers apart for a proxy, so a refusal of exactly these ends it.
    QString m_proxyRetryUser;
    QString m_proxyRetryPassword;

private:
    CKyNAProxy m_proxy;
};
