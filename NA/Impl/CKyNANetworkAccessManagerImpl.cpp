#include "NA/Impl/CKyNANetworkAccessManagerImpl.h"

#include "NA/CKyNANetworkAccessManager.h"

CKyNANetworkAccessManagerImpl::CKyNANetworkAccessManagerImpl(CKyNANetworkAccessManager* owner)
    : CKyUIObjectImpl(owner)
    , proxyAuthenticationRequired(owner)
    , authenticationRequired(owner)
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

void CKyNANetworkAccessManagerImpl::setProxy(const CKyNAProxy& proxy)
{
    if (!proxy.isValid())
        return;
    m_proxy = proxy;
    SetProxyImpl();
}

bool CKyNANetworkAccessManagerImpl::AnswerChallenge(Challenger challenger, const QUrl& url,
                                                    const QString& realm, int refusals,
                                                    const QString& aheadUser, const QString& aheadPassword,
                                                    QString& user, QString& password)
{
    if (refusals >= 2)
        return false;
    if (refusals == 0 && !aheadUser.isEmpty()) {
        user = aheadUser;
        password = aheadPassword;
        return true;
    }
    CKyNAAuthentication question(url, realm, refusals > 0);
    const Lifetime lifetime = GetLifetime();
    (challenger == Challenger::Proxy ? proxyAuthenticationRequired : authenticationRequired).Emit(question);
    if (!lifetime.Alive() || !question.isAnswered())
        return false;
    user = question.user();
    password = question.password();
    return true;
}
