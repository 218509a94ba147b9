#include "NA/Impl/CKyNAWebSocketImpl.h"

#include "NA/CKyNANetworkRequest.h"

#include <QtCore/QTimer>
#include <QtNetwork/QNetworkRequest>
#include <QtNetwork/QSslConfiguration>
#include <QtWebSockets/QWebSocket>

static_assert(int(CKyNAWebSocketProtocol::VersionUnknown) == int(QWebSocketProtocol::VersionUnknown), "");
static_assert(int(CKyNAWebSocketProtocol::VersionLatest) == int(QWebSocketProtocol::VersionLatest), "");
static_assert(int(CKyNAWebSocketProtocol::CloseCodeNormal) == int(QWebSocketProtocol::CloseCodeNormal), "");
static_assert(int(CKyNAWebSocketProtocol::CloseCodeBadOperation) ==
                  int(QWebSocketProtocol::CloseCodeBadOperation),
              "");
static_assert(int(CKyNAWebSocketProtocol::CloseCodeTlsHandshakeFailed) ==
                  int(QWebSocketProtocol::CloseCodeTlsHandshakeFailed),
              "");

namespace
{

QWebSocket* toolkitSocket(CKyUIObject* owner)
{
    return qobject_cast<QWebSocket*>(owner->getHandle());
}

const char* const handshakeTimerName = "handshakeTimer";
const char* const reconnectTimerName = "reconnectTimer";

QTimer* namedTimer(CKyUIObject* owner, const char* name)
{
    QWebSocket* socket = toolkitSocket(owner);
    return socket ? socket->findChild<QTimer*>(QLatin1String(name), Qt::FindDirectChildrenOnly) : nullptr;
}

QTimer* handshakeTimer(CKyUIObject* owner)
{
    return namedTimer(owner, handshakeTimerName);
}

} // namespace

