#include "NA/Impl/CKyNANetworkAccessManagerImpl.h"

#include "NA/CKyNAMultipartForm.h"
#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "NA/Impl/CKyNAMultipartFormImpl.h"
#include "NA/Impl/CKyNANetworkReplyImpl.h"
#include "NA/Impl/CKyNANetworkRequestImpl.h"
#include "NA/Impl/qt/CKyNANetworkReplyTimeout.h"

#include <QtCore/QJsonDocument>
#include <QtNetwork/QAuthenticator>
#include <QtNetwork/QHttpMultiPart>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkProxyFactory>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <memory>

namespace
{

// The system's proxy for each URL, with the credentials given ahead for
// proxies the settings name without any.
class SystemProxyFactory : public QNetworkProxyFactory
{
public:
    SystemProxyFactory(const QString& user, const QString& password)
        : m_user(user)
        , m_password(password)
    {}

    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override
    {
        QList<QNetworkProxy> proxies = QNetworkProxyFactory::systemProxyForQuery(query);
        for (QNetworkProxy& proxy : proxies) {
            if (proxy.type() != QNetworkProxy::NoProxy && proxy.user().isEmpty() && !m_user.isEmpty()) {
                proxy.setUser(m_user);
                proxy.setPassword(m_password);
            }
        }
        return proxies;
    }

private:
    const QString m_user;
    const QString m_password;
};

// Counts, per toolkit reply, the credentials a server refused; kept on the
// reply only once a server asked.
const char* const RefusalsProperty = "commonui.refusals";

// The methods a retry may repeat: they mean the same when sent twice.
bool IsIdempotent(const QNetworkReply& reply)
{
    switch (reply.operation()) {
    case QNetworkAccessManager::GetOperation:
    case QNetworkAccessManager::HeadOperation:
    case QNetworkAccessManager::PutOperation:
    case QNetworkAccessManager::DeleteOperation:
        return true;
    case QNetworkAccessManager::CustomOperation: {
        const QByteArray verb = reply.request().attribute(QNetworkRequest::CustomVerbAttribute).toByteArray();
        return verb == "GET" || verb == "HEAD" || verb == "PUT" || verb == "DELETE" || verb == "OPTIONS";
    }
    default:
        return false;
    }
}

// The one start path of every transfer; the six steps differ only in the
// toolkit call they hand in, and in the upload a followed 307 or 308 sends
// again. An upload that can be read only once (`oneShot`) is never sent again.
template <typename Send>
CKyNANetworkReply* StartTransfer(const CKyUIObject* owner, const CKyNANetworkRequest& request, Send send,
                                 const QByteArray* body = nullptr, QIODevice* device = nullptr,
                                 bool oneShot = false)
{
    auto* manager = qobject_cast<QNetworkAccessManager*>(owner->getHandle());
    QNetworkRequest* toolkitRequest = request.getHandle();
    if (!manager || !toolkitRequest)
        return nullptr;
    // Read before the toolkit may read from it.
    const long long devicePos = device ? device->pos() : 0;
    QNetworkReply* reply = send(*manager, *toolkitRequest);
    if (!reply)
        return nullptr;
    const int timeout = request.requestTimeout() > 0 ? request.requestTimeout()
                                                     : CKyNANetworkAccessManagerImpl::DefaultTimeoutMs;
    auto* guard = new CKyNANetworkReplyTimeout(reply, timeout);
    if (request.inactivityTimeout() > 0)
        guard->watchInactivity(request.inactivityTimeout());
    // Made before the public reply connects its own handlers, so the timer is
    // stopped before anyone hears of the finish.
    QObject::connect(
        reply, &QNetworkReply::finished, reply, [guard] { guard->stop(); }, Qt::DirectConnection);
    auto* result = new CKyNANetworkReply(reply);
    result->setRequest(request);
    auto* impl = static_cast<CKyNANetworkReplyImpl*>(result->impl());
    if (request.streaming())
        impl->StartStreaming();
    // The toolkit only reports redirects: it would carry the credentials
    // along to any other server.
    const bool retries = request.retryTries() > 1 && IsIdempotent(*reply);
    if (request.followRedirects() || retries) {
        std::unique_ptr<CKyNANetworkReplyImpl::Redirects> redirects(new CKyNANetworkReplyImpl::Redirects);
        redirects->follow = request.followRedirects();
        redirects->triesLeft = retries ? request.retryTries() - 1 : 0;
        redirects->backOffMs = qMax(1, request.retryInitialDelay());
        redirects->left = request.maximumRedirects();
        redirects->allowInsecure = request.allowInsecureRedirects();
        if (body)
            redirects->body = *body;
        redirects->fromDevice = device != nullptr || oneShot;
        redirects->device = device;
        redirects->devicePos = devicePos;
        redirects->guard = guard;
        impl->FollowRedirects(std::move(redirects));
    }
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
    // Connected once per manager; a transfer pays only when a server or a
    // proxy asks.
    QObject::connect(
        manager, &QNetworkAccessManager::authenticationRequired, manager,
        [this](QNetworkReply* reply, QAuthenticator* authenticator) {
            const int refusals = reply->property(RefusalsProperty).toInt();
            reply->setProperty(RefusalsProperty, refusals + 1);
            const QStringList ahead =
                reply->request()
                    .attribute(QNetworkRequest::Attribute(CKyNANetworkRequestImpl::CredentialsAttribute))
                    .toStringList();
            QString user, password;
            if (AnswerChallenge(Challenger::Server, reply->url(), authenticator->realm(), refusals,
                                ahead.value(0), ahead.value(1), user, password)) {
                authenticator->setUser(user);
                authenticator->setPassword(password);
            }
        },
        Qt::DirectConnection);
    QObject::connect(
        manager, &QNetworkAccessManager::proxyAuthenticationRequired, manager,
        [this](const QNetworkProxy& proxy, QAuthenticator* authenticator) {
            // The toolkit hands back the credentials the proxy refused, if any.
            const bool refused = !authenticator->user().isEmpty();
            const bool refusedAgain = refused && authenticator->user() == m_proxyRetryUser &&
                                      authenticator->password() == m_proxyRetryPassword;
            m_proxyRetryUser.clear();
            m_proxyRetryPassword.clear();
            const QUrl url(
                QStringLiteral("%1://%2:%3")
                    .arg(proxy.type() == QNetworkProxy::Socks5Proxy ? "socks5" : "http", proxy.hostName())
                    .arg(proxy.port()));
            QString user, password;
            if (!AnswerChallenge(Challenger::Proxy, url, authenticator->realm(),
                                 refusedAgain ? 2 : int(refused), proxy.user(), proxy.password(), user,
                                 password))
                return;
            if (refused) {
                m_proxyRetryUser = user;
                m_proxyRetryPassword = password;
            }
            authenticator->setUser(user);
            authenticator->setPassword(password);
        },
        Qt::DirectConnection);
}

void CKyNANetworkAccessManagerImpl::SetProxyImpl()
{
    auto* manager = qobject_cast<QNetworkAccessManager*>(owner()->getHandle());
    if (!manager)
        return;
    const CKyNAProxy& proxy = m_proxy;
    switch (proxy.type()) {
    case CKyNAProxy::System:
        // The manager takes the factory over.
        manager->setProxyFactory(new SystemProxyFactory(proxy.user(), proxy.password()));
        return;
    case CKyNAProxy::NoProxy:
        manager->setProxy(QNetworkProxy(QNetworkProxy::NoProxy));
        return;
    case CKyNAProxy::Http:
    case CKyNAProxy::Socks5:
        manager->setProxy(QNetworkProxy(proxy.type() == CKyNAProxy::Http ? QNetworkProxy::HttpProxy
                                                                         : QNetworkProxy::Socks5Proxy,
                                        proxy.host(), quint16(proxy.port()), proxy.user(), proxy.password()));
        return;
    default:
        manager->setProxy(QNetworkProxy(QNetworkProxy::DefaultProxy));
        return;
    }
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
    return StartTransfer(
        owner(), request,
        [data](QNetworkAccessManager& manager, const QNetworkRequest& r) { return manager.post(r, data); },
        nullptr, data);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PostImpl(const CKyNANetworkRequest& request,
                                                           const QByteArray& data)
{
    return StartTransfer(
        owner(), request,
        [&data](QNetworkAccessManager& manager, const QNetworkRequest& r) { return manager.post(r, data); },
        &data);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PutImpl(const CKyNANetworkRequest& request, QIODevice* data)
{
    return StartTransfer(
        owner(), request,
        [data](QNetworkAccessManager& manager, const QNetworkRequest& r) { return manager.put(r, data); },
        nullptr, data);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::PutImpl(const CKyNANetworkRequest& request,
                                                          const QByteArray& data)
{
    return StartTransfer(
        owner(), request,
        [&data](QNetworkAccessManager& manager, const QNetworkRequest& r) { return manager.put(r, data); },
        &data);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::SendJsonImpl(const CKyNANetworkRequest& request,
                                                               const QJsonDocument& json, bool put)
{
    const QByteArray body = json.toJson(QJsonDocument::Compact);
    return StartTransfer(
        owner(), request,
        [&body, put](QNetworkAccessManager& manager, const QNetworkRequest& r) {
            // On a copy: the caller's request stays as the caller made it.
            QNetworkRequest typed = r;
            if (!typed.hasRawHeader("Content-Type"))
                typed.setRawHeader("Content-Type", "application/json");
            return put ? manager.put(typed, body) : manager.post(typed, body);
        },
        &body);
}

CKyNANetworkReply* CKyNANetworkAccessManagerImpl::SendFormImpl(const CKyNANetworkRequest& request,
                                                               const CKyNAMultipartForm& form, bool put)
{
    bool complete = true;
    QHttpMultiPart* multiPart = form.m_impl->CreateMultiPartImpl(complete);
    CKyNANetworkReply* result = StartTransfer(
        owner(), request,
        [multiPart, put](QNetworkAccessManager& manager, const QNetworkRequest& r) {
            QNetworkReply* reply = put ? manager.put(r, multiPart) : manager.post(r, multiPart);
            // Lives as long as the transfer reads from it, and goes with it.
            multiPart->setParent(reply);
            return reply;
        },
        nullptr, nullptr, true);
    if (!multiPart->parent())
        delete multiPart;
    // A form is never sent short of a part. Queued, so that the caller has
    // connected to the reply before it fails.
    if (result && !complete)
        QMetaObject::invokeMethod(result->getHandle(), "abort", Qt::QueuedConnection);
    return result;
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
    // The toolkit takes a custom HEAD for a request whose answer has a body,
    // and would wait for one.
    return StartTransfer(
        owner(), request,
        [&verb, &body](QNetworkAccessManager& manager, const QNetworkRequest& r) {
            return verb == "HEAD" ? manager.head(r) : manager.sendCustomRequest(r, verb, body);
        },
        &body);
}
