#pragma once

#include "NA/CKyNANetworkReply.h"
#include "UI/Impl/CKyUIObjectImpl.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMetaObject>
#include <QtCore/QPair>

class QIODevice;

// Turns the toolkit reply's signals into the library's and keeps the
// received headers from the moment the transfer finished.
class CKyNANetworkReplyImpl : public CKyUIObjectImpl
{
public:
    using HeaderPairs = QList<QPair<QByteArray, QByteArray>>;

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
    QUrl url() const;

    void ignoreSslErrors();
    void ignoreSslErrors(const QList<QSslError>& errors);
    // Called by the manager for a streaming request, right after the start.
    void StartStreaming();

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
    void IgnoreSslErrorsImpl(const QList<QSslError>* errors);
    void StartStreamingImpl();

    // Reactions to the toolkit reply.
    void OnDownloadProgress(long long received, long long total);
    void OnUploadProgress(long long sent, long long total);
    void OnEncrypted();
    void OnError(CKyNANetworkReply::NetworkError code, QIODevice* device);
    void OnFinished(int status, const HeaderPairs& pairs, QIODevice* device);
    void OnSslErrors(const QList<QSslError>& errors);
    void OnReadyRead();

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

    const CKyNANetworkRequest* m_request = nullptr;
    bool m_finished = false;
    int m_httpStatusCode = 0;
    QIODevice* m_device = nullptr;
    bool m_ownsDevice = true;
    QList<QByteArray> m_headerNames;
    HeaderPairs m_headerPairs;
    // Cut when the reply goes away, because the toolkit reply is deleted
    // later and might still report something in between.
    QList<QMetaObject::Connection> m_connections;
};
