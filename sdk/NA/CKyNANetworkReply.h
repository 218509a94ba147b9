#pragma once

#include "commonui_export.h"

#include "NA/CKyNANetworkRequest.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtCore/QVariant>
#include <QtNetwork/QSslError>

class QObject;

/// One transfer started by the network access manager, whose body reads as
/// empty until error() or finished() (see
/// \ref behaviours_network "behaviours"). Signals come from the toolkit's event
/// loop; body and headers become readable with error() or finished(). The
/// caller deletes the reply, before its manager.
///
/// Order of the signals: downloadProgress() and uploadProgress() while the
/// transfer runs, encrypted() when a secure connection is set up; on failure
/// `error(code)` and then `finished()`, on success `finished()` alone. A
/// transfer aborted by abort() or by its time-out reports
/// `error(OperationCanceledError)` and then `finished()`. Each transfer
/// reports `finished()` exactly once, however it ends (see \ref
/// services_ends). While the reply's signals are blocked nothing is emitted
/// (nor queued), but isFinished() and the headers are still kept.
///
/// Two reports come only to clients that ask for them. sslErrors() comes
/// when the server's certificate is not trusted, before encrypted() or the
/// `error(SslHandshakeFailedError)` that follows unless the slot calls
/// ignoreSslErrors(). readyRead() comes only for a request with
/// CKyNANetworkRequest::setStreaming(), each time body data arrives, before
/// finished(). A streaming reply holds at most 1 MiB of unread body: while
/// that much waits, nothing more is read from the server, so a slow reader
/// slows the transfer down instead of filling memory.
///
/// **Lifetime.** Delete the reply when done, and before its manager; the
/// toolkit reply goes on the next pass of the event loop. Deleting the reply
/// from one of its own slots (typically finished()) is fine: that emission
/// ends there and the later slots of that signal are not called. The slot's
/// own captures die with the reply, so copy what the slot still needs into
/// locals before the `delete`.
///
/// \code
/// reply->finished().connect([reply] {
///     const QByteArray body = reply->readAll();
///     delete reply; // last: the lambda's captures are gone after this
///     use(body);
/// });
/// \endcode
///
/// See \ref services, and \ref errors_reply for every error code.
class COMMONUI_EXPORT CKyNANetworkReply : public CKyUIObject
{
public:
    /// The toolkit's codes, handed on unchanged.
    enum NetworkError : int {
        NoError = 0, ///< No error.

        ConnectionRefusedError = 1,           ///< The server refused the connection.
        RemoteHostClosedError = 2,            ///< The server closed the connection early.
        HostNotFoundError = 3,                ///< The host name was not found.
        TimeoutError = 4,                     ///< The toolkit's own time-out of the connection.
        OperationCanceledError = 5,           ///< Aborted, by abort() or by the request's time-out.
        SslHandshakeFailedError = 6,          ///< The TLS handshake failed.
        TemporaryNetworkFailureError = 7,     ///< The network was lost for a while.
        NetworkSessionFailedError = 8,        ///< The network session failed.
        BackgroundRequestNotAllowedError = 9, ///< Background requests are not allowed.
        TooManyRedirectsError = 10,           ///< Too many redirects.
        InsecureRedirectError = 11,           ///< A redirect from a secure to an insecure URL.
        UnknownNetworkError = 99,             ///< Another network error.

        ProxyConnectionRefusedError = 101,      ///< The proxy refused the connection.
        ProxyConnectionClosedError = 102,       ///< The proxy closed the connection early.
        ProxyNotFoundError = 103,               ///< The proxy host was not found.
        ProxyTimeoutError = 104,                ///< The proxy timed out.
        ProxyAuthenticationRequiredError = 105, ///< The proxy requires authentication.
        UnknownProxyError = 199,                ///< Another proxy error.

        ContentAccessDenied = 201,               ///< Access denied (HTTP 403).
        ContentOperationNotPermittedError = 202, ///< The operation is not permitted (HTTP 405).
        ContentNotFoundError = 203,              ///< Not found (HTTP 404).
        AuthenticationRequiredError = 204,       ///< Authentication required (HTTP 401).
        ContentReSendError = 205,                ///< The request had to be sent again and could not be.
        ContentConflictError = 206,              ///< Conflict (HTTP 409).
        ContentGoneError = 207,                  ///< Gone (HTTP 410).
        UnknownContentError = 299,               ///< Another content error (other HTTP 4xx).

        ProtocolUnknownError = 301,          ///< The protocol is not known.
        ProtocolInvalidOperationError = 302, ///< The operation is invalid for this protocol.
        ProtocolFailure = 399,               ///< A breakdown of the protocol.

        InternalServerError = 401,          ///< Internal server error (HTTP 500).
        OperationNotImplementedError = 402, ///< Not implemented (HTTP 501).
        ServiceUnavailableError = 403,      ///< Service unavailable (HTTP 503).
        UnknownServerError = 499            ///< Another server error (other HTTP 5xx).
    };

    /// Wraps a toolkit reply; anything else is kept as the handle but never signals.
    /// The manager creates replies; clients receive them from its operations.
    explicit CKyNANetworkReply(QObject* reply);
    ~CKyNANetworkReply() override;

    /// Remembers the address, not a copy: the request must outlive request().
    /// The manager calls it with the request the transfer was started with.
    void setRequest(const CKyNANetworkRequest& request);
    /// The address of the request object given to the manager (null if never
    /// set); valid only while the client keeps that request alive.
    const CKyNANetworkRequest* request() const;

