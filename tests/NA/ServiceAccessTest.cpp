#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

namespace
{

// tinyproxy on a free port of 127.0.0.1, asking for "plugin"/"secret" when `auth` is set.
struct Tinyproxy
{
    explicit Tinyproxy(bool auth)
    {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        port = probe.serverPort();
        probe.close();
        QFile conf(dir.filePath(QStringLiteral("tinyproxy.conf")));
        conf.open(QIODevice::WriteOnly);
        conf.write(QStringLiteral("Port %1\nListen 127.0.0.1\nTimeout 30\nMaxClients 20\nLogLevel Error\n%2")
                       .arg(port)
                       .arg(auth ? "BasicAuth plugin secret\n" : "")
                       .toLatin1());
        conf.close();
        process.start(QStringLiteral("tinyproxy"),
                      {QStringLiteral("-d"), QStringLiteral("-c"), conf.fileName()});
        // Listening once a connection is taken; nothing else would wake a wait for it.
        for (int attempt = 0; attempt < 100 && process.state() != QProcess::NotRunning; ++attempt) {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, port);
            if (socket.waitForConnected(100))
                break;
            process.waitForFinished(50);
        }
    }
    ~Tinyproxy()
    {
        process.terminate();
        process.waitForFinished(5000);
    }
    QString url() const { return QStringLiteral("http://127.0.0.1:%1").arg(port); }

    QTemporaryDir dir;
    QProcess process;
    quint16 port = 0;
};

// Runs the transfer to its end: what it reported, "=status", and "via" when a proxy carried it.
QString Finish(CKyNANetworkReply* reply)
{
    Recorder recorder;
    RecordReply(recorder, reply);
    EXPECT_TRUE(waitFinished(recorder, 10000));
    QStringList outcome = Outcome(recorder);
    outcome << QStringLiteral("=%1").arg(
        reply->attribute(CKyNANetworkRequest::HttpStatusCodeAttribute).toInt());
    if (reply->rawHeader("Via").contains("tinyproxy"))
        outcome << QStringLiteral("via");
    return outcome.join(' ');
}

} // namespace

// Answers, in order, that the slot gives ("" gives none); the slot's calls as "ask" or "retry".
TEST(Proxy, CarriesTransfersAndAsksForCredentialsWithoutLooping)
{
    HttpTestServer local;
    local.setRoute("/ok", {HttpTestServer::Mode::Answer, {}, "ok"});
    Tinyproxy open(false), guarded(true);
    const QString good = "plugin:secret", bad = "plugin:wrong";
    const struct
    {
        bool auth;
        QString proxy; // for CKyNAProxy::fromUrl, "@" standing for the proxy's address
        QStringList answers;
        QString outcome;
    } cases[] = {
        {false, "http://@", {}, "finished =200 via"},
        {false, "system", {}, "finished =200 via"}, // http_proxy names the proxy
        {false, "none", {}, "finished =200"},
        {true, "http://@", {""}, "ask error:105 finished =407"},
        {true, "http://plugin:secret@@", {}, "finished =200 via"},
        {true, "http://@", {good}, "ask finished =200 via"},
        // tinyproxy refuses wrong credentials with a 401 of its own: a server's refusal, asked for once.
        {true, "http://plugin:wrong@@", {bad, good}, "error:204 finished =401"},
        {true, "http://@", {bad, bad, bad}, "ask error:204 finished =401"},
        {true, "system", {good}, "ask finished =200 via"},
    };
    for (const auto& c : cases) {
        const Tinyproxy& proxy = c.auth ? guarded : open;
        qputenv("http_proxy", proxy.url().toLatin1());
        qunsetenv("no_proxy");
        CKyNANetworkAccessManager manager;
        manager.setProxy(CKyNAProxy::fromUrl(
            QString(c.proxy).replace("@@", "@" + proxy.url().mid(7)).replace("http://@", proxy.url())));
        QStringList asked, answers = c.answers;
        manager.proxyAuthenticationRequired().connect([&](CKyNAAuthentication& question) {
            asked << (question.isRetry() ? "retry" : "ask");
            const QStringList answer = answers.isEmpty() ? QStringList() : answers.takeFirst().split(':');
            if (answer.size() == 2)
                question.setCredentials(answer[0], answer[1]);
        });
        CKyNANetworkRequest request(local.url(QStringLiteral("/ok")));
        std::unique_ptr<CKyNANetworkReply> reply(manager.get(request));
        EXPECT_EQ(((asked.join(' ') + ' ').trimmed() + ' ' + Finish(reply.get())).trimmed().toStdString(),
                  c.outcome.toStdString())
            << c.proxy.toStdString();
    }
    qunsetenv("http_proxy");
}

// Against retry_peer.py, which fails each path's first requests as the path says and then answers
// with the number of requests it saw.
TEST(Retries, RepeatIdempotentTransfersWithinTheirTimeOut)
{
    QProcess peer;
    peer.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(COMMONUI_TESTS_DIR "/NA/retry_peer.py")});
    waitUntil([&] { return peer.canReadLine() || peer.state() == QProcess::NotRunning; }, 20000);
    const QString base = "http://127.0.0.1:" + QString::fromLatin1(peer.readLine()).trimmed();
    const struct
    {
        QString path;
        QByteArray verb;
        int tries;
        int timeout;
        QString outcome; // what the reply reported, "=status" and the body
        int atLeastMs;
    } cases[] = {
        {"/503/2/a", "GET", 3, 10000, "finished =200 3", 0},
        {"/502/1/b", "DELETE", 2, 10000, "finished =200 2", 0},
        {"/504/1/c", "OPTIONS", 2, 10000, "finished =200 2", 0},
        {"/drop/1/d", "PUT", 2, 10000, "finished =200 2", 0},
        {"/after/1/e", "GET", 2, 10000, "finished =200 2", 1000},
        // Never retried, or out of tries: the last answer is the reply's.
        {"/503/1/f", "POST", 3, 10000, "error:403 finished =503 busy", 0},
        {"/503/3/g", "GET", 2, 10000, "error:403 finished =503 busy", 0},
        {"/drop/3/h", "GET", 2, 10000, "error:2 finished =0 ", 0},
        // The second wait would outlast the time-out.
        {"/after/3/i", "GET", 5, 1500, "error:403 finished =503 busy", 1000},
        // Aborted while waiting for the next try.
        {"/after/1/j", "GET", 2, 10000, "error:5 finished =503 ", 0},
    };
    CKyNANetworkAccessManager manager;
    for (const auto& c : cases) {
        CKyNANetworkRequest request(QUrl(base + c.path));
        request.setRetryPolicy(c.tries, 20);
        request.setRequestTimeout(c.timeout);
        QElapsedTimer clock;
        clock.start();
        std::unique_ptr<CKyNANetworkReply> reply(c.verb == "GET"    ? manager.get(request)
                                                 : c.verb == "POST" ? manager.post(request, QByteArray("x"))
                                                 : c.verb == "PUT"
                                                     ? manager.put(request, QByteArray("x"))
                                                     : manager.sendCustomRequest(request, c.verb));
        if (c.path.endsWith("/j"))
            QTimer::singleShot(300, [&] { reply->abort(); });
        const QString outcome = Finish(reply.get());
        EXPECT_EQ((outcome + ' ' + reply->readAll()).toStdString(), c.outcome.toStdString())
            << c.path.toStdString();
        EXPECT_GE(clock.elapsed(), c.atLeastMs);
    }
    peer.closeWriteChannel();
    peer.waitForFinished(5000);
}
