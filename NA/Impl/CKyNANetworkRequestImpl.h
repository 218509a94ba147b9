#pragma once

#include "NA/CKyNANetworkRequest.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QUrl>
#include <QtCore/QVariant>

// Bookkeeping of a request: the maps answer the getters, the toolkit request
// carries the same values to the toolkit.
class CKyNANetworkRequestImpl
{
public:
    CKyNANetworkRequestImpl(CKyNANetworkRequest* owner, const QUrl& url);
    ~CKyNANetworkRequestImpl();

    CKyNANetworkRequestImpl(const CKyNANetworkRequestImpl&) = delete;
    CKyNANetworkRequestImpl& operator=(const CKyNANetworkRequestImpl&) = delete;

    QUrl url() const;
    void setUrl(const QUrl& url);

    void setHeader(CKyNANetworkRequest::KnownHeaders header, const QVariant& value);
    QVariant header(CKyNANetworkRequest::KnownHeaders header) const;

    void setRawHeader(const QByteArray& name, const QByteArray& value);
    QVariant rawHeader(const QByteArray& name) const;
    QList<QByteArray> rawHeaderList() const;

    void setRequestTimeout(int ms);
    int requestTimeout() const;

    // The name under which a known header travels; null for codes without one.
    static QByteArray GetKnowHeaderName(CKyNANetworkRequest::KnownHeaders header);

    void CreateNetworkRequestImpl(const QUrl& url);
    void DestroyNetworkRequestImpl();
    void SetUrlImpl(const QUrl& url);
    void SetHeaderImpl(CKyNANetworkRequest::KnownHeaders header, const QVariant& value);
    void SetRawHeaderImpl(const QByteArray& name, const QByteArray& value);

    CKyNANetworkRequest* owner() const { return m_owner; }

private:
    CKyNANetworkRequest* const m_owner;
    int m_requestTimeout = 0;
    QUrl m_url;
    QMap<int, QVariant> m_knownHeaders;
    QMap<QByteArray, QByteArray> m_rawHeaders;
};
