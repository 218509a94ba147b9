#pragma once

#include "commonui_export.h"

#include <QtCore/QString>
#include <QtCore/QUrl>

/// What a server or a proxy asks credentials for, and the answer a slot gives:
/// the argument of CKyNANetworkAccessManager::authenticationRequired() and
/// CKyNANetworkAccessManager::proxyAuthenticationRequired().
///
/// A slot that sets nothing lets the transfer end with
/// CKyNANetworkReply::AuthenticationRequiredError (204) or
/// CKyNANetworkReply::ProxyAuthenticationRequiredError (105). Credentials are
/// sent at most twice for one challenge: when the second are refused too, the
/// transfer ends with that error instead of asking again (isRetry() tells the
/// slot that its earlier answer was refused).
///
/// See \ref services_signin.
class COMMONUI_EXPORT CKyNAAuthentication
{
public:
    /// What the library hands to the slots.
    CKyNAAuthentication(const QUrl& url, const QString& realm, bool retry);

    /// For a server: the URL asked for. For a proxy: "http://host:port" or
    /// "socks5://host:port" of the proxy.
    QUrl url() const { return m_url; }
    /// The realm the server or the proxy named; empty if none.
    QString realm() const { return m_realm; }
    /// True when credentials were already sent for this and refused.
    bool isRetry() const { return m_retry; }

    /// The answer: these credentials are sent.
    void setCredentials(const QString& user, const QString& password);
    /// The user name given by a slot; empty unless set.
    QString user() const { return m_user; }
    /// The password given by a slot; empty unless set.
    QString password() const { return m_password; }
    /// Whether a slot gave credentials.
    bool isAnswered() const { return m_answered; }

private:
    QUrl m_url;
    QString m_realm;
    bool m_retry = false;
    QString m_user;
    QString m_password;
    bool m_answered = false;
};
