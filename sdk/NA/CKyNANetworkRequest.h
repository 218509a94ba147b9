#pragma once

#include "commonui_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QUrl>
#include <QtCore/QVariant>

class QNetworkRequest;
class CKyNANetworkRequestImpl;

/// What a client fills in before a transfer or a web-socket open: a URL, known
/// and raw headers and a time-out. A plain value, outside the object tree; every
/// setter also writes the toolkit request that the manager and the web socket
/// hand to the toolkit.
///
/// The getters answer from what was set on this object, never from the
/// toolkit request. Copying and assigning are deliberately shallow: the copy
/// carries only the URL given to setUrl() (the constructor's URL does not
/// count), and neither headers nor time-out. Build each request in place and
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

    /// Sets (or replaces) a known header, also in the toolkit request.
    void setHeader(KnownHeaders header, const QVariant& value);
    /// The value set for the header, or an invalid QVariant.
    QVariant header(KnownHeaders header) const;

    /// Sets (or replaces) the header, also in the toolkit request. Names match
    /// exactly, case included.
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
