#include "NA/CKyNAProxy.h"

#include <QtCore/QUrl>

CKyNAProxy::CKyNAProxy(Type type, const QString& host, int port, const QString& user, const QString& password)
    : m_type(type)
    , m_host(host)
    , m_port(port)
    , m_user(user)
    , m_password(password)
{}

CKyNAProxy CKyNAProxy::fromUrl(const QString& text)
{
    if (text == QLatin1String("system"))
        return CKyNAProxy(System);
    if (text == QLatin1String("none"))
        return CKyNAProxy(NoProxy);
    const QUrl url(text, QUrl::StrictMode);
    const QString scheme = url.scheme();
    CKyNAProxy proxy(scheme == QLatin1String("http") ? Http : Socks5, url.host(), url.port(),
                     url.userName(QUrl::FullyDecoded), url.password(QUrl::FullyDecoded));
    // A path would be silently ignored: refused rather than guessed at.
    const bool known = scheme == QLatin1String("http") || scheme == QLatin1String("socks5");
    proxy.m_unreadable =
        !url.isValid() || !known || (!url.path().isEmpty() && url.path() != QLatin1String("/"));
    return proxy;
}

void CKyNAProxy::setCredentials(const QString& user, const QString& password)
{
    m_user = user;
    m_password = password;
}

bool CKyNAProxy::isValid() const
{
    if (m_unreadable)
        return false;
    return (m_type != Http && m_type != Socks5) || (!m_host.isEmpty() && m_port > 0 && m_port < 65536);
}
