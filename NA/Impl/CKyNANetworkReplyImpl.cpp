#include "NA/Impl/CKyNANetworkReplyImpl.h"

#include "NA/Impl/CKyNANetworkRequestImpl.h"

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

// Every reply starts out sharing this one empty list; it is made when the
// library is loaded and released when it is unloaded.
const CKyNANetworkReplyImpl::HeaderPairs g_emptyHeaderPairs;

QNetworkReply* toolkitReply(CKyUIObject* owner)
{
    return qobject_cast<QNetworkReply*>(owner->getHandle());
}

} // namespace

CKyNANetworkReplyImpl::CKyNANetworkReplyImpl(CKyNANetworkReply* owner, QObject* reply)
    : CKyUIObjectImpl(owner)
    , downloadProgressSignal(owner)
    , uploadProgressSignal(owner)
    , encryptedSignal(owner)
    , errorSignal(owner)
    , finishedSignal(owner)
    , m_headerPairs(g_emptyHeaderPairs)
{
    owner->setHandle(reply);
    ConnectNetworkReplySignalsImpl();
    m_request = nullptr;
    m_finished = false;
}

CKyNANetworkReplyImpl::~CKyNANetworkReplyImpl()
{
    if (m_ownsDevice && m_device)
        delete m_device;
    m_device = nullptr;
    DestroyNetworkReplyImpl();
}

void CKyNANetworkReplyImpl::setRequest(const CKyNANetworkRequest& request)
{
    m_request = &request;
    SetRequestImpl(m_request);
}

CKyNANetworkReply::NetworkError CKyNANetworkReplyImpl::error() const
{
    return ErrorImpl();
}

QString CKyNANetworkReplyImpl::errorString() const
{
    return ErrorStringImpl();
}

long long CKyNANetworkReplyImpl::bytesAvailable() const
{
    return m_device ? m_device->bytesAvailable() : 0;
}

QByteArray CKyNANetworkReplyImpl::readAll()
{
    return m_device ? m_device->readAll() : QByteArray();
}

long long CKyNANetworkReplyImpl::pos() const
{
    return m_device ? m_device->pos() : 0;
}

bool CKyNANetworkReplyImpl::seek(long long pos)
{
    return m_device ? m_device->seek(pos) : false;
}

QVariant CKyNANetworkReplyImpl::attribute(CKyNANetworkRequest::Attribute code) const
{
    return AttributeImpl(code);
}

int CKyNANetworkReplyImpl::HeaderIndex(const QByteArray& name) const
{
    // QByteArray equality compares length and bytes: exact, case included,
    // and a null name equals only an empty one.
    return m_headerNames.indexOf(name);
}

QVariant CKyNANetworkReplyImpl::header(CKyNANetworkRequest::KnownHeaders header) const
{
    const int index = HeaderIndex(CKyNANetworkRequestImpl::GetKnowHeaderName(header));
    if (index < 0 || index >= m_headerPairs.size())
        return QVariant();
    // Raw bytes on purpose: a length stays text, it is not made a number.
    return QVariant(m_headerPairs.at(index).second);
}

bool CKyNANetworkReplyImpl::hasRawHeader(const QByteArray& name) const
{
    return HeaderIndex(name) >= 0;
}

QByteArray CKyNANetworkReplyImpl::rawHeader(const QByteArray& name) const
{
    // The index among distinct names is applied to the full pair list: after
    // a repeated name, later names answer with a shifted value. Kept as is.
    const int index = HeaderIndex(name);
    if (index < 0 || index >= m_headerPairs.size())
        return QByteArray();
    return m_headerPairs.at(index).second;
}

void CKyNANetworkReplyImpl::abort()
{
    AbortImpl();
}

void CKyNANetworkReplyImpl::OnDownloadProgress(long long received, long long total)
{
    downloadProgressSignal.Emit(received, total);
}

void CKyNANetworkReplyImpl::OnUploadProgress(long long sent, long long total)
{
    uploadProgressSignal.Emit(sent, total);
}

void CKyNANetworkReplyImpl::OnEncrypted()
{
    encryptedSignal.Emit();
}

void CKyNANetworkReplyImpl::OnError(CKyNANetworkReply::NetworkError code, QIODevice* device)
{
    // The body becomes readable now; the reply is not finished yet.
    m_device = device;
    errorSignal.Emit(code);
}

void CKyNANetworkReplyImpl::OnFinished(int status, const HeaderPairs& pairs, QIODevice* device)
{
    m_finished = true;
    m_device = device;
    if (!m_headerPairs.isSharedWith(pairs))
        m_headerPairs = pairs;
    // Never cleared: a second finish only adds names that are new.
    for (const auto& pair : pairs) {
        if (!m_headerNames.contains(pair.first))
            m_headerNames.append(pair.first);
    }
    m_httpStatusCode = status;
    finishedSignal.Emit();
}

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
