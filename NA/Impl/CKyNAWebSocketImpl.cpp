#include "NA/Impl/CKyNAWebSocketImpl.h"

#include "NA/Impl/KyHeaderCheck.h"

CKyNAWebSocketImpl::CKyNAWebSocketImpl(CKyNAWebSocket* owner, const QString& origin,
                                       CKyNAWebSocketProtocol::Version version)
    : CKyUIObjectImpl(owner)
    , connected(owner)
    , error(owner)
    , disconnected(owner)
    , textMessageReceived(owner)
    , binaryMessageReceived(owner)
    , bytesWritten(owner)
    , reconnecting(owner)
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
    m_reconnectAttempt = 0;
    BeginOpen();
    OpenImpl(request);
}

void CKyNAWebSocketImpl::BeginOpen()
{
    // Turned off, the timer is stopped already (or was never made).
    if (m_reconnectMax > 0)
        StopReconnectTimerImpl();
    m_closedByUs = false;
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
}

void CKyNAWebSocketImpl::close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason)
{
    m_closedByUs = true;
    if (m_reconnectMax > 0)
        StopReconnectTimerImpl();
    CloseImpl(code, reason);
}

long long CKyNAWebSocketImpl::sendTextMessage(const QString& message)
{
    // Before connected() a frame would corrupt the opening handshake.
    return m_connected ? SendTextMessageImpl(message) : -1;
}

long long CKyNAWebSocketImpl::sendBinaryMessage(const QByteArray& data)
{
    return m_connected ? SendBinaryMessageImpl(data) : -1;
}

void CKyNAWebSocketImpl::SetReconnect(int maxAttempts, int firstDelayMs, int maxDelayMs)
{
    m_reconnectMax = qMax(0, maxAttempts);
    m_reconnectFirstDelay = qMax(0, firstDelayMs);
    m_reconnectMaxDelay = qMax(m_reconnectFirstDelay, maxDelayMs);
    if (m_reconnectMax == 0)
        StopReconnectTimerImpl();
}

bool CKyNAWebSocketImpl::ShouldReconnect() const
{
    return m_reconnectMax > 0 && !m_closedByUs && m_reconnectAttempt < m_reconnectMax &&
           m_closeCode == CKyNAWebSocketProtocol::CloseCodeAbnormalDisconnection;
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
    m_reconnectAttempt = 0;
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
    const int opens = m_opens;
    if (!EmitInOrder([this] { disconnected.Emit(); }))
        return;
    // A slot that opened, closed or turned reconnection off has decided.
    if (opens != m_opens || !ShouldReconnect())
        return;
    const int attempt = ++m_reconnectAttempt;
    long long delay = m_reconnectFirstDelay;
    for (int i = 1; i < attempt && delay < m_reconnectMaxDelay; ++i)
        delay *= 2;
    const int delayMs = int(qMin<long long>(delay, m_reconnectMaxDelay));
    if (!EmitInOrder([&] { reconnecting.Emit(attempt, delayMs); }))
        return;
    if (opens == m_opens && !m_closedByUs && m_reconnectMax > 0)
        StartReconnectTimerImpl(delayMs);
}

void CKyNAWebSocketImpl::OnReconnectTimeout()
{
    BeginOpen();
    ReopenImpl();
}

void CKyNAWebSocketImpl::OnTextMessageReceived(const QString& message)
{
    EmitInOrder([&] { textMessageReceived.Emit(message); });
}

void CKyNAWebSocketImpl::OnBinaryMessageReceived(const QByteArray& message)
{
    EmitInOrder([&] { binaryMessageReceived.Emit(message); });
}

void CKyNAWebSocketImpl::OnBytesWritten(long long bytes)
{
    EmitInOrder([&] { bytesWritten.Emit(bytes); });
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
