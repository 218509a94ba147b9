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

CKyNAWebSocketImpl::CKyNAWebSocketImpl(CKyNAWebSocket* owner, const QString& origin,
                                       CKyNAWebSocketProtocol::Version version)
    : CKyUIObjectImpl(owner)
    , connectedSignal(owner)
    , errorSignal(owner)
    , disconnectedSignal(owner)
    , textMessageReceivedSignal(owner)
{
    CreateWebSocketImpl(origin, version);
}

CKyNAWebSocketImpl::~CKyNAWebSocketImpl()
{
    // Runs while the signals still exist: the socket may report its
    // disconnection as it goes.
    DestroyWebSocketImpl();
}

void CKyNAWebSocketImpl::open(const CKyNANetworkRequest& request)
{
    OpenImpl(request);
}

void CKyNAWebSocketImpl::close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason)
{
    CloseImpl(code, reason);
}

void CKyNAWebSocketImpl::OnConnected()
{
    connectedSignal.Emit();
}

void CKyNAWebSocketImpl::OnError(int error)
{
    errorSignal.Emit(error);
}

void CKyNAWebSocketImpl::OnDisconnected()
{
    disconnectedSignal.Emit();
}

void CKyNAWebSocketImpl::OnTextMessageReceived(const QString& message)
{
    textMessageReceivedSignal.Emit(message);
}

void CKyNAWebSocketImpl::CreateWebSocketImpl(const QString& origin, CKyNAWebSocketProtocol::Version version)
{
    auto* socket = new QWebSocket(origin, QWebSocketProtocol::Version(version), nullptr);
    owner()->setHandle(socket);

    QObject::connect(
        socket, &QWebSocket::connected, socket, [this] { OnConnected(); }, Qt::DirectConnection);
    QObject::connect(
        socket, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error), socket,
        [this](QAbstractSocket::SocketError error) { OnError(int(error)); }, Qt::DirectConnection);
    QObject::connect(
        socket, &QWebSocket::disconnected, socket, [this] { OnDisconnected(); }, Qt::DirectConnection);
    QObject::connect(
        socket, &QWebSocket::textMessageReceived, socket,
        [this](const QString& message) { OnTextMessageReceived(message); }, Qt::DirectConnection);
}

void CKyNAWebSocketImpl::DestroyWebSocketImpl()
{
    QObject* socket = owner()->getHandle();
    if (!socket)
        return;
    delete socket;
    owner()->setHandle(nullptr);
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
