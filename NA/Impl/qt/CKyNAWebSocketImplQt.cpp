#include "NA/Impl/CKyNAWebSocketImpl.h"

#include "NA/CKyNANetworkRequest.h"

#include <QtNetwork/QNetworkRequest>
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
        socket, &QWebSocket::disconnected, socket, [this] { OnDisconnected(); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        socket, &QWebSocket::textMessageReceived, socket,
        [this](const QString& message) { OnTextMessageReceived(message); }, Qt::DirectConnection);
}

void CKyNAWebSocketImpl::DestroyWebSocketImpl()
{
    QObject* socket = owner()->getHandle();
    if (!socket)
        return;
    owner()->setHandle(nullptr);
    if (!IsReporting()) {
        delete socket;
        return;
    }
    // Destroyed from a slot of one of the socket's own reports: the toolkit
    // socket carries on with its work once the slot returns, so it cannot go
    // now. It is cut off from us and goes on the next pass of the event loop.
    for (const QMetaObject::Connection& connection : qAsConst(m_connections))
        QObject::disconnect(connection);
    socket->deleteLater();
}

void CKyNAWebSocketImpl::OpenImpl(const CKyNANetworkRequest& request)
{
    QWebSocket* socket = toolkitSocket(owner());
    QNetworkRequest* toolkitRequest = request.getHandle();
    if (socket && toolkitRequest)
        socket->open(*toolkitRequest);
}

void CKyNAWebSocketImpl::CloseImpl(CKyNAWebSocketProtocol::CloseCode code, const QString& reason)
{
    if (QWebSocket* socket = toolkitSocket(owner()))
        socket->close(QWebSocketProtocol::CloseCode(code), reason);
}
