#pragma once

#include "NA/CKyNANetworkRequest.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPair>
#include <QtCore/QUrl>
#include <QtCore/QVariant>

#include <memory>

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
    void setInactivityTimeout(int ms);
    int inactivityTimeout() const { return m_inactivityTimeout; }

    void setCaCertificates(const QList<QSslCertificate>& certificates);
    QList<QSslCertificate> caCertificates() const { return m_caCertificates; }
    void setClientCertificate(const QSslCertificate& certificate, const QSslKey& key);
    QSslCertificate clientCertificate() const;
    QSslKey clientKey() const;

    void setFollowRedirects(bool follow);
    bool followRedirects() const { return m_followRedirects; }
    void setMaximumRedirects(int count);
    int maximumRedirects() const { return m_maximumRedirects; }
    void setAllowInsecureRedirects(bool allow);
    bool allowInsecureRedirects() const { return m_allowInsecureRedirects; }

    void setStreaming(bool streaming);
    bool streaming() const { return m_streaming; }

    void setCredentials(const QString& user, const QString& password);
    QString user() const { return m_user; }
    QString password() const { return m_password; }

    void setRetryPolicy(int tries, int initialDelayMs);
    int retryTries() const { return m_retryTries; }
    int retryInitialDelay() const { return m_retryInitialDelay; }

    // Where the toolkit request carries the credentials (a QStringList of
    // user and password), so that they travel with every request the
    // transfer makes: one of the application's attribute codes, at the far
    // end of that range.
    static constexpr int CredentialsAttribute = CKyNANetworkRequest::UserMax - 1;

    // The name under which a known header travels; null for codes without one.
    static QByteArray GetKnowHeaderName(CKyNANetworkRequest::KnownHeaders header);

    void CreateNetworkRequestImpl(const QUrl& url);
    void DestroyNetworkRequestImpl();
    void SetUrlImpl(const QUrl& url);
    // False, and nothing changed, when the bytes the value becomes are refused.
    bool SetHeaderImpl(CKyNANetworkRequest::KnownHeaders header, const QVariant& value);
    void SetRawHeaderImpl(const QByteArray& name, const QByteArray& value);
    void SetSslConfigurationImpl();
    void SetRedirectPolicyImpl();
    void SetCredentialsImpl();

    CKyNANetworkRequest* owner() const { return m_owner; }

private:
    CKyNANetworkRequest* const m_owner;
    int m_requestTimeout = 0;
    QUrl m_url;
    QMap<int, QVariant> m_knownHeaders;
    QMap<QByteArray, QByteArray> m_rawHeaders;
    int m_inactivityTimeout = 0;
    QList<QSslCertificate> m_caCertificates;
    // Made only when set: constructing either value starts the toolkit's TLS
    // library, which a plain HTTP client should never pay for.
    std::unique_ptr<QPair<QSslCertificate, QSslKey>> m_client;
    bool m_followRedirects = false;
    int m_maximumRedirects = 10;
    bool m_allowInsecureRedirects = false;
    bool m_streaming = false;
    QString m_user;
    QString m_password;
    int m_retryTries = 1;
    int m_retryInitialDelay = 500;
};
