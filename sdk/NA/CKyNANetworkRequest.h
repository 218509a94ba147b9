#pragma once

#include "commonui_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QUrl>
#include <QtCore/QVariant>

class QNetworkRequest;
class CKyNANetworkRequestImpl;

// What a client fills in before a transfer or a web-socket open: a URL, known
// and raw headers and a time-out. A plain value, outside the object tree; every
// setter also writes the toolkit request that the manager and the web socket
// hand to the toolkit.
class COMMONUI_EXPORT CKyNANetworkRequest
{
public:
    // The toolkit's values, handed on unchanged.
    enum KnownHeaders : int {
        ContentTypeHeader = 0,
        ContentLengthHeader = 1,
        LocationHeader = 2,
        LastModifiedHeader = 3,
        CookieHeader = 4,
        SetCookieHeader = 5,
        ContentDispositionHeader = 6,
        UserAgentHeader = 7,
        ServerHeader = 8
    };

    enum Attribute : int {
        HttpStatusCodeAttribute = 0,
        HttpReasonPhraseAttribute = 1,
        RedirectionTargetAttribute = 2,
        ConnectionEncryptedAttribute = 3,
        CacheLoadControlAttribute = 4,
        CacheSaveControlAttribute = 5,
        SourceIsFromCacheAttribute = 6,
        DoNotBufferUploadDataAttribute = 7,
        HttpPipeliningAllowedAttribute = 8,
        HttpPipeliningWasUsedAttribute = 9,
        CustomVerbAttribute = 10,
        CookieLoadControlAttribute = 11,
        AuthenticationReuseAttribute = 12,
        CookieSaveControlAttribute = 13,
        MaximumDownloadBufferSizeAttribute = 14,
        DownloadBufferAttribute = 15,
        SynchronousRequestAttribute = 16,
        BackgroundRequestAttribute = 17,
        SpdyAllowedAttribute = 18,
        SpdyWasUsedAttribute = 19,
        EmitAllUploadProgressSignalsAttribute = 20,
        FollowRedirectsAttribute = 21,
        HTTP2AllowedAttribute = 22,
        HTTP2WasUsedAttribute = 23,
        OriginalContentLengthAttribute = 24,
        RedirectPolicyAttribute = 25,
        User = 1000,
        UserMax = 32767
    };

    explicit CKyNANetworkRequest(const QUrl& url = QUrl());
    // Copying carries over url() only: headers and time-out stay behind.
    CKyNANetworkRequest(const CKyNANetworkRequest& other);
    // Replaces the implementation without freeing the previous one.
    CKyNANetworkRequest& operator=(const CKyNANetworkRequest& other);
    ~CKyNANetworkRequest();

    // The URL given with setUrl; the constructor's URL reaches only the
    // toolkit request.
    QUrl url() const;
    void setUrl(const QUrl& url);

    void setHeader(KnownHeaders header, const QVariant& value);
    QVariant header(KnownHeaders header) const;

    // Names match exactly, case included.
    void setRawHeader(const QByteArray& name, const QByteArray& value);
    QVariant rawHeader(const QByteArray& name) const;
    // Byte order of the names, not the order of setting.
    QList<QByteArray> rawHeaderList() const;

    // Milliseconds; 0 or less leaves the manager's default in force.
    void setRequestTimeout(int ms);
    int requestTimeout() const;

    QNetworkRequest* getHandle() const;
    void setHandle(QNetworkRequest* handle);

private:
    CKyNANetworkRequestImpl* m_impl;
    QNetworkRequest* m_handle;
};
