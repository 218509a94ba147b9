#pragma once

#include <QtCore/QUrl>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

// A port on 127.0.0.1 that refuses connections for as long as this object
// lives: bound, so that no other server can take it meanwhile, but never
// listening.
class ClosedPort
{
public:
    ClosedPort()
        : m_socket(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        if (::bind(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof(address)) == 0 &&
            ::getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &length) == 0)
            m_port = ntohs(address.sin_port);
    }
    ~ClosedPort() { ::close(m_socket); } // a failed socket() gives -1, which close() refuses harmlessly
    ClosedPort(const ClosedPort&) = delete;
    ClosedPort& operator=(const ClosedPort&) = delete;

    bool isValid() const { return m_port != 0; }
    QUrl url() const { return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(m_port)); }

private:
    int m_socket;
    quint16 m_port = 0;
};
