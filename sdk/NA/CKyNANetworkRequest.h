#pragma once

#include "commonui_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QUrl>
#include <QtCore/QVariant>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslKey>

class QNetworkRequest;
class CKyNANetworkRequestImpl;

/// What a client fills in before a transfer or a web-socket open, of which a
/// copy keeps only the URL given to setUrl() (see
/// \ref behaviours_network "behaviours"). It holds a URL, known and raw
/// headers, time-outs and options. A plain value, outside the object tree;
/// every setter also writes the toolkit request that the manager and the web
/// socket hand to the toolkit.
///
/// The getters answer from what was set on this object, never from the
/// toolkit request. Copying and assigning are deliberately shallow: the copy
/// carries only the URL given to setUrl() (the constructor's URL does not
/// count), and neither headers, time-outs nor any of the TLS, redirect and
/// streaming options. Build each request in place and
/// pass it by reference.
///
/// \code
/// CKyNANetworkRequest request(QUrl("http://127.0.0.1:8080/status"));
/// request.setRawHeader("Accept", "application/json");
/// request.setRequestTimeout(5000);
/// CKyNANetworkReply* reply = manager.get(request);
/// \endcode
///
/// See \ref services.
class COMMONUI_EXPORT CKyNANetworkRequest
{
public:
    /// Headers with a known name; the toolkit's values, handed on unchanged.
    enum KnownHeaders : int {
        ContentTypeHeader = 0,        ///< "Content-Type".
        ContentLengthHeader = 1,      ///< "Content-Length".
        LocationHeader = 2,           ///< "Location".
        LastModifiedHeader = 3,       ///< "Last-Modified".
        CookieHeader = 4,             ///< "Cookie".
        SetCookieHeader = 5,          ///< "Set-Cookie".
        ContentDispositionHeader = 6, ///< "Content-Disposition".
        UserAgentHeader = 7,          ///< "User-Agent".
        ServerHeader = 8              ///< "Server".
    };

    /// Attributes a reply answers through CKyNANetworkReply::attribute(); the
    /// toolkit's values, handed on unchanged.
    enum Attribute : int {
        HttpStatusCodeAttribute = 0,                ///< The HTTP status code, an int.
        HttpReasonPhraseAttribute = 1,              ///< The HTTP reason phrase.
        RedirectionTargetAttribute = 2,             ///< The redirection target, a QUrl.
        ConnectionEncryptedAttribute = 3,           ///< Whether the connection was encrypted.
        CacheLoadControlAttribute = 4,              ///< Cache load control.
        CacheSaveControlAttribute = 5,              ///< Cache save control.
        SourceIsFromCacheAttribute = 6,             ///< Whether the data came from the cache.
        DoNotBufferUploadDataAttribute = 7,         ///< Upload data is not buffered.
        HttpPipeliningAllowedAttribute = 8,         ///< HTTP pipelining allowed.
        HttpPipeliningWasUsedAttribute = 9,         ///< HTTP pipelining was used.
        CustomVerbAttribute = 10,                   ///< A custom HTTP verb.
        CookieLoadControlAttribute = 11,            ///< Cookie load control.
        AuthenticationReuseAttribute = 12,          ///< Authentication reuse.
        CookieSaveControlAttribute = 13,            ///< Cookie save control.
        MaximumDownloadBufferSizeAttribute = 14,    ///< Maximum download buffer size.
        DownloadBufferAttribute = 15,               ///< The download buffer.
        SynchronousRequestAttribute = 16,           ///< A synchronous request.
        BackgroundRequestAttribute = 17,            ///< A background request.
        SpdyAllowedAttribute = 18,                  ///< SPDY allowed.
        SpdyWasUsedAttribute = 19,                  ///< SPDY was used.
        EmitAllUploadProgressSignalsAttribute = 20, ///< Every upload progress is reported.
        FollowRedirectsAttribute = 21,              ///< Redirects are followed.
        HTTP2AllowedAttribute = 22,                 ///< HTTP/2 allowed.
        HTTP2WasUsedAttribute = 23,                 ///< HTTP/2 was used.
        OriginalContentLengthAttribute = 24,        ///< The original content length.
        RedirectPolicyAttribute = 25,               ///< The redirect policy.
        User = 1000,                                ///< First value for the application's own attributes.
        UserMax = 32767                             ///< Last value for the application's own attributes.
    };

