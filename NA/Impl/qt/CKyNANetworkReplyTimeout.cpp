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
    m_inactivity.stop();
}

void CKyNANetworkReplyTimeout::stop()
{
    m_timer.stop();
    m_inactivity.stop();
}

void CKyNANetworkReplyTimeout::watchInactivity(int msec)
{
    auto* reply = qobject_cast<QNetworkReply*>(parent());
    if (!reply || !reply->isRunning())
        return;
    m_inactivityMsec = msec;
    m_inactivity.start(msec, this);
    // Progress signals are throttled by the toolkit; readyRead is not.
    const auto restart = [this] {
        if (m_inactivity.isActive())
            m_inactivity.start(m_inactivityMsec, this);
    };
    connect(reply, &QNetworkReply::metaDataChanged, this, restart);
    connect(reply, &QIODevice::readyRead, this, restart);
    connect(reply, &QNetworkReply::uploadProgress, this, restart);
}

void CKyNANetworkReplyTimeout::timerEvent(QTimerEvent* event)
{
    // Other timers are none of this object's business, not even its base's.
    const bool whole = m_timer.isActive() && event->timerId() == m_timer.timerId();
    const bool silence = m_inactivity.isActive() && event->timerId() == m_inactivity.timerId();
    if (!whole && !silence)
        return;
    auto* reply = qobject_cast<QNetworkReply*>(parent());
    if (reply && reply->isRunning())
        reply->abort();
    stop();
}
