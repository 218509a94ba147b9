#include "NA/CKyNANetworkReply.h"

#include "NA/Impl/CKyNANetworkReplyImpl.h"

CKyNANetworkReply::CKyNANetworkReply(QObject* reply)
{
    setImpl(new CKyNANetworkReplyImpl(this, reply));
}

CKyNANetworkReply::~CKyNANetworkReply() = default;

CKyNANetworkReplyImpl* CKyNANetworkReply::d() const
{
    return static_cast<CKyNANetworkReplyImpl*>(impl());
}

void CKyNANetworkReply::setRequest(const CKyNANetworkRequest& request)
{
    d()->setRequest(request);
}

const CKyNANetworkRequest* CKyNANetworkReply::request() const
{
    return d()->request();
}

bool CKyNANetworkReply::isFinished() const
{
    return d()->isFinished();
}

bool CKyNANetworkReply::isRunning() const
{
    return d()->isRunning();
}

CKyNANetworkReply::NetworkError CKyNANetworkReply::error() const
{
    return d()->error();
}

QString CKyNANetworkReply::errorString() const
{
    return d()->errorString();
}

long long CKyNANetworkReply::bytesAvailable() const
{
    return d()->bytesAvailable();
}

QByteArray CKyNANetworkReply::readAll()
{
    return d()->readAll();
}

long long CKyNANetworkReply::pos() const
{
    return d()->pos();
}

bool CKyNANetworkReply::seek(long long pos)
{
    return d()->seek(pos);
}

QVariant CKyNANetworkReply::attribute(CKyNANetworkRequest::Attribute code) const
{
    return d()->attribute(code);
}

QVariant CKyNANetworkReply::header(CKyNANetworkRequest::KnownHeaders header) const
{
    return d()->header(header);
}

bool CKyNANetworkReply::hasRawHeader(const QByteArray& name) const
{
    return d()->hasRawHeader(name);
}

QByteArray CKyNANetworkReply::rawHeader(const QByteArray& name) const
{
    return d()->rawHeader(name);
}

QList<QByteArray> CKyNANetworkReply::rawHeaderList() const
{
    return d()->rawHeaderList();
}

const QList<QPair<QByteArray, QByteArray>>& CKyNANetworkReply::rawHeaderPairs() const
{
    return d()->rawHeaderPairs();
}

void CKyNANetworkReply::abort()
{
    d()->abort();
}

CKyUISignal<void(long long, long long)>& CKyNANetworkReply::downloadProgress()
{
    return d()->downloadProgressSignal;
}

CKyUISignal<void(long long, long long)>& CKyNANetworkReply::uploadProgress()
{
    return d()->uploadProgressSignal;
}

CKyUISignal<void()>& CKyNANetworkReply::encrypted()
{
    return d()->encryptedSignal;
}

CKyUISignal<void(CKyNANetworkReply::NetworkError)>& CKyNANetworkReply::error()
{
    return d()->errorSignal;
}

CKyUISignal<void()>& CKyNANetworkReply::finished()
{
    return d()->finishedSignal;
}