void CKyNAWebSocketImpl::CreateWebSocketImpl(const QString& origin, CKyNAWebSocketProtocol::Version version)
{
    auto* socket = new QWebSocket(origin, QWebSocketProtocol::Version(version), nullptr);
    owner()->setHandle(socket);

    m_connections << QObject::connect(
        socket, &QWebSocket::connected, socket, [this] { OnConnected(); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        socket, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error), socket,
        [this](QAbstractSocket::SocketError code) { OnError(int(code)); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        socket, &QWebSocket::disconnected, socket,
        [this, socket] {
            OnDisconnected(CKyNAWebSocketProtocol::CloseCode(socket->closeCode()), socket->closeReason());
        },
        Qt::DirectConnection);
    m_connections << QObject::connect(
        socket, &QWebSocket::textMessageReceived, socket,
        [this](const QString& message) { OnTextMessageReceived(message); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        socket, &QWebSocket::binaryMessageReceived, socket,
        [this](const QByteArray& message) { OnBinaryMessageReceived(message); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        socket, &QWebSocket::bytesWritten, socket, [this](qint64 bytes) { OnBytesWritten(bytes); },
        Qt::DirectConnection);
    // Announced only when a close frame goes out, ours or the answer to the
    // peer's; a connection that merely drops passes through the closing state
    // without it.
    m_connections << QObject::connect(
        socket, &QWebSocket::aboutToClose, socket, [this] { OnClosing(); }, Qt::DirectConnection);
#if QT_CONFIG(ssl)
    m_connections << QObject::connect(
        socket, &QWebSocket::sslErrors, socket,
        [this](const QList<QSslError>& errors) { OnSslErrors(errors); }, Qt::DirectConnection);
#endif
    m_connections << QObject::connect(
        socket, &QWebSocket::pong, socket,
        [this](quint64 elapsedMs, const QByteArray& payload) { OnPong(qint64(elapsedMs), payload); },
        Qt::DirectConnection);
}

void CKyNAWebSocketImpl::DestroyWebSocketImpl()
{
    QObject* socket = owner()->getHandle();
    if (!socket)
        return;
    owner()->setHandle(nullptr);
    m_connections.disconnectAll();
    // Destroyed from a slot of one of the socket's own reports, the toolkit
    // socket carries on with its work once the slot returns, so it cannot go
    // now: it goes on the next pass of the event loop.
    if (IsReporting())
        socket->deleteLater();
    else
        delete socket;
}

void CKyNAWebSocketImpl::OpenImpl(const CKyNANetworkRequest& request)
{
    QWebSocket* socket = toolkitSocket(owner());
    QNetworkRequest* toolkitRequest = request.getHandle();
    if (!socket || !toolkitRequest)
        return;
#if QT_CONFIG(ssl)
    // A request without TLS settings of its own answers the process-wide
    // default; the socket is then left (or put back) on its own default, as
    // it always was.
    const QSslConfiguration configuration = toolkitRequest->sslConfiguration();
    const bool own = configuration != QSslConfiguration::defaultConfiguration();
    if (own || !socket->sslConfiguration().isNull())
        socket->setSslConfiguration(own ? configuration : QSslConfiguration());
#endif
    socket->open(*toolkitRequest);
}

void CKyNAWebSocketImpl::CloseImpl(CKyNAWebSocketProtocol::CloseCode code, const QString& reason)
{
    if (QWebSocket* socket = toolkitSocket(owner()))
        socket->close(QWebSocketProtocol::CloseCode(code), reason);
}

void CKyNAWebSocketImpl::PingImpl(const QByteArray& payload)
{
    // Once closing, the toolkit socket is no longer open for writing.
    QWebSocket* socket = toolkitSocket(owner());
    if (socket && socket->state() == QAbstractSocket::ConnectedState)
        socket->ping(payload);
}

long long CKyNAWebSocketImpl::SendTextMessageImpl(const QString& message)
{
    QWebSocket* socket = toolkitSocket(owner());
    return socket && socket->state() == QAbstractSocket::ConnectedState ? socket->sendTextMessage(message)
                                                                        : -1;
}

long long CKyNAWebSocketImpl::SendBinaryMessageImpl(const QByteArray& data)
{
    QWebSocket* socket = toolkitSocket(owner());
    return socket && socket->state() == QAbstractSocket::ConnectedState ? socket->sendBinaryMessage(data)
                                                                        : -1;
}

void CKyNAWebSocketImpl::StartReconnectTimerImpl(int delayMs)
{
    QWebSocket* socket = toolkitSocket(owner());
    if (!socket)
        return;
    // Made on the first reconnection only: a socket without the option
    // carries no timer.
    QTimer* timer = namedTimer(owner(), reconnectTimerName);
    if (!timer) {
        timer = new QTimer(socket);
        timer->setObjectName(QLatin1String(reconnectTimerName));
        timer->setSingleShot(true);
        m_connections << QObject::connect(
            timer, &QTimer::timeout, socket, [this] { OnReconnectTimeout(); }, Qt::DirectConnection);
    }
    timer->start(delayMs);
}

void CKyNAWebSocketImpl::StopReconnectTimerImpl()
{
    if (QTimer* timer = namedTimer(owner(), reconnectTimerName))
        timer->stop();
}

void CKyNAWebSocketImpl::ReopenImpl()
{
    // The toolkit keeps the last request, and the TLS settings open() gave.
    if (QWebSocket* socket = toolkitSocket(owner()))
        socket->open(socket->request());
}

void CKyNAWebSocketImpl::IgnoreSslErrorsImpl()
{
#if QT_CONFIG(ssl)
    if (QWebSocket* socket = toolkitSocket(owner()))
        socket->ignoreSslErrors();
#endif
}

void CKyNAWebSocketImpl::IgnoreSslErrorsImpl(const QList<QSslError>& errors)
{
#if QT_CONFIG(ssl)
    if (QWebSocket* socket = toolkitSocket(owner()))
        socket->ignoreSslErrors(errors);
#else
    Q_UNUSED(errors)
#endif
}

void CKyNAWebSocketImpl::StartHandshakeTimerImpl()
{
    QWebSocket* socket = toolkitSocket(owner());
    if (!socket)
        return;
    // Made on the first bounded open only: a socket without the option
    // carries no timer.
    QTimer* timer = handshakeTimer(owner());
    if (!timer) {
        timer = new QTimer(socket);
        timer->setObjectName(QLatin1String(handshakeTimerName));
        timer->setSingleShot(true);
        m_connections << QObject::connect(
            timer, &QTimer::timeout, socket,
            [this] { OnHandshakeTimeout(int(QAbstractSocket::SocketTimeoutError)); }, Qt::DirectConnection);
    }
    timer->start(m_handshakeTimeout);
}

void CKyNAWebSocketImpl::StopHandshakeTimerImpl()
{
    if (QTimer* timer = handshakeTimer(owner()))
        timer->stop();
}

void CKyNAWebSocketImpl::AbortImpl()
{
    if (QWebSocket* socket = toolkitSocket(owner()))
        socket->abort();
}
