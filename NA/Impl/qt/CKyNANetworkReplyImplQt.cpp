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

// The public attribute codes are Qt 5's. Qt 6 dropped the SPDY and
// follow-redirects attributes and renumbered the ones after them, so those
// codes are translated; a dropped one has no toolkit code (-1).
int ToolkitAttribute(int code)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    switch (code) {
    case CKyNANetworkRequest::SpdyAllowedAttribute:
    case CKyNANetworkRequest::SpdyWasUsedAttribute:
    case CKyNANetworkRequest::FollowRedirectsAttribute:
        return -1;
    case CKyNANetworkRequest::EmitAllUploadProgressSignalsAttribute:
        return QNetworkRequest::EmitAllUploadProgressSignalsAttribute;
    case CKyNANetworkRequest::HTTP2AllowedAttribute:
        return QNetworkRequest::Http2AllowedAttribute;
    case CKyNANetworkRequest::HTTP2WasUsedAttribute:
        return QNetworkRequest::Http2WasUsedAttribute;
    case CKyNANetworkRequest::OriginalContentLengthAttribute:
        return QNetworkRequest::OriginalContentLengthAttribute;
    case CKyNANetworkRequest::RedirectPolicyAttribute:
        return QNetworkRequest::RedirectPolicyAttribute;
    // Qt 5.15's attributes after RedirectPolicyAttribute.
    case CKyNANetworkRequest::RedirectPolicyAttribute + 1:
        return QNetworkRequest::Http2DirectAttribute;
    case CKyNANetworkRequest::RedirectPolicyAttribute + 2:
        return QNetworkRequest::ResourceTypeAttribute;
    case CKyNANetworkRequest::RedirectPolicyAttribute + 3:
        return QNetworkRequest::AutoDeleteReplyOnFinishAttribute;
    default:
        return code;
    }
#else
    return code;
#endif
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
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 5 says SPDY was not used wherever it says whether HTTP/2 was; Qt 6
    // has no SPDY left to ask about.
    if (code == CKyNANetworkRequest::SpdyWasUsedAttribute)
        return reply && reply->attribute(QNetworkRequest::Http2WasUsedAttribute).isValid() ? QVariant(false)
                                                                                           : QVariant();
#endif
    const int toolkitCode = ToolkitAttribute(code);
    return reply && toolkitCode >= 0 ? reply->attribute(QNetworkRequest::Attribute(toolkitCode)) : QVariant();
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
