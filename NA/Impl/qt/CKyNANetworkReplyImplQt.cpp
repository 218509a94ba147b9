#include "NA/Impl/CKyNANetworkReplyImpl.h"

#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

static_assert(int(CKyNANetworkReply::OperationCanceledError) == int(QNetworkReply::OperationCanceledError),
              "");
static_assert(int(CKyNANetworkReply::InsecureRedirectError) == int(QNetworkReply::InsecureRedirectError), "");
static_assert(int(CKyNANetworkReply::UnknownProxyError) == int(QNetworkReply::UnknownProxyError), "");
static_assert(int(CKyNANetworkReply::ContentGoneError) == int(QNetworkReply::ContentGoneError), "");
static_assert(int(CKyNANetworkReply::ProtocolFailure) == int(QNetworkReply::ProtocolFailure), "");
static_assert(int(CKyNANetworkReply::UnknownServerError) == int(QNetworkReply::UnknownServerError), "");

namespace
{

QNetworkReply* toolkitReply(CKyUIObject* owner)
{
    return qobject_cast<QNetworkReply*>(owner->getHandle());
}

} // namespace

void CKyNANetworkReplyImpl::ConnectNetworkReplySignalsImpl()
{
    m_ownsDevice = false;
    QNetworkReply* reply = toolkitReply(owner());
    if (!reply)
        return;

    m_connections << QObject::connect(
        reply, &QNetworkReply::downloadProgress, reply,
        [this](qint64 received, qint64 total) { OnDownloadProgress(received, total); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        reply, &QNetworkReply::uploadProgress, reply,
        [this](qint64 sent, qint64 total) { OnUploadProgress(sent, total); }, Qt::DirectConnection);
    m_connections << QObject::connect(
        reply, &QNetworkReply::encrypted, reply, [this] { OnEncrypted(); }, Qt::DirectConnection);
    // 5.15 deprecates the error signal in favour of errorOccurred; older
    // versions have only the former.
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    const auto errorSignalOfReply = &QNetworkReply::errorOccurred;
#else
    const auto errorSignalOfReply = QOverload<QNetworkReply::NetworkError>::of(&QNetworkReply::error);
#endif
    m_connections << QObject::connect(
        reply, errorSignalOfReply, reply,
        [this, reply](QNetworkReply::NetworkError code) {
            OnError(CKyNANetworkReply::NetworkError(code), reply);
        },
        Qt::DirectConnection);
    m_connections << QObject::connect(
        reply, &QNetworkReply::finished, reply,
        [this, reply] {
            OnFinished(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(),
                       reply->rawHeaderPairs(), reply);
        },
        Qt::DirectConnection);
    // Only a client that listens can accept the errors; without one the
    // handshake fails as it always did.
    m_connections << QObject::connect(
        reply, &QNetworkReply::sslErrors, reply,
        [this](const QList<QSslError>& errors) { OnSslErrors(errors); }, Qt::DirectConnection);
    // Should the toolkit reply die first (its manager deleted), forget it
    // rather than reach for a dangling pointer.
    m_connections << QObject::connect(reply, &QObject::destroyed, [this] {
        owner()->setHandle(nullptr);
        m_device = nullptr;
    });
}

void CKyNANetworkReplyImpl::DestroyNetworkReplyImpl()
{
    for (const QMetaObject::Connection& connection : qAsConst(m_connections))
        QObject::disconnect(connection);
    m_connections.clear();
    if (QNetworkReply* reply = toolkitReply(owner()))
        reply->deleteLater();
    owner()->setHandle(nullptr);
}

void CKyNANetworkReplyImpl::SetRequestImpl(const CKyNANetworkRequest*) {}

CKyNANetworkReply::NetworkError CKyNANetworkReplyImpl::ErrorImpl() const
{
    QNetworkReply* reply = toolkitReply(owner());
    return reply ? CKyNANetworkReply::NetworkError(reply->error()) : CKyNANetworkReply::NoError;
}

QString CKyNANetworkReplyImpl::ErrorStringImpl() const
{
    QNetworkReply* reply = toolkitReply(owner());
    return reply ? reply->errorString() : QString();
}

QVariant CKyNANetworkReplyImpl::AttributeImpl(CKyNANetworkRequest::Attribute code) const
{
    QNetworkReply* reply = toolkitReply(owner());
    return reply ? reply->attribute(QNetworkRequest::Attribute(code)) : QVariant();
}

void CKyNANetworkReplyImpl::AbortImpl()
{
    if (QNetworkReply* reply = toolkitReply(owner()))
        reply->abort();
}

QUrl CKyNANetworkReplyImpl::UrlImpl() const
{
    QNetworkReply* reply = toolkitReply(owner());
    return reply ? reply->url() : QUrl();
}

void CKyNANetworkReplyImpl::IgnoreSslErrorsImpl(const QList<QSslError>* errors)
{
    QNetworkReply* reply = toolkitReply(owner());
    if (!reply)
        return;
    if (errors)
        reply->ignoreSslErrors(*errors);
    else
        reply->ignoreSslErrors();
}

void CKyNANetworkReplyImpl::StartStreamingImpl()
{
    QNetworkReply* reply = toolkitReply(owner());
    if (!reply)
        return;
    // The body is readable from now on, not only from error or finish.
    m_device = reply;
    m_connections << QObject::connect(
        reply, &QIODevice::readyRead, reply, [this] { OnReadyRead(); }, Qt::DirectConnection);
}
