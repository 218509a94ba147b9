#include "NA/Impl/qt/CKyNANetworkReplyTimeout.h"

#include <QtCore/QTimerEvent>
#include <QtNetwork/QNetworkReply>

CKyNANetworkReplyTimeout::CKyNANetworkReplyTimeout(QNetworkReply* reply, int msec)
    : QObject(reply)
{
    // A reply that is already over needs no guard.
    if (reply && reply->isRunning())
        m_timer.start(msec, this);
}

CKyNANetworkReplyTimeout::~CKyNANetworkReplyTimeout()
{
    if (m_timer.isActive())
        m_timer.stop();
}

void CKyNANetworkReplyTimeout::stop()
{
    m_timer.stop();
}

void CKyNANetworkReplyTimeout::timerEvent(QTimerEvent* event)
{
    // Other timers are none of this object's business, not even its base's.
    if (!m_timer.isActive() || event->timerId() != m_timer.timerId())
        return;
    auto* reply = qobject_cast<QNetworkReply*>(parent());
    if (reply && reply->isRunning())
        reply->abort();
    m_timer.stop();
}
