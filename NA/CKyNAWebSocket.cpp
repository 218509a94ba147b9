#include "NA/CKyNAWebSocket.h"

#include "NA/Impl/CKyNAWebSocketImpl.h"

CKyNAWebSocket::CKyNAWebSocket(const QString& origin, CKyNAWebSocketProtocol::Version version)
{
    setImpl(new CKyNAWebSocketImpl(this, origin, version));
}

CKyNAWebSocket::~CKyNAWebSocket() = default;

CKyNAWebSocketImpl* CKyNAWebSocket::d() const
{
    return static_cast<CKyNAWebSocketImpl*>(impl());
}

void CKyNAWebSocket::open(const CKyNANetworkRequest& request)
{
    d()->open(request);
}

void CKyNAWebSocket::close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason)
{
    d()->close(code, reason);
}

CKyUISignal<void()>& CKyNAWebSocket::connected()
{
    return d()->connectedSignal;
}

CKyUISignal<void(int)>& CKyNAWebSocket::error()
{
    return d()->errorSignal;
}

CKyUISignal<void()>& CKyNAWebSocket::disconnected()
{
    return d()->disconnectedSignal;
}

CKyUISignal<void(const QString&)>& CKyNAWebSocket::textMessageReceived()
{
    return d()->textMessageReceivedSignal;
}
