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

// Counts one report of the toolkit socket for as long as it is under way.
class Reporting
{
public:
    explicit Reporting(std::shared_ptr<int> count)
        : m_count(std::move(count))
    {
        ++*m_count;
    }
    ~Reporting() { --*m_count; }

private:
    const std::shared_ptr<int> m_count;
};

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
    const Reporting reporting(m_reporting);
    connectedSignal.Emit();
}

void CKyNAWebSocketImpl::OnError(int error)
{
    const Reporting reporting(m_reporting);
    errorSignal.Emit(error);
}

void CKyNAWebSocketImpl::OnDisconnected()
{
    const Reporting reporting(m_reporting);
    disconnectedSignal.Emit();
}

void CKyNAWebSocketImpl::OnTextMessageReceived(const QString& message)
{
    const Reporting reporting(m_reporting);
    textMessageReceivedSignal.Emit(message);
}

void CKyNAWebSocketImpl::CreateWebSocketImpl(const QString& origin, CKyNAWebSocketProtocol::Version version)
{
    auto* socket = new QWebSocket(origin, QWebSocketProtocol::Version(version), nullptr);
    owner()->setHandle(socket);

    m_connections << QObject::connect(
        socket, &QWebSocket::connected, socket, [this] { OnConnected(); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        socket, QOverload<QAbstractSocket::SocketError>::of(&QWebSocket::error), socket,
        [this](QAbstractSocket::SocketError error) { OnError(int(error)); }, Qt::DirectConnection);
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
    if (*m_reporting == 0) {
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
