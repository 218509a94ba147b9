#include "NA/Impl/CKyNANetworkReplyImpl.h"

#include "NA/Impl/CKyNANetworkRequestImpl.h"
#include "NA/Impl/qt/CKyNANetworkReplyTimeout.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <climits>
#include <random>

static_assert(int(CKyNANetworkReply::OperationCanceledError) == int(QNetworkReply::OperationCanceledError),
              "");
static_assert(int(CKyNANetworkReply::InsecureRedirectError) == int(QNetworkReply::InsecureRedirectError), "");
static_assert(int(CKyNANetworkReply::UnknownProxyError) == int(QNetworkReply::UnknownProxyError), "");
static_assert(int(CKyNANetworkReply::ContentGoneError) == int(QNetworkReply::ContentGoneError), "");
static_assert(int(CKyNANetworkReply::ProtocolFailure) == int(QNetworkReply::ProtocolFailure), "");
static_assert(int(CKyNANetworkReply::UnknownServerError) == int(QNetworkReply::UnknownServerError), "");

namespace
{

QNetworkReply* toolkitReply(CKyUIObject* owner)
{
    return qobject_cast<QNetworkReply*>(owner->getHandle());
}

// The public attribute codes are Qt 5's. Qt 6 dropped the SPDY and
// follow-redirects attributes and renumbered the ones after them, so those
// codes are translated; a dropped one has no toolkit code (-1).
int ToolkitAttribute(int code)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    switch (code) {
    case CKyNANetworkRequest::SpdyAllowedAttribute:
    case CKyNANetworkRequest::SpdyWasUsedAttribute:
    case CKyNANetworkRequest::FollowRedirectsAttribute:
        return -1;
    case CKyNANetworkRequest::EmitAllUploadProgressSignalsAttribute:
        return QNetworkRequest::EmitAllUploadProgressSignalsAttribute;
    case CKyNANetworkRequest::HTTP2AllowedAttribute:
        return QNetworkRequest::Http2AllowedAttribute;
    case CKyNANetworkRequest::HTTP2WasUsedAttribute:
        return QNetworkRequest::Http2WasUsedAttribute;
    case CKyNANetworkRequest::OriginalContentLengthAttribute:
        return QNetworkRequest::OriginalContentLengthAttribute;
    case CKyNANetworkRequest::RedirectPolicyAttribute:
        return QNetworkRequest::RedirectPolicyAttribute;
    // Qt 5.15's attributes after RedirectPolicyAttribute.
    case CKyNANetworkRequest::RedirectPolicyAttribute + 1:
        return QNetworkRequest::Http2DirectAttribute;
    case CKyNANetworkRequest::RedirectPolicyAttribute + 2:
        return QNetworkRequest::ResourceTypeAttribute;
    case CKyNANetworkRequest::RedirectPolicyAttribute + 3:
        return QNetworkRequest::AutoDeleteReplyOnFinishAttribute;
    default:
        return code;
    }
#else
    return code;
#endif
}

// The answers the toolkit would take for a redirect.
bool IsRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 305 || status == 307 || status == 308;
}

