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
