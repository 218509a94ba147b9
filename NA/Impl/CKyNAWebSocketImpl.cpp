#include "NA/Impl/CKyNAWebSocketImpl.h"

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
    EmitInOrder([this] { connectedSignal.Emit(); });
}

void CKyNAWebSocketImpl::OnError(int error)
{
    EmitInOrder([&] { errorSignal.Emit(error); });
}

void CKyNAWebSocketImpl::OnDisconnected()
{
    EmitInOrder([this] { disconnectedSignal.Emit(); });
}

void CKyNAWebSocketImpl::OnTextMessageReceived(const QString& message)
{
    EmitInOrder([&] { textMessageReceivedSignal.Emit(message); });
}
