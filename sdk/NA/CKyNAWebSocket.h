#pragma once

#include "commonui_export.h"

#include "NA/CKyNAWebSocketProtocol.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtNetwork/QSslError>

class CKyNANetworkRequest;

/// A web socket that reports connection, disconnection, errors and incoming
/// messages, and sends text and binary messages, pings and the close (see
/// \ref behaviours_network "behaviours").
///
/// Order of the signals is the toolkit's: a successful open() gives
/// connected(), then any number of textMessageReceived() and
/// binaryMessageReceived(), then disconnected() after close() or when the
/// connection is lost; a failed open() gives error() (and disconnected()
/// where the toolkit reports it), never connected(). A message that arrives
/// while the socket's signals are blocked is dropped, not queued.
///
/// Options, none of which changes anything for a client that leaves them
/// alone: on a secure open, sslErrors() comes before connected() and the open
/// fails after it unless its slot calls ignoreSslErrors(); setHandshakeTimeout()
/// bounds the opening (error(), then disconnected()); ping() is answered by
/// pong(), so a client notices a frozen server; closeCode() and closeReason()
/// tell how the last connection ended; setReconnect() opens again, with a
/// growing delay, after a connection that ended abnormally.
///
/// The client owns the web socket; deleting it closes the connection (the
/// peer is sent CKyNAWebSocketProtocol::CloseCodeGoingAway) and reports
/// nothing: once deletion begins no signal is emitted, not even
/// disconnected(). Deleting it from one of its own slots is fine: the toolkit
/// socket then goes on the next pass of the event loop.
///
/// See \ref services, and \ref errors_socket for every error code.
class COMMONUI_EXPORT CKyNAWebSocket : public CKyUIObject
{
public:
    /// A closed socket that announces @p origin and speaks @p version of the
    /// protocol (CKyNAWebSocketProtocol::VersionLatest in practice). The origin
    /// is the `Origin` header of each opening handshake, which servers that
    /// take connections only from known origins check; an empty one sends
    /// none. An origin holding CR, LF or NUL would split the opening request:
    /// it is not announced at all, and one warning says why.
    CKyNAWebSocket(const QString& origin, CKyNAWebSocketProtocol::Version version);
    /// Deletes the toolkit socket at once, without reporting disconnected()
    /// or anything else.
    ~CKyNAWebSocket() override;

    /// Opens the connection to the request's URL with its headers and its TLS
    /// settings (trusted authorities, client certificate); the outcome arrives
    /// as connected() or error(). The request need not outlive the call.
    void open(const CKyNANetworkRequest& request);
    /// Closes the connection with a close code and a reason; disconnected()
    /// follows.
    void close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason);

    /// Bounds the opening handshake of the next open() calls to @p ms
    /// milliseconds, connection and TLS set-up included; 0 (the default) or less
    /// leaves it unbounded. When the time runs out before connected(), the
    /// socket reports `error(QAbstractSocket::SocketTimeoutError)` (5) and then
    /// disconnected(), and closeCode() reads
    /// CKyNAWebSocketProtocol::CloseCodeAbnormalDisconnection.
    void setHandshakeTimeout(int ms);
    /// The bound given to setHandshakeTimeout(); 0 after construction.
    int handshakeTimeout() const;

    /// Sends a ping with up to 125 bytes of @p payload (longer ones are cut);
    /// the peer's answer arrives as pong(). Does nothing while not connected:
    /// before connected(), once close() was called and after disconnected().
    /// A peer that stays silent after a ping is frozen or gone: the client
    /// decides how long it waits.
    void ping(const QByteArray& payload = QByteArray());

    /// Sends @p message as one text frame and returns the bytes of the
    /// message queued (its UTF-8 size); bytesWritten() follows as they reach
    /// the network. Like ping(), does nothing while not connected and then
    /// returns -1: nothing is queued for a later connection.
    long long sendTextMessage(const QString& message);
    /// Sends @p data as one binary frame, as sendTextMessage() does.
    long long sendBinaryMessage(const QByteArray& data);

    /// Opts in to opening again after a connection that ended abnormally:
    /// closeCode() CKyNAWebSocketProtocol::CloseCodeAbnormalDisconnection
    /// (dropped, refused, timed out; see \ref services_websocket_endings),
    /// never after close() nor after the peer closed with any code. Each
    /// attempt waits @p firstDelayMs, doubled per attempt up to
    /// @p maxDelayMs, is announced by reconnecting() and opens the request of
    /// the last open() again. A connection that succeeds starts the count
    /// afresh; after @p maxAttempts attempts in a row that failed it stops.
    /// close() and open() cancel a pending attempt. 0 attempts (the default)
    /// turns it off.
    void setReconnect(int maxAttempts, int firstDelayMs = 1000, int maxDelayMs = 30000);
    /// The attempts given to setReconnect(); 0 when off.
    int reconnectAttempts() const;

    /// Called from a slot of sslErrors(), lets the handshake under way go on
    /// despite every error reported. It holds for that handshake only: the
    /// next open() reports its errors again. Anywhere else it does nothing.
    void ignoreSslErrors();
    /// Like ignoreSslErrors(), for the listed errors only: the handshake still
    /// fails on any other.
    void ignoreSslErrors(const QList<QSslError>& errors);

    /// How the last connection ended, read once disconnected() is reported:
    /// the code of the closing handshake (the peer's when the peer closed, the
    /// one given to close() when this side did; CloseCodeNormal when the
    /// peer's close frame carried no code), or
    /// CKyNAWebSocketProtocol::CloseCodeAbnormalDisconnection when it ended
    /// without one (connection dropped, refused, aborted or timed out, opening
    /// handshake or TLS refused). 0 after construction and after each open()
    /// until the next disconnection. \ref services_websocket_endings lists
    /// every ending.
    CKyNAWebSocketProtocol::CloseCode closeCode() const;
    /// The reason that came with closeCode(); empty when there was none.
    QString closeReason() const;

    /// Emitted when the connection is open.
    CKyUISignal<void()>& connected();
    /// Carries the toolkit's socket error code (a `QAbstractSocket::SocketError`
    /// value as a plain int).
    CKyUISignal<void(int)>& error();
    /// Emitted when the connection is closed or lost.
    CKyUISignal<void()>& disconnected();
    /// Emitted with each text message received.
    CKyUISignal<void(const QString&)>& textMessageReceived();
    /// Emitted with each binary message received.
    CKyUISignal<void(const QByteArray&)>& binaryMessageReceived();
    /// Emitted with the bytes that reached the network: frames with their
    /// headers, the opening request, pings and the close included.
    CKyUISignal<void(long long)>& bytesWritten();
    /// Emitted after disconnected() when setReconnect() opens again: the
    /// attempt (1 for the first after a connection was lost) and the delay
    /// in milliseconds before the open.
    CKyUISignal<void(int, int)>& reconnecting();
    /// Emitted during the TLS handshake of a secure open() with the toolkit's
    /// list of certificate errors, before connected(). Unless a slot calls
    /// ignoreSslErrors(), the open fails: error() with the toolkit's
    /// `SslHandshakeFailedError` (13), then disconnected().
    CKyUISignal<void(const QList<QSslError>&)>& sslErrors();
    /// Emitted when the peer answers a ping(), with the round-trip time in
    /// milliseconds and the payload it echoed.
    CKyUISignal<void(long long, const QByteArray&)>& pong();
};
