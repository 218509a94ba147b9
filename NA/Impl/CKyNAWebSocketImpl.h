#pragma once

#include "NA/CKyNAWebSocket.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <QtCore/QList>
#include <QtCore/QMetaObject>

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

    // Toolkit steps.
    void CreateWebSocketImpl(const QString& origin, CKyNAWebSocketProtocol::Version version);
    void DestroyWebSocketImpl();
    void OpenImpl(const CKyNANetworkRequest& request);
    void CloseImpl(CKyNAWebSocketProtocol::CloseCode code, const QString& reason);

    // Reactions to the toolkit socket.
    void OnConnected();
    void OnError(int code);
    void OnDisconnected();
    void OnTextMessageReceived(const QString& message);

    CKyUISignal<void()> connected;
    CKyUISignal<void(int)> error;
    CKyUISignal<void()> disconnected;
    CKyUISignal<void(const QString&)> textMessageReceived;

private:
    QList<QMetaObject::Connection> m_connections;
};
