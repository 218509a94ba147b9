#include "NA/Impl/qt/CKyNANetworkReplyTimeout.h"

#include <QtCore/QTimerEvent>
#include <QtNetwork/QNetworkReply>

CKyNANetworkReplyTimeout::CKyNANetworkReplyTimeout(QNetworkReply* reply, int msec)
    : QObject(reply)
    , m_msec(msec)
{
    m_started.start();
    // A reply that is already over needs no guard. Coarse timers may fire up
    // to 5 % early; a time-out must not.
    if (reply && reply->isRunning())
        m_timer.start(msec, Qt::PreciseTimer, this);
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
    m_lastActivity.start();
    m_inactivity.start(msec, Qt::PreciseTimer, this);
    WatchActivity(reply);
}

void CKyNANetworkReplyTimeout::WatchActivity(QNetworkReply* reply)
{
    // Only the time of the last activity is noted: re-arming a timer for
    // every piece of the body would cost more than the transfer. Progress
    // signals are throttled by the toolkit; readyRead is not.
    const auto noteActivity = [this] { m_lastActivity.restart(); };
    connect(reply, &QNetworkReply::metaDataChanged, this, noteActivity);
    connect(reply, &QIODevice::readyRead, this, noteActivity);
    connect(reply, &QNetworkReply::uploadProgress, this, noteActivity);
}

bool CKyNANetworkReplyTimeout::expired() const
{
    return m_started.nsecsElapsed() >= qint64(m_msec) * 1000000;
}

long long CKyNANetworkReplyTimeout::remainingMs() const
{
    return m_msec - m_started.elapsed();
}

void CKyNANetworkReplyTimeout::follow(QNetworkReply* next)
{
    if (QObject* previous = parent())
        disconnect(previous, nullptr, this, nullptr);
    setParent(next);
    // Made before the public reply connects to the next reply, as the
    // manager does for the first one.
    connect(
        next, &QNetworkReply::finished, this, [this] { stop(); }, Qt::DirectConnection);
    if (!ArmForRest(m_timer, m_msec, m_started))
        m_timer.start(0, Qt::PreciseTimer, this); // up just now: aborts on the next pass
    if (m_inactivityMsec > 0) {
        m_lastActivity.restart();
        m_inactivity.start(m_inactivityMsec, Qt::PreciseTimer, this);
        WatchActivity(next);
    }
}

bool CKyNANetworkReplyTimeout::ArmForRest(QBasicTimer& timer, int msec, const QElapsedTimer& since)
{
    const qint64 restNs = qint64(msec) * 1000000 - since.nsecsElapsed();
    if (restNs <= 0)
        return false;
    timer.start(int((restNs + 999999) / 1000000), Qt::PreciseTimer, this);
    return true;
}

void CKyNANetworkReplyTimeout::timerEvent(QTimerEvent* event)
{
    // Other timers are none of this object's business, not even its base's.
    const bool whole = m_timer.isActive() && event->timerId() == m_timer.timerId();
    const bool silence = m_inactivity.isActive() && event->timerId() == m_inactivity.timerId();
    if (!whole && !silence)
        return;
    if (whole ? ArmForRest(m_timer, m_msec, m_started)
              : ArmForRest(m_inactivity, m_inactivityMsec, m_lastActivity))
        return;
    auto* reply = qobject_cast<QNetworkReply*>(parent());
    if (reply && reply->isRunning())
        reply->abort();
    stop();
}
