#pragma once

#include "commonui_export.h"

#include "NA/CKyNANetworkRequest.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QObject;

// One transfer started by the network access manager. Signals come from the
// toolkit's event loop; body and headers become readable with error() or
// finished(). The caller deletes the reply, before its manager.
class COMMONUI_EXPORT CKyNANetworkReply : public CKyUIObject
{
public:
    // The toolkit's codes, handed on unchanged.
    enum NetworkError : int {
        NoError = 0,

        ConnectionRefusedError = 1,
        RemoteHostClosedError = 2,
        HostNotFoundError = 3,
        TimeoutError = 4,
        OperationCanceledError = 5,
        SslHandshakeFailedError = 6,
        TemporaryNetworkFailureError = 7,
        NetworkSessionFailedError = 8,
        BackgroundRequestNotAllowedError = 9,
        TooManyRedirectsError = 10,
        InsecureRedirectError = 11,
        UnknownNetworkError = 99,

        ProxyConnectionRefusedError = 101,
        ProxyConnectionClosedError = 102,
        ProxyNotFoundError = 103,
        ProxyTimeoutError = 104,
        ProxyAuthenticationRequiredError = 105,
        UnknownProxyError = 199,

        ContentAccessDenied = 201,
        ContentOperationNotPermittedError = 202,
        ContentNotFoundError = 203,
        AuthenticationRequiredError = 204,
        ContentReSendError = 205,
        ContentConflictError = 206,
        ContentGoneError = 207,
        UnknownContentError = 299,

        ProtocolUnknownError = 301,
        ProtocolInvalidOperationError = 302,
        ProtocolFailure = 399,

        InternalServerError = 401,
        OperationNotImplementedError = 402,
        ServiceUnavailableError = 403,
        UnknownServerError = 499
    };

    // Wraps a toolkit reply; anything else is kept as the handle but never signals.
    explicit CKyNANetworkReply(QObject* reply);
    ~CKyNANetworkReply() override;

    // Remembers the address, not a copy: the request must outlive request().
    void setRequest(const CKyNANetworkRequest& request);
    const CKyNANetworkRequest* request() const;

    bool isFinished() const;
    bool isRunning() const;

    NetworkError error() const;
    QString errorString() const;

    // Read from the toolkit reply once error() or finished() was reported;
    // neutral values before.
    long long bytesAvailable() const;
    QByteArray readAll();
    long long pos() const;
    bool seek(long long pos);

    QVariant attribute(CKyNANetworkRequest::Attribute code) const;

    // Looked up in the headers kept when the transfer finished; values are
    // the raw bytes, names match exactly.
    QVariant header(CKyNANetworkRequest::KnownHeaders header) const;
    bool hasRawHeader(const QByteArray& name) const;
    QByteArray rawHeader(const QByteArray& name) const;
    QList<QByteArray> rawHeaderList() const;
    const QList<QPair<QByteArray, QByteArray>>& rawHeaderPairs() const;

    void abort();

    CKyUISignal<void(long long, long long)>& downloadProgress();
    CKyUISignal<void(long long, long long)>& uploadProgress();
    CKyUISignal<void()>& encrypted();
    CKyUISignal<void(CKyNANetworkReply::NetworkError)>& error();
    CKyUISignal<void()>& finished();
};
