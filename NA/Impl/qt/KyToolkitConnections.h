#pragma once

#include <QtCore/QObject>

#include <utility>
#include <vector>

// The connections an implementation made to its toolkit object, undone
// together when it lets go of the object: a reply or a socket deleted by its
// client may still report before the toolkit object itself goes. One block
// holds them all, taken at the first connection.
class KyToolkitConnections
{
public:
    KyToolkitConnections& operator<<(QMetaObject::Connection connection)
    {
        if (m_connections.empty())
            m_connections.reserve(ExpectedCount);
        m_connections.push_back(std::move(connection));
        return *this;
    }

    // Keeps the block for the next toolkit object (a redirect's, a retry's).
    void disconnectAll()
    {
        for (const QMetaObject::Connection& connection : m_connections)
            QObject::disconnect(connection);
        m_connections.clear();
    }

private:
    // A reply makes six or seven, a few more when it streams, follows
    // redirects or retries; a socket nine.
    static constexpr std::size_t ExpectedCount = 9;

    std::vector<QMetaObject::Connection> m_connections;
};
