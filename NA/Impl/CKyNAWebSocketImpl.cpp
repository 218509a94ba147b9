#include "NA/Impl/CKyNAWebSocketImpl.h"

#include "NA/Impl/KyHeaderCheck.h"

CKyNAWebSocketImpl::CKyNAWebSocketImpl(CKyNAWebSocket* owner, const QString& origin,
                                       CKyNAWebSocketProtocol::Version version)
    : CKyUIObjectImpl(owner)
    , connected(owner)
    , error(owner)
    , disconnected(owner)
    , textMessageReceived(owner)
    , sslErrors(owner)
    , pong(owner)
{
    // The origin travels as a header of the opening request: one that would
    // split it is not announced at all.
    const bool refused = KyHeaderCheck::Refuse("CKyNAWebSocket", "Origin", origin.toUtf8());
    CreateWebSocketImpl(refused ? QString() : origin, version);
}

CKyNAWebSocketImpl::~CKyNAWebSocketImpl()
{
    // Cut off before the toolkit socket goes: its last report would reach an
    // owner that is half destroyed.
    DestroyWebSocketImpl();
}

void CKyNAWebSocketImpl::open(const CKyNANetworkRequest& request)
{
    ++m_opens;
    m_connected = false;
    m_closing = false;
    m_closeCode = CKyNAWebSocketProtocol::CloseCode(0);
    m_closeReason.clear();
    // The toolkit would hold errors listed as ignored for every later
    // handshake.
    if (m_ignoredListedErrors) {
        m_ignoredListedErrors = false;
        IgnoreSslErrorsImpl(QList<QSslError>());
    }
    // Armed first: the toolkit may refuse the request from inside open(), and
    // a slot may delete us there.
    if (m_handshakeTimeout > 0)
        StartHandshakeTimerImpl();
    else
        StopHandshakeTimerImpl();
    OpenImpl(request);
}

void CKyNAWebSocketImpl::close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason)
{
    CloseImpl(code, reason);
}

void CKyNAWebSocketImpl::ping(const QByteArray& payload)
{
    // Before connected() a frame would corrupt the opening handshake.
    if (m_connected)
        PingImpl(payload);
}

void CKyNAWebSocketImpl::ignoreSslErrors()
{
    if (m_reportingSslErrors)
        IgnoreSslErrorsImpl();
}

void CKyNAWebSocketImpl::ignoreSslErrors(const QList<QSslError>& errors)
{
    if (!m_reportingSslErrors)
        return;
    m_ignoredListedErrors = true;
    IgnoreSslErrorsImpl(errors);
}

void CKyNAWebSocketImpl::SetHandshakeTimeout(int ms)
{
    m_handshakeTimeout = ms;
}

void CKyNAWebSocketImpl::OnConnected()
{
    StopHandshakeTimerImpl();
    m_connected = true;
    EmitInOrder([this] { connected.Emit(); });
}

void CKyNAWebSocketImpl::OnError(int code)
{
    StopHandshakeTimerImpl();
    EmitInOrder([&] { error.Emit(code); });
}

void CKyNAWebSocketImpl::OnDisconnected(CKyNAWebSocketProtocol::CloseCode code, const QString& reason)
{
    StopHandshakeTimerImpl();
    m_connected = false;
    m_closeCode = m_closing ? code : CKyNAWebSocketProtocol::CloseCodeAbnormalDisconnection;
    m_closeReason = m_closing ? reason : QString();
    EmitInOrder([this] { disconnected.Emit(); });
}

void CKyNAWebSocketImpl::OnTextMessageReceived(const QString& message)
{
    EmitInOrder([&] { textMessageReceived.Emit(message); });
}

void CKyNAWebSocketImpl::OnClosing()
{
    // Aborting an opening closes the toolkit socket too, with no close frame.
    if (m_connected)
        m_closing = true;
}

void CKyNAWebSocketImpl::OnSslErrors(const QList<QSslError>& errors)
{
    m_reportingSslErrors = true;
    if (EmitInOrder([&] { sslErrors.Emit(errors); }))
        m_reportingSslErrors = false;
}

void CKyNAWebSocketImpl::OnPong(long long elapsedMs, const QByteArray& payload)
{
    EmitInOrder([&] { pong.Emit(elapsedMs, payload); });
}

void CKyNAWebSocketImpl::OnHandshakeTimeout(int timeoutError)
{
    const int opens = m_opens;
    if (!EmitInOrder([&] { error.Emit(timeoutError); }))
        return;
    // A slot that opened again keeps its new attempt; otherwise the toolkit
    // reports disconnected() as after any failed open.
    if (opens == m_opens)
        AbortImpl();
}