    /// A request for @p url, without headers and with time-out 0. The URL
    /// reaches only the toolkit request: url() stays empty until setUrl().
    explicit CKyNANetworkRequest(const QUrl& url = QUrl());
    /// Copying carries over url() only: headers and time-out stay behind.
    /// A copy of a request made by the constructor alone carries an empty URL.
    CKyNANetworkRequest(const CKyNANetworkRequest& other);
    /// Replaces the implementation without freeing the previous one.
    /// Like the copy, it takes over url() only.
    CKyNANetworkRequest& operator=(const CKyNANetworkRequest& other);
    /// Deletes the toolkit request.
    ~CKyNANetworkRequest();

    /// The URL given with setUrl; the constructor's URL reaches only the
    /// toolkit request.
    QUrl url() const;
    /// Stores the URL and writes it into the toolkit request.
    void setUrl(const QUrl& url);

    /// Sets (or replaces) a known header, also in the toolkit request. A value
    /// whose bytes on the wire would hold CR, LF or NUL is refused like a raw
    /// header (see setRawHeader()).
    void setHeader(KnownHeaders header, const QVariant& value);
    /// The value set for the header, or an invalid QVariant.
    QVariant header(KnownHeaders header) const;

    /// Sets (or replaces) the header, also in the toolkit request. Names match
    /// exactly, case included. A name that is not a token, or a name or value
    /// holding CR, LF or NUL, would split the request: such a header is never
    /// sent, the request stays as it was and one warning says why.
    void setRawHeader(const QByteArray& name, const QByteArray& value);
    /// A QVariant holding the value as a QByteArray, or an invalid QVariant
    /// when no header of exactly this name was set.
    QVariant rawHeader(const QByteArray& name) const;
    /// Byte order of the names, not the order of setting.
    /// Capitals come first: beta, alpha, Gamma are listed Gamma, alpha, beta.
    QList<QByteArray> rawHeaderList() const;

    /// Milliseconds; 0 or less leaves the manager's default in force.
    /// The manager reads it when it starts a transfer (default 30000 ms).
    void setRequestTimeout(int ms);
    /// The stored time-out; 0 unless set.
    int requestTimeout() const;

    /// Milliseconds without a byte received or sent after which the transfer
    /// is aborted, reporting `error(OperationCanceledError)` and then
    /// `finished()` like the whole-transfer time-out; 0 or less (the default)
    /// sets no such bound. Both bounds apply together: use this one for long
    /// downloads and a generous requestTimeout(). Neither fires before its
    /// time. A streaming reader that leaves its full buffer unread for this
    /// long counts as silence too.
    void setInactivityTimeout(int ms);
    /// The stored inactivity time-out; 0 unless set.
    int inactivityTimeout() const;

    /// Certificates of authorities to trust for this request on top of the
    /// system's, for servers whose certificate comes from a private or
    /// self-signed authority. An empty list (the default) trusts the system's
    /// authorities alone. Also used by a web socket opened with this request.
    void setCaCertificates(const QList<QSslCertificate>& certificates);
    /// The authorities given with setCaCertificates(); empty unless set.
    QList<QSslCertificate> caCertificates() const;
    /// The certificate and private key this request presents to a server that
    /// asks for one; null values (the default) present none.
    void setClientCertificate(const QSslCertificate& certificate, const QSslKey& key);
    /// The client certificate; null unless set.
    QSslCertificate clientCertificate() const;
    /// The client certificate's private key; null unless set.
    QSslKey clientKey() const;

