#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

// The toolkit's side of the comparison: one signal per argument kind, slots
// connected as lambdas (direct connections).
class BenchSender : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void intSent(int value);
    void textSent(QString text);
};
