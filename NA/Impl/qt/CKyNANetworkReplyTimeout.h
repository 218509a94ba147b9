#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>

class QNetworkReply;

// Bounds a whole transfer: started once when the reply is created, never
// restarted by progress; when it fires while the reply still runs, the reply
// is aborted. Optionally also bounds each silence: every byte received or
// sent counts as activity. Lives as a child of the toolkit reply.
//
// Neither bound ever fires early: the timers are precise, and a timer that
// wakes before its time (or before the silence has lasted long enough) is
// armed again for what is left, measured on a monotonic clock.
class CKyNANetworkReplyTimeout : public QObject
{
    Q_OBJECT

public:
    CKyNANetworkReplyTimeout(QNetworkReply* reply, int msec);
    ~CKyNANetworkReplyTimeout() override;

    void stop();
    bool isActive() const { return m_timer.isActive(); }
    // Arms the silence bound, if the reply still runs.
    void watchInactivity(int msec);
    // Whether the whole-transfer time is up.
    bool expired() const;
    // Milliseconds left of the whole-transfer time.
    long long remainingMs() const;
    // Moves the guard to the reply that follows a redirect: what is left of
    // the whole-transfer bound goes on, the silence bound starts afresh.
    void follow(QNetworkReply* next);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void WatchActivity(QNetworkReply* reply);
    // Re-arms `timer` for what is left of `msec` since `since`; false when
    // nothing is left.
    bool ArmForRest(QBasicTimer& timer, int msec, const QElapsedTimer& since);

    QBasicTimer m_timer;
    QBasicTimer m_inactivity;
    int m_msec = 0;
    int m_inactivityMsec = 0;
    QElapsedTimer m_started;
    QElapsedTimer m_lastActivity;
};
