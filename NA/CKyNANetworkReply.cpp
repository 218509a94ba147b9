#include "NA/CKyNANetworkReply.h"

#include "NA/Impl/CKyNANetworkReplyImpl.h"

CKyNANetworkReply::CKyNANetworkReply(QObject* reply)
{
    setImpl(new CKyNANetworkReplyImpl(this, reply));
}

CKyNANetworkReply::~CKyNANetworkReply() = default;

void CKyNANetworkReply::setRequest(const CKyNANetworkRequest& request)
{
    implAs<CKyNANetworkReplyImpl>()->setRequest(request);
}

const CKyNANetworkRequest* CKyNANetworkReply::request() const
{
    return implAs<CKyNANetworkReplyImpl>()->request();
}

bool CKyNANetworkReply::isFinished() const
{
    return implAs<CKyNANetworkReplyImpl>()->isFinished();
}

bool CKyNANetworkReply::isRunning() const
{
    return implAs<CKyNANetworkReplyImpl>()->isRunning();
}

CKyNANetworkReply::NetworkError CKyNANetworkReply::error() const
{
    return implAs<CKyNANetworkReplyImpl>()->errorCode();
}

CKyNANetworkReply::NetworkError CKyNANetworkReply::networkError() const
{
    return implAs<CKyNANetworkReplyImpl>()->errorCode();
}

QString CKyNANetworkReply::errorString() const
{
    return implAs<CKyNANetworkReplyImpl>()->errorString();
}

long long CKyNANetworkReply::bytesAvailable() const
{
    return implAs<CKyNANetworkReplyImpl>()->bytesAvailable();
}

QByteArray CKyNANetworkReply::readAll()
{
    return implAs<CKyNANetworkReplyImpl>()->readAll();
}

long long CKyNANetworkReply::pos() const
{
    return implAs<CKyNANetworkReplyImpl>()->pos();
}

bool CKyNANetworkReply::seek(long long pos)
{
    return implAs<CKyNANetworkReplyImpl>()->seek(pos);
}

QVariant CKyNANetworkReply::attribute(CKyNANetworkRequest::Attribute code) const
{
    return implAs<CKyNANetworkReplyImpl>()->attribute(code);
}

QVariant CKyNANetworkReply::header(CKyNANetworkRequest::KnownHeaders header) const
{
    return implAs<CKyNANetworkReplyImpl>()->header(header);
}

bool CKyNANetworkReply::hasRawHeader(const QByteArray& name) const
{
    return implAs<CKyNANetworkReplyImpl>()->hasRawHeader(name);
}

QByteArray CKyNANetworkReply::rawHeader(const QByteArray& name) const
{
    return implAs<CKyNANetworkReplyImpl>()->rawHeader(name);
}

QList<QByteArray> CKyNANetworkReply::rawHeaderList() const
{
    return implAs<CKyNANetworkReplyImpl>()->rawHeaderList();
}

const QList<QPair<QByteArray, QByteArray>>& CKyNANetworkReply::rawHeaderPairs() const
{
    return implAs<CKyNANetworkReplyImpl>()->rawHeaderPairs();
}

void CKyNANetworkReply::abort()
{
    implAs<CKyNANetworkReplyImpl>()->abort();
}

CKyUISignal<void(long long, long long)>& CKyNANetworkReply::downloadProgress()
{
    return implAs<CKyNANetworkReplyImpl>()->downloadProgress;
}

CKyUISignal<void(long long, long long)>& CKyNANetworkReply::uploadProgress()
{
    return implAs<CKyNANetworkReplyImpl>()->uploadProgress;
}

CKyUISignal<void()>& CKyNANetworkReply::encrypted()
{
    return implAs<CKyNANetworkReplyImpl>()->encrypted;
}

CKyUISignal<void(CKyNANetworkReply::NetworkError)>& CKyNANetworkReply::error()
{
    return implAs<CKyNANetworkReplyImpl>()->error;
}

CKyUISignal<void()>& CKyNANetworkReply::finished()
{
    return implAs<CKyNANetworkReplyImpl>()->finished;
}

QByteArray CKyNANetworkReply::read(long long maxSize)
{
    return implAs<CKyNANetworkReplyImpl>()->read(maxSize);
}

QJsonDocument CKyNANetworkReply::readJson(QJsonParseError* error)
{
    return implAs<CKyNANetworkReplyImpl>()->readJson(error);
}

QUrl CKyNANetworkReply::url() const
{
    return implAs<CKyNANetworkReplyImpl>()->url();
}

void CKyNANetworkReply::ignoreSslErrors()
{
    implAs<CKyNANetworkReplyImpl>()->ignoreSslErrors();
}

void CKyNANetworkReply::ignoreSslErrors(const QList<QSslError>& errors)
{
    implAs<CKyNANetworkReplyImpl>()->ignoreSslErrors(errors);
}

CKyUISignal<void(const QList<QSslError>&)>& CKyNANetworkReply::sslErrors()
{
    return implAs<CKyNANetworkReplyImpl>()->sslErrors;
}

CKyUISignal<void()>& CKyNANetworkReply::readyRead()
{
    return implAs<CKyNANetworkReplyImpl>()->readyRead;
}
