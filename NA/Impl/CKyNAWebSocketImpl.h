#pragma once

#include "NA/CKyNAWebSocket.h"
#include "NA/Impl/qt/KyToolkitConnections.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMetaObject>
#include <QtNetwork/QSslError>

class CKyNANetworkRequest;

// Drives one toolkit web socket, connected from construction on: the
// toolkit reports a bad URL from inside open() itself.
class CKyNAWebSocketImpl : public CKyUIObjectImpl
{
public:
    CKyNAWebSocketImpl(CKyNAWebSocket* owner, const QString& origin, CKyNAWebSocketProtocol::Version version);
    ~CKyNAWebSocketImpl() override;

    void open(const CKyNANetworkRequest& request);
    void close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason);
    void ping(const QByteArray& payload);
    long long sendTextMessage(const QString& message);
    long long sendBinaryMessage(const QByteArray& data);
    void SetReconnect(int maxAttempts, int firstDelayMs, int maxDelayMs);
    int GetReconnectAttempts() const { return m_reconnectMax; }
    void ignoreSslErrors();
    void ignoreSslErrors(const QList<QSslError>& errors);
    void SetHandshakeTimeout(int ms);
    int GetHandshakeTimeout() const { return m_handshakeTimeout; }
    CKyNAWebSocketProtocol::CloseCode GetCloseCode() const { return m_closeCode; }
    QString GetCloseReason() const { return m_closeReason; }

    // Toolkit steps.
    void CreateWebSocketImpl(const QString& origin, CKyNAWebSocketProtocol::Version version);
    void DestroyWebSocketImpl();
    void OpenImpl(const CKyNANetworkRequest& request);
    void CloseImpl(CKyNAWebSocketProtocol::CloseCode code, const QString& reason);
    void PingImpl(const QByteArray& payload);
    long long SendTextMessageImpl(const QString& message);
    long long SendBinaryMessageImpl(const QByteArray& data);
    void StartReconnectTimerImpl(int delayMs);
    void StopReconnectTimerImpl();
    // Opens the toolkit socket's last request again.
    void ReopenImpl();
    void IgnoreSslErrorsImpl();
    void IgnoreSslErrorsImpl(const QList<QSslError>& errors);
    void StartHandshakeTimerImpl();
    void StopHandshakeTimerImpl();
    void AbortImpl();

    // Reactions to the toolkit socket.
    void OnConnected();
    void OnError(int code);
    void OnDisconnected(CKyNAWebSocketProtocol::CloseCode code, const QString& reason);
    void OnTextMessageReceived(const QString& message);
    void OnBinaryMessageReceived(const QByteArray& message);
    void OnBytesWritten(long long bytes);
    void OnReconnectTimeout();
    void OnClosing();
    void OnSslErrors(const QList<QSslError>& errors);
    void OnPong(long long elapsedMs, const QByteArray& payload);
    void OnHandshakeTimeout(int timeoutError);

    CKyUISignal<void()> connected;
    CKyUISignal<void(int)> error;
    CKyUISignal<void()> disconnected;
    CKyUISignal<void(const QString&)> textMessageReceived;
    CKyUISignal<void(const QByteArray&)> binaryMessageReceived;
    CKyUISignal<void(long long)> bytesWritten;
    CKyUISignal<void(int, int)> reconnecting;
    CKyUISignal<void(const QList<QSslError>&)> sslErrors;
    CKyUISignal<void(long long, const QByteArray&)> pong;

private:
    // What every open, the client's or a reconnection, starts with.
    void BeginOpen();
    // Whether the connection that just ended calls for another attempt.
    bool ShouldReconnect() const;

    KyToolkitConnections m_connections;
    int m_handshakeTimeout = 0;
    // Counts open() calls, so that a slot that opens again from inside a
    // report is not undone by what follows that report.
    int m_opens = 0;
    // Between connected() and disconnected().
    bool m_connected = false;
    // Whether the connection went through a closing handshake: without one
    // the toolkit's close code is stale.
    bool m_closing = false;
    // Errors may be ignored only for the handshake that reports them.
    bool m_reportingSslErrors = false;
    bool m_ignoredListedErrors = false;
    // Set by close(): our own ending is never followed by a reconnection.
    bool m_closedByUs = false;
    int m_reconnectMax = 0;
    int m_reconnectFirstDelay = 0;
    int m_reconnectMaxDelay = 0;
    // Attempts since the last connection that succeeded.
    int m_reconnectAttempt = 0;
    CKyNAWebSocketProtocol::CloseCode m_closeCode = CKyNAWebSocketProtocol::CloseCode(0);
    QString m_closeReason;
};
