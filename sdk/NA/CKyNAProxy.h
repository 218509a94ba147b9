#pragma once

#include "commonui_export.h"

#include <QtCore/QString>

/// How a manager (or a web socket) reaches the network: as the application
/// does by default, directly, through the system's proxy settings, or through
/// one HTTP or SOCKS5 proxy. A plain value.
///
/// Credentials given here go to the proxy only when it asks for them; without
/// any, or when it refuses them, the manager's
/// CKyNANetworkAccessManager::proxyAuthenticationRequired() is asked.
///
/// \code
/// manager.setProxy(CKyNAProxy(CKyNAProxy::Http, "proxy.office", 3128, "me", "secret"));
/// manager.setProxy(CKyNAProxy(CKyNAProxy::System));   // http_proxy and the desktop's settings
/// \endcode
///
/// See \ref services_proxy.
class COMMONUI_EXPORT CKyNAProxy
{
public:
    /// Where the connections go.
    enum Type : int {
        ApplicationDefault = 0, ///< Whatever the application set for all its connections (the default).
        NoProxy = 1,            ///< Directly to the server, whatever the system says.
        System = 2,             ///< The system's settings for each URL (on Linux the http_proxy,
                                ///< https_proxy, all_proxy and no_proxy variables).
        Http = 3,               ///< One HTTP proxy (CONNECT for https and web sockets).
        Socks5 = 4              ///< One SOCKS5 proxy.
    };

    /// ApplicationDefault: the manager behaves exactly as without a proxy set.
    CKyNAProxy() = default;
    /// A proxy of @p type; @p host and @p port matter for Http and Socks5,
    /// the credentials for every type but NoProxy.
    explicit CKyNAProxy(Type type, const QString& host = QString(), int port = 0,
                        const QString& user = QString(), const QString& password = QString());
    /// Reads "http://[user:password@]host:port" or "socks5://...", or the
    /// words "system" and "none"; an invalid proxy (isValid() false) for
    /// anything else. Percent-encoded characters in the credentials are decoded.
    static CKyNAProxy fromUrl(const QString& text);

    /// The type.
    Type type() const { return m_type; }
    /// The proxy's host; empty unless given.
    QString host() const { return m_host; }
    /// The proxy's port; 0 unless given.
    int port() const { return m_port; }
    /// The user name given ahead; empty unless given.
    QString user() const { return m_user; }
    /// The password given ahead; empty unless given.
    QString password() const { return m_password; }
    /// Credentials to offer when the proxy asks; with System they go to
    /// whatever proxy the settings name, unless the settings carry their own.
    void setCredentials(const QString& user, const QString& password);
    /// False only for what fromUrl() could not read, and for an Http or
    /// Socks5 proxy without a host or a port.
    bool isValid() const;

private:
    Type m_type = ApplicationDefault;
    QString m_host;
    int m_port = 0;
    QString m_user;
    QString m_password;
    bool m_unreadable = false;
};
