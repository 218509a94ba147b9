#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>

class QNetworkReply;

// Bounds a whole transfer: started once when the reply is created, never
// restarted by progress; when it fires while the reply still runs, the reply
// is aborted. Optionally also bounds each silence: a second timer that every
// byte received or sent restarts. Lives as a child of the toolkit reply.
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

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
    QBasicTimer m_inactivity;
    int m_inactivityMsec = 0;
};
