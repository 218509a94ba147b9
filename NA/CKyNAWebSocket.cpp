#include "NA/CKyNAWebSocket.h"

#include "NA/Impl/CKyNAWebSocketImpl.h"

CKyNAWebSocket::CKyNAWebSocket(const QString& origin, CKyNAWebSocketProtocol::Version version)
{
    setImpl(new CKyNAWebSocketImpl(this, origin, version));
}

CKyNAWebSocket::~CKyNAWebSocket() = default;

void CKyNAWebSocket::open(const CKyNANetworkRequest& request)
{
    implAs<CKyNAWebSocketImpl>()->open(request);
}

void CKyNAWebSocket::close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason)
{
    implAs<CKyNAWebSocketImpl>()->close(code, reason);
}

CKyUISignal<void()>& CKyNAWebSocket::connected()
{
    return implAs<CKyNAWebSocketImpl>()->connected;
}

CKyUISignal<void(int)>& CKyNAWebSocket::error()
{
    return implAs<CKyNAWebSocketImpl>()->error;
}

CKyUISignal<void()>& CKyNAWebSocket::disconnected()
{
    return implAs<CKyNAWebSocketImpl>()->disconnected;
}

CKyUISignal<void(const QString&)>& CKyNAWebSocket::textMessageReceived()
{
    return implAs<CKyNAWebSocketImpl>()->textMessageReceived;
}

void CKyNAWebSocket::setHandshakeTimeout(int ms)
{
    implAs<CKyNAWebSocketImpl>()->SetHandshakeTimeout(ms);
}

int CKyNAWebSocket::handshakeTimeout() const
{
    return implAs<CKyNAWebSocketImpl>()->GetHandshakeTimeout();
}

void CKyNAWebSocket::ping(const QByteArray& payload)
{
    implAs<CKyNAWebSocketImpl>()->ping(payload);
}

void CKyNAWebSocket::ignoreSslErrors()
{
    implAs<CKyNAWebSocketImpl>()->ignoreSslErrors();
}

void CKyNAWebSocket::ignoreSslErrors(const QList<QSslError>& errors)
{
    implAs<CKyNAWebSocketImpl>()->ignoreSslErrors(errors);
}

CKyNAWebSocketProtocol::CloseCode CKyNAWebSocket::closeCode() const
{
    return implAs<CKyNAWebSocketImpl>()->GetCloseCode();
}

QString CKyNAWebSocket::closeReason() const
{
    return implAs<CKyNAWebSocketImpl>()->GetCloseReason();
}

CKyUISignal<void(const QList<QSslError>&)>& CKyNAWebSocket::sslErrors()
{
    return implAs<CKyNAWebSocketImpl>()->sslErrors;
}

CKyUISignal<void(long long, const QByteArray&)>& CKyNAWebSocket::pong()
{
    return implAs<CKyNAWebSocketImpl>()->pong;
}

long long CKyNAWebSocket::sendTextMessage(const QString& message)
{
    return implAs<CKyNAWebSocketImpl>()->sendTextMessage(message);
}

long long CKyNAWebSocket::sendBinaryMessage(const QByteArray& data)
{
    return implAs<CKyNAWebSocketImpl>()->sendBinaryMessage(data);
}

void CKyNAWebSocket::setReconnect(int maxAttempts, int firstDelayMs, int maxDelayMs)
{
    implAs<CKyNAWebSocketImpl>()->SetReconnect(maxAttempts, firstDelayMs, maxDelayMs);
}

int CKyNAWebSocket::reconnectAttempts() const
{
    return implAs<CKyNAWebSocketImpl>()->GetReconnectAttempts();
}

CKyUISignal<void(const QByteArray&)>& CKyNAWebSocket::binaryMessageReceived()
{
    return implAs<CKyNAWebSocketImpl>()->binaryMessageReceived;
}

CKyUISignal<void(long long)>& CKyNAWebSocket::bytesWritten()
{
    return implAs<CKyNAWebSocketImpl>()->bytesWritten;
}

CKyUISignal<void(int, int)>& CKyNAWebSocket::reconnecting()
{
    return implAs<CKyNAWebSocketImpl>()->reconnecting;
}
