#include "NA/Impl/CKyNAWebSocketImpl.h"

CKyNAWebSocketImpl::CKyNAWebSocketImpl(CKyNAWebSocket* owner, const QString& origin,
                                       CKyNAWebSocketProtocol::Version version)
    : CKyUIObjectImpl(owner)
    , connected(owner)
    , error(owner)
    , disconnected(owner)
    , textMessageReceived(owner)
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
    EmitInOrder([this] { connected.Emit(); });
}

void CKyNAWebSocketImpl::OnError(int code)
{
    EmitInOrder([&] { error.Emit(code); });
}

void CKyNAWebSocketImpl::OnDisconnected()
{
    EmitInOrder([this] { disconnected.Emit(); });
}

void CKyNAWebSocketImpl::OnTextMessageReceived(const QString& message)
{
    EmitInOrder([&] { textMessageReceived.Emit(message); });
}