    /// True once finished() was reported.
    bool isFinished() const;
    /// True until finished() was reported, also after an error() that
    /// finished() has not followed yet.
    bool isRunning() const;

    /// The transfer's error code; NoError while there is none. On a
    /// non-const reply `error()` names the signal: read networkError() there.
    NetworkError error() const;
    /// The transfer's error code, as error() const answers it, readable on a
    /// non-const reply (in a slot: `reply->networkError() != NoError`).
    NetworkError networkError() const;
    /// The toolkit's text for the error; empty without a toolkit reply.
    QString errorString() const;

    /// Unread bytes of the body: from the start for a streaming request
    /// (CKyNANetworkRequest::setStreaming()), else once error() or
    /// finished() was reported; 0 before.
    long long bytesAvailable() const;
    /// The unread body received so far: from the start for a streaming
    /// request, else once error() or finished() was reported; an empty array
    /// before, even if data has arrived.
    QByteArray readAll();
    /// Always 0 in practice: the body is a stream without positions, read in
    /// order (seek() fails).
    long long pos() const;
    /// Moves the read position; false before error() or finished().
    bool seek(long long pos);
    /// Takes at most @p maxSize bytes of the body. Readable from the start
    /// for a streaming request (CKyNANetworkRequest::setStreaming()), else
    /// once error() or finished() was reported; an empty array before.
    ///
    /// Reading a reply that failed, was aborted or timed out never makes the
    /// toolkit complain: readAll(), read() and seek() then return neutral
    /// values, like the other reads.
    QByteArray read(long long maxSize);
    /// Takes the rest of the body, as readAll() does, and parses it as JSON.
    /// A body that is no JSON object or array gives a null document, and
    /// @p error (when given) says why and where: its `error` is not
    /// QJsonParseError::NoError, its `offset` is the byte at which parsing
    /// stopped and its errorString() the toolkit's message. An empty body
    /// (before error() or finished(), say) is such a failure too.
    QJsonDocument readJson(QJsonParseError* error = nullptr);

    /// The URL of the last request this transfer made: the request's URL, or
    /// the target of the last redirect followed
    /// (CKyNANetworkRequest::setFollowRedirects()). A redirect that was not
    /// followed (too many, or from https to http) is never fetched: url() then
    /// names the page that answered with it. Empty without a toolkit reply.
    QUrl url() const;

    /// Accepts every TLS error of this transfer's certificate check; call it
    /// from a slot of sslErrors(), before the slot returns. The connection
    /// then goes on as if the certificate were trusted.
    void ignoreSslErrors();
    /// Accepts only the listed TLS errors (compare with the list sslErrors()
    /// reported); any other error still fails the handshake. Call it from a
    /// slot of sslErrors().
    void ignoreSslErrors(const QList<QSslError>& errors);

    /// The toolkit reply's attribute, for instance the HTTP status code with
    /// CKyNANetworkRequest::HttpStatusCodeAttribute; invalid without a toolkit
    /// reply.
    QVariant attribute(CKyNANetworkRequest::Attribute code) const;

    /// Looked up in the headers kept when the transfer finished; values are
    /// the raw bytes, names match exactly.
    ///
    /// A known header comes back as a QByteArray, never converted (a
    /// Content-Length is bytes, not a number); a header received in lower case
    /// does not answer. Invalid before finished() and for codes outside
    /// CKyNANetworkRequest::KnownHeaders.
    QVariant header(CKyNANetworkRequest::KnownHeaders header) const;
    /// Whether a header of exactly this name was received; false before
    /// finished().
    bool hasRawHeader(const QByteArray& name) const;
    /// The value received under this name; a null array if none.
    ///
    /// When the server sent a name twice, names after it are answered with the
    /// value at a shifted position (pairs (A, 1), (A, 2), (B, 3) give 1 for A
    /// and 2 for B); read rawHeaderPairs() for such headers.
    QByteArray rawHeader(const QByteArray& name) const;
    /// The distinct names received, in order of first occurrence.
    QList<QByteArray> rawHeaderList() const;
    /// Every header received, duplicates included, in the server's order.
    const QList<QPair<QByteArray, QByteArray>>& rawHeaderPairs() const;

    /// Ends the transfer now: the reply reports `error(OperationCanceledError)`
    /// and then `finished()`.
    void abort();

    /// Bytes received and bytes in total (-1 when unknown), while the
    /// transfer runs.
    CKyUISignal<void(long long, long long)>& downloadProgress();
    /// Bytes sent and bytes in total, while the upload runs.
    CKyUISignal<void(long long, long long)>& uploadProgress();
    /// Emitted when a secure connection has been set up; once per transfer,
    /// also when it follows redirects.
    CKyUISignal<void()>& encrypted();
    /// Emitted with the error code when the transfer fails, before finished().
    /// From here on the body is readable.
    CKyUISignal<void(CKyNANetworkReply::NetworkError)>& error();
    /// Emitted once when the transfer ends, successful or not; the headers and
    /// the body are readable from here on.
    CKyUISignal<void()>& finished();
    /// Emitted with the toolkit's list of problems with the server's
    /// certificate, before the handshake goes on or fails. A slot may call
    /// ignoreSslErrors(); without it the transfer fails with
    /// `error(SslHandshakeFailedError)` and `finished()`.
    CKyUISignal<void(const QList<QSslError>&)>& sslErrors();
    /// For a streaming request only (CKyNANetworkRequest::setStreaming()):
    /// emitted each time body data has arrived and can be taken with read()
    /// or readAll(); the last one comes before finished().
    CKyUISignal<void()>& readyRead();
};