    /// Whether the transfer follows redirects (3xx with a Location). Off by
    /// default: the reply then finishes with the redirect itself, status and
    /// Location header included. When on, the reply reports only the last
    /// answer, and CKyNANetworkReply::url() tells where it came from. A
    /// redirect from https to http fails with InsecureRedirectError unless
    /// setAllowInsecureRedirects() says otherwise; more than
    /// maximumRedirects() redirects fail with TooManyRedirectsError. A 3xx
    /// without a usable Location is the answer, status and body intact.
    ///
    /// Credentials stay with their origin: when a redirect leads to another
    /// origin (scheme, host or port differs), the next request and all after
    /// it carry no Authorization, Proxy-Authorization or Cookie header. On
    /// the same origin they stay. A client that means to send its credentials
    /// elsewhere leaves following off and makes the next request itself.
    ///
    /// 307 and 308 repeat the request with its method and body; the other
    /// redirects turn it into a GET without a body (a HEAD stays a HEAD). The
    /// time-outs bound all the requests together.
    void setFollowRedirects(bool follow);
    /// Whether redirects are followed; false unless set.
    bool followRedirects() const;
    /// How many redirects one transfer follows at most; 10 unless set.
    void setMaximumRedirects(int count);
    /// The stored limit of redirects.
    int maximumRedirects() const;
    /// Lets a followed redirect lead from https to http; false by default.
    void setAllowInsecureRedirects(bool allow);
    /// Whether redirects from https to http are followed.
    bool allowInsecureRedirects() const;

    /// Makes the reply report CKyNANetworkReply::readyRead() each time body
    /// data arrives and makes the body readable at once, so that a client
    /// consumes a large body while it arrives instead of holding all of it
    /// until finished(). The reply then holds at most 1 MiB of unread body
    /// and reads more from the server as the client reads. Off by default:
    /// no readyRead(), nothing readable before error() or finished().
    void setStreaming(bool streaming);
    /// Whether the reply streams its body; false unless set.
    bool streaming() const;

    /// Credentials for a server that answers 401 (basic or digest): sent
    /// when it asks, never before, and at most once; when they are refused the
    /// manager's CKyNANetworkAccessManager::authenticationRequired() is asked
    /// once more, and then the transfer ends with
    /// CKyNANetworkReply::AuthenticationRequiredError. An empty @p user (the
    /// default) gives none. Like Authorization headers, they are dropped when
    /// a followed redirect leaves the origin. See \ref services_signin.
    void setCredentials(const QString& user, const QString& password);
    /// The user name given with setCredentials(); empty unless set.
    QString user() const;
    /// The password given with setCredentials(); empty unless set.
    QString password() const;
    /// Sets the header "Authorization: Bearer <token>" through
    /// setRawHeader(), with its check: a token holding CR, LF or NUL is
    /// refused, and the request stays as it was.
    void setBearerToken(const QByteArray& token);

    /// Opt-in retries of a GET, HEAD, PUT, DELETE or OPTIONS: after a failed
    /// connection (refused, closed early, lost) or a 502, 503 or 504, the
    /// request goes again, up to @p tries tries in all. Each wait doubles,
    /// starting at @p initialDelayMs, with random jitter (half to all of it);
    /// a server's Retry-After (seconds or an HTTP date) sets the wait
    /// instead. The time-outs bound all tries and waits together: a wait that
    /// would outlast the request's time-out is not taken, and the last
    /// answer is the reply's. The reply reports one finished(), only for the
    /// last try. POST and other verbs are never retried. @p tries of 1 or
    /// less (the default) never retries. See \ref services_retries.
    void setRetryPolicy(int tries, int initialDelayMs = 500);
    /// Tries in all; 1 unless set.
    int retryTries() const;
    /// The first wait in milliseconds; 500 unless set.
    int retryInitialDelay() const;

    /// The toolkit request that every setter writes; for the library's own
    /// use.
    QNetworkRequest* getHandle() const;
    /// Replaces the toolkit request pointer without deleting the previous
    /// one; for the library's own use.
    void setHandle(QNetworkRequest* handle);

private:
    CKyNANetworkRequestImpl* m_impl;
    QNetworkRequest* m_handle;
};
