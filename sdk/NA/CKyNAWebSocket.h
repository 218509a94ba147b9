#pragma once

#include "commonui_export.h"

#include "NA/CKyNAWebSocketProtocol.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>

class CKyNANetworkRequest;

// A receive-only web socket: reports connection, disconnection, errors and
// incoming text messages; binary messages are not reported and nothing is
// sent but the close.
class COMMONUI_EXPORT CKyNAWebSocket : public CKyUIObject
{
public:
    CKyNAWebSocket(const QString& origin, CKyNAWebSocketProtocol::Version version);
    // Deletes the toolkit socket at once; it may still report disconnected()
    // while doing so.
    ~CKyNAWebSocket() override;

    // The request need not outlive the call.
    void open(const CKyNANetworkRequest& request);
    void close(CKyNAWebSocketProtocol::CloseCode code, const QString& reason);

    CKyUISignal<void()>& connected();
    // Carries the toolkit's socket error code.
    CKyUISignal<void(int)>& error();
    CKyUISignal<void()>& disconnected();
    CKyUISignal<void(const QString&)>& textMessageReceived();
};
