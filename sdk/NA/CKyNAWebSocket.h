#pragma once

#include "commonui_export.h"

#include "NA/CKyNAWebSocketProtocol.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>

class CKyNANetworkRequest;

/// A receive-only web socket: reports connection, disconnection, errors and
/// incoming text messages; binary messages are not reported and nothing is
/// sent but the close.
///
/// Order of the signals is the toolkit's: a successful open() gives
/// connected(), then any number of textMessageReceived(), then disconnected()
/// after close() or when the connection is lost; a failed open() gives
/// error() (and disconnected() where the toolkit reports it), never
/// connected(). A message that arrives while the socket's signals are blocked
/// is dropped, not queued.
///
/// The client owns the web socket; deleting it closes the connection.
/// Deleting it from one of its own slots is fine: the toolkit socket is then
/// cut off and goes on the next pass of the event loop.
///
/// See \ref services.
class COMMONUI_EXPORT CKyNAWebSocket : public CKyUIObject
{
public:
    /// A closed socket that announces @p origin and speaks @p version of the
    /// protocol (CKyNAWebSocketProtocol::VersionLatest in practice).
    CKyNAWebSocket(const QString& origin, CKyNAWebSocketProtocol::Version version);
    /// Deletes the toolkit socket at once; it may still report disconnected()
    /// while doing so.
    ~CKyNAWebSocket() override;

    /// Opens the connection to the request's URL with its headers; the outcome
    /// arrives as connected() or error(). The request need not outlive the call.
    void open(const CKyNANetworkRequest& request);
    /// Closes the connection with a close code and a reason; disconnected()
    /// follows.
    void close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason);

    /// Emitted when the connection is open.
    CKyUISignal<void()>& connected();
    /// Carries the toolkit's socket error code (a `QAbstractSocket::SocketError`
    /// value as a plain int).
    CKyUISignal<void(int)>& error();
    /// Emitted when the connection is closed or lost.
    CKyUISignal<void()>& disconnected();
    /// Emitted with each text message received.
    CKyUISignal<void(const QString&)>& textMessageReceived();
};