int StatusOf(const QNetworkReply* reply)
{
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool SameOrigin(const QUrl& a, const QUrl& b)
{
    const int port = a.scheme() == QLatin1String("https") ? 443 : 80;
    return a.scheme() == b.scheme() && a.host() == b.host() && a.port(port) == b.port(port);
}

// What may identify the client to a server: never sent to another origin
// than the one the client addressed.
void DropCredentials(QNetworkRequest& request)
{
    for (const QByteArray& name : request.rawHeaderList()) {
        const char* text = name.constData();
        if (qstricmp(text, "Authorization") == 0 || qstricmp(text, "Proxy-Authorization") == 0 ||
            qstricmp(text, "Cookie") == 0)
            request.setRawHeader(name, QByteArray()); // a null value removes the header
    }
    request.setAttribute(QNetworkRequest::Attribute(CKyNANetworkRequestImpl::CredentialsAttribute),
                         QVariant());
}

// Where the answer at hand redirects to, if it is a redirect to follow at
// all: an invalid URL otherwise, and then the answer is the client's.
QUrl RedirectTarget(const QNetworkReply* reply)
{
    if (!IsRedirect(StatusOf(reply)))
        return QUrl();
    const QByteArray location = reply->rawHeader("Location");
    return location.isEmpty() ? QUrl() : QUrl::fromEncoded(location);
}

// Failures of the connection that another try may not meet; a cancelled
// transfer (abort, time-out) is never among them.
bool IsConnectionFailure(int code)
{
    switch (code) {
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::TimeoutError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyConnectionClosedError:
    case QNetworkReply::ProxyTimeoutError:
        return true;
    default:
        return false;
    }
}

bool IsRetryStatus(int status)
{
    return status == 502 || status == 503 || status == 504;
}

// Milliseconds a Retry-After header asks for (seconds or an HTTP date); -1
// without a readable one.
qint64 RetryAfterMs(const QNetworkReply* reply)
{
    const QByteArray value = reply->rawHeader("Retry-After").trimmed();
    if (value.isEmpty())
        return -1;
    bool seconds = false;
    const qint64 count = value.toLongLong(&seconds);
    if (seconds)
        return count < 0 ? -1 : qMin<qint64>(count, INT_MAX / 1000) * 1000;
    QDateTime when = QLocale::c().toDateTime(QString::fromLatin1(value),
                                             QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'"));
    if (!when.isValid())
        return -1;
    when.setTimeSpec(Qt::UTC);
    return qMax<qint64>(0, QDateTime::currentDateTimeUtc().msecsTo(when));
}

// Half to all of `ms`: clients that failed together do not come back together.
int Jittered(int ms)
{
    static std::minstd_rand generator{std::random_device{}()};
    return ms / 2 + int(std::uniform_int_distribution<int>(0, ms - ms / 2)(generator));
}

} // namespace

void CKyNANetworkReplyImpl::ConnectNetworkReplySignalsImpl()
{
    m_ownsDevice = false;
    QNetworkReply* reply = toolkitReply(owner());
    if (!reply)
        return;

    m_connections << QObject::connect(
        reply, &QNetworkReply::downloadProgress, reply,
        [this](qint64 received, qint64 total) { OnDownloadProgress(received, total); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        reply, &QNetworkReply::uploadProgress, reply,
        [this](qint64 sent, qint64 total) { OnUploadProgress(sent, total); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        reply, &QNetworkReply::encrypted, reply, [this] { OnEncrypted(); }, Qt::DirectConnection);
    // 5.15 deprecates the error signal in favour of errorOccurred; older
    // versions have only the former.
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    const auto errorSignalOfReply = &QNetworkReply::errorOccurred;
#else
    const auto errorSignalOfReply = QOverload<QNetworkReply::NetworkError>::of(&QNetworkReply::error);
#endif
    m_connections << QObject::connect(
        reply, errorSignalOfReply, reply,
        [this, reply](QNetworkReply::NetworkError code) {
            // A try that goes again fails silently.
            if (m_redirects &&
                (m_redirects->retryInMs >= 0 || RetryImpl(reply, CKyNANetworkReply::NetworkError(code))))
                return;
            OnError(CKyNANetworkReply::NetworkError(code), reply);
        },
        Qt::DirectConnection);
    m_connections << QObject::connect(
        reply, &QNetworkReply::finished, reply,
        [this, reply] {
            if (m_redirects && m_redirects->retryInMs >= 0)
                return WaitAndRetryImpl(reply);
            // Only a transfer that follows redirects ever skips a body.
            if (m_skipBody && FollowImpl(reply))
                return;
            OnFinished(StatusOf(reply), reply->rawHeaderPairs(), reply);
        },
        Qt::DirectConnection);
    // Only a client that listens can accept the errors; without one the
    // handshake fails as it always did. A plain transfer has no handshake (a
    // redirect to a secure one gets a reply of its own, connected here again).
    if (reply->url().scheme() == QLatin1String("https"))
        m_connections << QObject::connect(
            reply, &QNetworkReply::sslErrors, reply,
            [this](const QList<QSslError>& errors) { OnSslErrors(errors); }, Qt::DirectConnection);
    // Should the toolkit reply die first (its manager deleted), forget it
    // rather than reach for a dangling pointer.
    m_connections << QObject::connect(reply, &QObject::destroyed, [this] {
        owner()->setHandle(nullptr);
        m_device = nullptr;
    });
    if (m_redirects)
        FollowRedirectsImpl();
}

void CKyNANetworkReplyImpl::DestroyNetworkReplyImpl()
{
    m_connections.disconnectAll();
    if (QNetworkReply* reply = toolkitReply(owner()))
        reply->deleteLater();
    owner()->setHandle(nullptr);
}

void CKyNANetworkReplyImpl::SetRequestImpl(const CKyNANetworkRequest*) {}

CKyNANetworkReply::NetworkError CKyNANetworkReplyImpl::ErrorImpl() const
{
    QNetworkReply* reply = toolkitReply(owner());
    return reply ? CKyNANetworkReply::NetworkError(reply->error()) : CKyNANetworkReply::NoError;
}

QString CKyNANetworkReplyImpl::ErrorStringImpl() const
{
    QNetworkReply* reply = toolkitReply(owner());
    return reply ? reply->errorString() : QString();
}

QVariant CKyNANetworkReplyImpl::AttributeImpl(CKyNANetworkRequest::Attribute code) const
{
    QNetworkReply* reply = toolkitReply(owner());
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 5 says SPDY was not used wherever it says whether HTTP/2 was; Qt 6
    // has no SPDY left to ask about.
    if (code == CKyNANetworkRequest::SpdyWasUsedAttribute)
        return reply && reply->attribute(QNetworkRequest::Http2WasUsedAttribute).isValid() ? QVariant(false)
                                                                                           : QVariant();
#endif
    const int toolkitCode = ToolkitAttribute(code);
    return reply && toolkitCode >= 0 ? reply->attribute(QNetworkRequest::Attribute(toolkitCode)) : QVariant();
}

void CKyNANetworkReplyImpl::AbortImpl()
{
    // Between two tries there is no transfer to abort: the wait ends it.
    if (m_redirects && m_redirects->wait) {
        delete m_redirects->wait.data();
        OnRedirectRefused(CKyNANetworkReply::OperationCanceledError, QStringLiteral("Operation canceled"), 0,
                          HeaderPairs());
        return;
    }
    if (QNetworkReply* reply = toolkitReply(owner()))
        reply->abort();
}

QUrl CKyNANetworkReplyImpl::UrlImpl() const
{
    QNetworkReply* reply = toolkitReply(owner());
    return reply ? reply->url() : QUrl();
}

QJsonDocument CKyNANetworkReplyImpl::ParseJsonImpl(const QByteArray& body, QJsonParseError* error)
{
    QJsonParseError parsed;
    const QJsonDocument document = QJsonDocument::fromJson(body, &parsed);
    if (error)
        *error = parsed;
    return document;
}

void CKyNANetworkReplyImpl::IgnoreSslErrorsImpl(const QList<QSslError>* errors)
{
    QNetworkReply* reply = toolkitReply(owner());
    if (!reply)
        return;
    if (errors)
        reply->ignoreSslErrors(*errors);
    else
        reply->ignoreSslErrors();
}

void CKyNANetworkReplyImpl::StartStreamingImpl()
{
    QNetworkReply* reply = toolkitReply(owner());
    if (!reply)
        return;
    // The body is readable from now on, not only from error or finish.
    m_device = reply;
    // Back-pressure: past this, the toolkit leaves the rest with the server
    // until the client has read.
    reply->setReadBufferSize(StreamingBufferBytes);
    m_connections << QObject::connect(
        reply, &QIODevice::readyRead, reply, [this] { OnReadyRead(); }, Qt::DirectConnection);
}

void CKyNANetworkReplyImpl::FollowRedirectsImpl()
{
    QNetworkReply* reply = toolkitReply(owner());
    if (!reply)
        return;
    // Told before any of the answer's body, which then stays out of sight.
    m_connections << QObject::connect(
        reply, &QNetworkReply::metaDataChanged, reply,
        [this, reply] {
            if (m_redirects->follow && RedirectTarget(reply).isValid())
                OnRedirectArrived();
            else if (IsRetryStatus(StatusOf(reply)) && RetryImpl(reply, CKyNANetworkReply::NoError))
                m_skipBody = true; // the body of a try that goes again is not the client's
        },
        Qt::DirectConnection);
}

bool CKyNANetworkReplyImpl::FollowImpl(QObject* toolkitReply)
{
    auto* reply = static_cast<QNetworkReply*>(toolkitReply);
    Redirects& redirects = *m_redirects;
    m_skipBody = false;
    // Failed or aborted while the redirect arrived: it ends as such.
    if (reply->error() != QNetworkReply::NoError)
        return false;
    const QUrl location = RedirectTarget(reply);
    const int status = StatusOf(reply);
    const auto refuse = [&](CKyNANetworkReply::NetworkError code, const char* text) {
        OnRedirectRefused(code, QString::fromLatin1(text), status, reply->rawHeaderPairs());
        return true;
    };
    if (redirects.left <= 0)
        return refuse(CKyNANetworkReply::TooManyRedirectsError, "Too many redirects");
    const QUrl url = reply->url();
    const QUrl target = url.resolved(location);
    if (target.scheme() != QLatin1String("http") && target.scheme() != QLatin1String("https"))
        return refuse(CKyNANetworkReply::ProtocolUnknownError, "Unknown protocol specified");
    if (url.scheme() == QLatin1String("https") && target.scheme() == QLatin1String("http") &&
        !redirects.allowInsecure)
        return refuse(CKyNANetworkReply::InsecureRedirectError, "Insecure redirect");
    auto* guard = qobject_cast<CKyNANetworkReplyTimeout*>(redirects.guard.data());
    if (guard && guard->expired())
        return refuse(CKyNANetworkReply::OperationCanceledError, "Operation canceled");

    QNetworkRequest request = reply->request();
    request.setUrl(target);
    if (!SameOrigin(url, target))
        DropCredentials(request);
    QNetworkAccessManager::Operation operation = reply->operation();
    // 307 and 308 repeat the request as it was; the others turn it into a
    // GET without a body, a HEAD excepted.
    const bool repeat = status == 307 || status == 308;
    if (!repeat && operation != QNetworkAccessManager::HeadOperation) {
        operation = QNetworkAccessManager::GetOperation;
        request.setHeader(QNetworkRequest::ContentTypeHeader, QVariant());
        request.setHeader(QNetworkRequest::ContentLengthHeader, QVariant());
    }
    QIODevice* device = redirects.device;
    const bool sendsBody =
        operation == QNetworkAccessManager::PostOperation || operation == QNetworkAccessManager::PutOperation;
    // An upload from a device goes again only if the device can go back.
    if (sendsBody && redirects.fromDevice &&
        (!device || device->isSequential() || !device->seek(redirects.devicePos)))
        return refuse(CKyNANetworkReply::ContentReSendError, "Cannot send the upload again");

    ReissueImpl(reply, request, operation);
    --redirects.left;
    return true;
}

bool CKyNANetworkReplyImpl::RetryImpl(QObject* toolkitReply, CKyNANetworkReply::NetworkError code)
{
    auto* reply = static_cast<QNetworkReply*>(toolkitReply);
    Redirects& retries = *m_redirects;
    // An answer is judged once, by its headers; a failure without one by its
    // error.
    const int status = StatusOf(reply);
    const bool again =
        status ? IsRetryStatus(status) && code == CKyNANetworkReply::NoError : IsConnectionFailure(code);
    if (retries.triesLeft <= 0 || !again)
        return false;
    // An upload from a device goes again only if the device can go back.
    if (retries.fromDevice && (!retries.device || retries.device->isSequential()))
        return false;
    const qint64 asked = RetryAfterMs(reply);
    const qint64 wait = asked >= 0 ? asked : Jittered(retries.backOffMs);
    // Every try and wait within the transfer's time-out: a wait that would
    // outlast it leaves this answer as the last.
    auto* guard = qobject_cast<CKyNANetworkReplyTimeout*>(retries.guard.data());
    if (guard && wait >= guard->remainingMs())
        return false;
    retries.retryInMs = int(wait);
    return true;
}

void CKyNANetworkReplyImpl::WaitAndRetryImpl(QObject* toolkitReply)
{
    auto* reply = static_cast<QNetworkReply*>(toolkitReply);
    Redirects& retries = *m_redirects;
    m_skipBody = false;
    --retries.triesLeft;
    retries.backOffMs = retries.backOffMs > INT_MAX / 2 ? INT_MAX : retries.backOffMs * 2;
    auto* timer = new QTimer(reply);
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    m_connections << QObject::connect(
        timer, &QTimer::timeout, reply,
        [this, reply] {
            delete m_redirects->wait.data();
            if (m_redirects->device)
                m_redirects->device->seek(m_redirects->devicePos);
            ReissueImpl(reply, reply->request(), reply->operation());
        },
        Qt::DirectConnection);
    retries.wait = timer;
    timer->start(retries.retryInMs);
    retries.retryInMs = -1;
}

void CKyNANetworkReplyImpl::ReissueImpl(QObject* toolkitReply, const QNetworkRequest& request, int operation)
{
    auto* reply = static_cast<QNetworkReply*>(toolkitReply);
    Redirects& redirects = *m_redirects;
    QIODevice* device = redirects.device;
    auto* guard = qobject_cast<CKyNANetworkReplyTimeout*>(redirects.guard.data());
    QNetworkAccessManager* manager = reply->manager();
    QNetworkReply* next = nullptr;
    switch (operation) {
    case QNetworkAccessManager::HeadOperation:
        next = manager->head(request);
        break;
    case QNetworkAccessManager::PostOperation:
        next = device ? manager->post(request, device) : manager->post(request, redirects.body);
        break;
    case QNetworkAccessManager::PutOperation:
        next = device ? manager->put(request, device) : manager->put(request, redirects.body);
        break;
    case QNetworkAccessManager::DeleteOperation:
        next = manager->deleteResource(request);
        break;
    case QNetworkAccessManager::CustomOperation:
        next = manager->sendCustomRequest(
            request, request.attribute(QNetworkRequest::CustomVerbAttribute).toByteArray(), redirects.body);
        break;
    default:
        next = manager->get(request);
        break;
    }
    // The guard first: its stop must come before this reply's own handlers.
    if (guard)
        guard->follow(next);
    m_connections.disconnectAll();
    reply->deleteLater();
    owner()->setHandle(next);
    ConnectNetworkReplySignalsImpl();
    if (m_streaming)
        StartStreamingImpl();
}
