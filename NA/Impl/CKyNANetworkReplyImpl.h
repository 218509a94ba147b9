#pragma once

#include "NA/CKyNANetworkReply.h"
#include "NA/Impl/qt/KyToolkitConnections.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMetaObject>
#include <QtCore/QPair>
#include <QtCore/QPointer>

#include <memory>

class QIODevice;
class QNetworkRequest;

// Turns the toolkit reply's signals into the library's and keeps the
// received headers from the moment the transfer finished.
class CKyNANetworkReplyImpl : public CKyUIObjectImpl
{
public:
    using HeaderPairs = QList<QPair<QByteArray, QByteArray>>;

    // Unread body a streaming reply holds at most; while it is full the
    // toolkit stops reading from the server.
    static constexpr long long StreamingBufferBytes = 1 << 20;

    // What re-issuing a request under this reply needs beyond the toolkit
    // reply at hand, for a followed redirect or a retry, and how a refused
    // redirect (or an abort between tries) ended the transfer.
    struct Redirects
    {
        bool follow = true;
        int left = 0;
        bool allowInsecure = false;
        // The upload, sent again after a 307 or 308.
        QByteArray body;
        bool fromDevice = false;
        QPointer<QIODevice> device;
        long long devicePos = 0;
        // The time-out guard, moved to each next toolkit reply.
        QPointer<QObject> guard;
        bool encryptedReported = false;
        CKyNANetworkReply::NetworkError error = CKyNANetworkReply::NoError;
        QString errorString;
        // Retries: further tries allowed, the next back-off, and the wait
        // decided for the try at hand (-1: this answer is the last).
        int triesLeft = 0;
        int backOffMs = 0;
        int retryInMs = -1;
        QPointer<QObject> wait;
    };

    CKyNANetworkReplyImpl(CKyNANetworkReply* owner, QObject* reply);
    ~CKyNANetworkReplyImpl() override;

    void setRequest(const CKyNANetworkRequest& request);
    const CKyNANetworkRequest* request() const { return m_request; }

    bool isFinished() const { return m_finished; }
    bool isRunning() const { return !m_finished; }

    CKyNANetworkReply::NetworkError errorCode() const;
    QString errorString() const;

    long long bytesAvailable() const;
    QByteArray readAll();
    long long pos() const;
    bool seek(long long pos);
    QByteArray read(long long maxSize);
    QJsonDocument readJson(QJsonParseError* error);
    QUrl url() const;

    void ignoreSslErrors();
    void ignoreSslErrors(const QList<QSslError>& errors);
    // Called by the manager for a streaming request, right after the start.
    void StartStreaming();
    // Called by the manager for a request that follows redirects.
    void FollowRedirects(std::unique_ptr<Redirects> redirects);

    QVariant attribute(CKyNANetworkRequest::Attribute code) const;

    QVariant header(CKyNANetworkRequest::KnownHeaders header) const;
    bool hasRawHeader(const QByteArray& name) const;
    QByteArray rawHeader(const QByteArray& name) const;
    QList<QByteArray> rawHeaderList() const { return m_headerNames; }
    const HeaderPairs& rawHeaderPairs() const { return m_headerPairs; }

    void abort();

    // Toolkit steps.
    void ConnectNetworkReplySignalsImpl();
    void DestroyNetworkReplyImpl();
    void SetRequestImpl(const CKyNANetworkRequest* request);
    CKyNANetworkReply::NetworkError ErrorImpl() const;
    QString ErrorStringImpl() const;
    QVariant AttributeImpl(CKyNANetworkRequest::Attribute code) const;
    void AbortImpl();
    QUrl UrlImpl() const;
    static QJsonDocument ParseJsonImpl(const QByteArray& body, QJsonParseError* error);
    void IgnoreSslErrorsImpl(const QList<QSslError>* errors);
    void StartStreamingImpl();
    void FollowRedirectsImpl();

    // Reactions to the toolkit reply.
    void OnDownloadProgress(long long received, long long total);
    void OnUploadProgress(long long sent, long long total);
    void OnEncrypted();
    void OnError(CKyNANetworkReply::NetworkError code, QIODevice* device);
    void OnFinished(int status, const HeaderPairs& pairs, QIODevice* device);
    void OnSslErrors(const QList<QSslError>& errors);
    void OnReadyRead();
    // A redirect the transfer may follow has arrived: its body is not the
    // client's.
    void OnRedirectArrived() { m_skipBody = true; }
    // Ends the transfer on the redirect at hand, which was not followed.
    void OnRedirectRefused(CKyNANetworkReply::NetworkError code, const QString& text, int status,
                           const HeaderPairs& pairs);

    CKyUISignal<void(long long, long long)> downloadProgress;
    CKyUISignal<void(long long, long long)> uploadProgress;
    CKyUISignal<void()> encrypted;
    CKyUISignal<void(CKyNANetworkReply::NetworkError)> error;
    CKyUISignal<void()> finished;
    CKyUISignal<void(const QList<QSslError>&)> sslErrors;
    CKyUISignal<void()> readyRead;

private:
    // Index of a name among the distinct names received, -1 if absent.
    int HeaderIndex(const QByteArray& name) const;
    // The device while it can be read: a failed or aborted toolkit reply is
    // closed, and reading it would make the toolkit complain.
    QIODevice* OpenDevice() const;
    // Starts the request the redirect at hand leads to, under this reply;
    // false when the transfer ends with this answer instead.
    bool FollowImpl(QObject* toolkitReply);
    // Whether the failed try at hand goes again; notes the wait if so.
    bool RetryImpl(QObject* toolkitReply, CKyNANetworkReply::NetworkError code);
    // Waits as noted, then issues the try again under this reply.
    void WaitAndRetryImpl(QObject* toolkitReply);
    // Issues `request` with `operation` (the toolkit's) in place of the
    // toolkit reply at hand, under this reply.
    void ReissueImpl(QObject* toolkitReply, const QNetworkRequest& request, int operation);

    const CKyNANetworkRequest* m_request = nullptr;
    bool m_finished = false;
    int m_httpStatusCode = 0;
    QIODevice* m_device = nullptr;
    bool m_ownsDevice = true;
    QList<QByteArray> m_headerNames;
    HeaderPairs m_headerPairs;
    bool m_streaming = false;
    bool m_skipBody = false;
    std::unique_ptr<Redirects> m_redirects;
    // Cut when the reply goes away, because the toolkit reply is deleted
    // later and might still report something in between.
    KyToolkitConnections m_connections;
};
