#include "NA/Impl/CKyNANetworkReplyImpl.h"

#include "NA/Impl/CKyNANetworkRequestImpl.h"

#include <QtCore/QIODevice>

namespace
{

// Every reply starts out sharing this one empty list; it is made when the
// library is loaded and released when it is unloaded.
const CKyNANetworkReplyImpl::HeaderPairs g_emptyHeaderPairs;

} // namespace

CKyNANetworkReplyImpl::CKyNANetworkReplyImpl(CKyNANetworkReply* owner, QObject* reply)
    : CKyUIObjectImpl(owner)
    , downloadProgress(owner)
    , uploadProgress(owner)
    , encrypted(owner)
    , error(owner)
    , finished(owner)
    , sslErrors(owner)
    , readyRead(owner)
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

CKyNANetworkReply::NetworkError CKyNANetworkReplyImpl::errorCode() const
{
    // A refused redirect is an answer the toolkit took as good.
    if (m_redirects && m_redirects->error != CKyNANetworkReply::NoError)
        return m_redirects->error;
    return ErrorImpl();
}

QString CKyNANetworkReplyImpl::errorString() const
{
    if (m_redirects && m_redirects->error != CKyNANetworkReply::NoError)
        return m_redirects->errorString;
    return ErrorStringImpl();
}

QIODevice* CKyNANetworkReplyImpl::OpenDevice() const
{
    return m_device && m_device->isOpen() ? m_device : nullptr;
}

long long CKyNANetworkReplyImpl::bytesAvailable() const
{
    QIODevice* device = OpenDevice();
    return device ? device->bytesAvailable() : 0;
}

QByteArray CKyNANetworkReplyImpl::readAll()
{
    QIODevice* device = OpenDevice();
    return device ? device->readAll() : QByteArray();
}

long long CKyNANetworkReplyImpl::pos() const
{
    QIODevice* device = OpenDevice();
    return device ? device->pos() : 0;
}

bool CKyNANetworkReplyImpl::seek(long long pos)
{
    // A toolkit reply cannot seek; asking would only print a warning.
    QIODevice* device = OpenDevice();
    return device && !device->isSequential() ? device->seek(pos) : false;
}

QByteArray CKyNANetworkReplyImpl::read(long long maxSize)
{
    QIODevice* device = OpenDevice();
    return device && maxSize > 0 ? device->read(maxSize) : QByteArray();
}

QJsonDocument CKyNANetworkReplyImpl::readJson(QJsonParseError* error)
{
    return ParseJsonImpl(readAll(), error);
}

QUrl CKyNANetworkReplyImpl::url() const
{
    return UrlImpl();
}

void CKyNANetworkReplyImpl::ignoreSslErrors()
{
    IgnoreSslErrorsImpl(nullptr);
}

void CKyNANetworkReplyImpl::ignoreSslErrors(const QList<QSslError>& errors)
{
    IgnoreSslErrorsImpl(&errors);
}

void CKyNANetworkReplyImpl::StartStreaming()
{
    m_streaming = true;
    StartStreamingImpl();
}

void CKyNANetworkReplyImpl::FollowRedirects(std::unique_ptr<Redirects> redirects)
{
    m_redirects = std::move(redirects);
    FollowRedirectsImpl();
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
    if (m_skipBody)
        return;
    downloadProgress.Emit(received, total);
}

void CKyNANetworkReplyImpl::OnUploadProgress(long long sent, long long total)
{
    uploadProgress.Emit(sent, total);
}

void CKyNANetworkReplyImpl::OnEncrypted()
{
    // Once per transfer, however many requests its redirects took.
    if (m_redirects) {
        if (m_redirects->encryptedReported)
            return;
        m_redirects->encryptedReported = true;
    }
    encrypted.Emit();
}

void CKyNANetworkReplyImpl::OnError(CKyNANetworkReply::NetworkError code, QIODevice* device)
{
    // The body becomes readable now; the reply is not finished yet.
    m_device = device;
    error.Emit(code);
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
    finished.Emit();
}

void CKyNANetworkReplyImpl::OnSslErrors(const QList<QSslError>& errors)
{
    sslErrors.Emit(errors);
}

void CKyNANetworkReplyImpl::OnReadyRead()
{
    if (m_skipBody) {
        // Dropped, or the bounded buffer would fill and the redirect never end.
        if (m_device)
            m_device->readAll();
        return;
    }
    readyRead.Emit();
}

void CKyNANetworkReplyImpl::OnRedirectRefused(CKyNANetworkReply::NetworkError code, const QString& text,
                                              int status, const HeaderPairs& pairs)
{
    m_redirects->error = code;
    m_redirects->errorString = text;
    // The redirect's own body is not the answer: nothing is readable.
    EmitInOrder([&] { OnError(code, nullptr); }, [&] { OnFinished(status, pairs, nullptr); });
}
