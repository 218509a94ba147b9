#include "NA/Impl/CKyNAWebSocketImpl.h"

namespace
{

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
