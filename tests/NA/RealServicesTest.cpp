#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

namespace
{

// Trust and Client imply https; OneHop allows one redirect instead of two; Custom sends the verb
// with sendCustomRequest, even GET and HEAD.
constexpr int Https = 1, Trust = 3, Client = 5, IgnoreAll = 8, IgnoreListed = 16, Follow = 32, Downgrade = 64,
              OneHop = 128, Stream = 256, Custom = 512, Credentials = 1024;

QStringList g_warnings;

// Against nginx, run by nginx/run-nginx on free ports in a temporary directory. Reading the ended
// replies must never make the toolkit complain.
class RealServices : public ::testing::Test
{
protected:
    void SetUp() override
    {
        nginx.start(QStringLiteral(COMMONUI_TESTS_DIR "/NA/nginx/run-nginx"), {dir.path()});
        // It prints both ports once nginx listens; a missing nginx or openssl fails here.
        ASSERT_TRUE(nginx.waitForReadyRead(20000)) << nginx.readAllStandardError().toStdString();
        ports = QString::fromLatin1(nginx.readLine().trimmed()).split(QLatin1Char(' '));
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& m) { g_warnings << m; });
    }
    void TearDown() override
    {
        nginx.terminate();
        nginx.waitForFinished(5000);
        qInstallMessageHandler(nullptr);
        EXPECT_EQ(g_warnings.join('\n').toStdString(), "");
    }
    QUrl url(const QString& path, bool secure = false) const
    {
        return QUrl(
            QStringLiteral("http%1://127.0.0.1:%2%3").arg(secure ? "s" : "", ports.value(secure), path));
    }
    QByteArray file(const QString& name) const
    {
        QFile file(dir.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // One transfer on a fresh connection: what it reported (and where it ended, and whether it
    // streamed in pieces) and, in `body`, all it delivered.
    QStringList run(CKyNANetworkRequest& request, const QByteArray& verb, int options = 0)
    {
        CKyNANetworkAccessManager manager;
        const QByteArray plain = options & Custom ? "" : verb;
        std::unique_ptr<CKyNANetworkReply> reply(plain == "GET" ? manager.get(request)
                                                 : plain == "HEAD"
                                                     ? manager.head(request)
                                                     : manager.sendCustomRequest(request, verb, "x"));
        Recorder recorder;
        RecordReply(recorder, reply.get());
        int pieces = 0;
        body.clear();
        reply->readyRead().connect([&] { body += reply->read(50000), ++pieces; });
        reply->sslErrors().connect([&](const QList<QSslError>& errors) {
            recorder.add(QStringLiteral("sslErrors"), !errors.isEmpty());
            if (options & IgnoreAll)
                reply->ignoreSslErrors();
            if (options & IgnoreListed)
                reply->ignoreSslErrors(errors);
        });
        EXPECT_TRUE(waitUntil([&] { return recorder.has(QStringLiteral("finished")); }, 10000));
        EXPECT_FALSE(reply->seek(0));
        body += reply->readAll();
        recorder.add(QStringLiteral("at"), reply->url().path(), pieces > 1);
        return Outcome(recorder);
    }

    QTemporaryDir dir;
    QProcess nginx;
    QStringList ports;
    QByteArray body;
};

} // namespace

TEST_F(RealServices, TlsRedirectsMethodsEncodingsAndStreaming)
{
    const QStringList hello{"finished", "at:/hello.txt,false"},
        tls{"encrypted", "finished", "at:/client,false"};
    const struct
    {
        const char* path;
        int options;
        QByteArray verb;
        QStringList outcome;
        QByteArray body;
    } cases[] = {
        {"/client", Https, "GET", {"sslErrors:true", "error:6", "finished", "at:/client,false"}, ""},
        {"/client", Https | IgnoreAll, "GET", QStringList{"sslErrors:true"} + tls, "NONE"},
        {"/client", Client | IgnoreListed, "GET", QStringList{"sslErrors:true"} + tls, "SUCCESS"},
        {"/client", Trust, "GET", tls, "NONE"},
        {"/client", Trust | Client, "GET", tls, "SUCCESS"},
        {"/moved", 0, "HEAD", {"finished", "at:/moved,false"}, ""},
        {"/moved", Follow, "HEAD", hello, ""},
        {"/hello.txt", Custom, "HEAD", hello, ""},
        {"/twice", Follow, "GET", hello, "hello\n"},
        {"/twice", Follow | OneHop, "GET", {"error:10", "finished", "at:/found,false"}, ""},
        // Refused: it ends where it was, never having fetched the http page.
        {"/to-http", Trust | Follow, "GET", {"encrypted", "error:11", "finished", "at:/to-http,false"}, ""},
        {"/to-http", Trust | Follow | Downgrade, "GET", QStringList{"encrypted"} + hello, "hello\n"},
        {"/to-headers",
         Trust | Follow | Credentials,
         "GET",
         {"encrypted", "finished", "at:/headers,false"},
         "t|c=1"},
        {"/to-http-headers",
         Trust | Follow | Downgrade | Credentials,
         "GET",
         {"encrypted", "finished", "at:/headers,false"},
         "|"},
        {"/method", 0, "PATCH", {"finished", "at:/method,false"}, "PATCH"},
        {"/method", 0, "OPTIONS", {"finished", "at:/method,false"}, "OPTIONS"},
        {"/gz/lines.txt", 0, "GET", {"finished", "at:/gz/lines.txt,false"}, file("www/gz/lines.txt")},
        {"/slow/big.bin", 0, "GET", {"finished", "at:/slow/big.bin,false"}, file("www/slow/big.bin")},
        {"/slow/big.bin", Stream, "GET", {"finished", "at:/slow/big.bin,true"}, file("www/slow/big.bin")},
    };
    for (const auto& c : cases) {
        CKyNANetworkRequest request(url(QLatin1String(c.path), c.options & Https));
        if ((c.options & Trust) == Trust)
            request.setCaCertificates(QSslCertificate::fromData(file("ca.pem")));
        if ((c.options & Client) == Client)
            request.setClientCertificate(QSslCertificate(file("server.pem")),
                                         QSslKey(file("server.key"), QSsl::Ec));
        // Untouched unless followed: the toolkits differ in their own default.
        if (c.options & Follow) {
            request.setFollowRedirects(true);
            request.setMaximumRedirects(c.options & OneHop ? 1 : 2);
            request.setAllowInsecureRedirects(c.options & Downgrade);
        }
        if (c.options & Credentials) {
            request.setRawHeader("Authorization", "t");
            request.setRawHeader("Cookie", "c=1");
        }
        request.setStreaming(c.options & Stream);
        EXPECT_EQ(run(request, c.verb, c.options).join(' ').toStdString(), c.outcome.join(' ').toStdString());
        EXPECT_EQ(body, c.body) << c.path;
    }
}

TEST_F(RealServices, TimeOutsBoundTheWholeTransferAndEachSilence)
{
    HttpTestServer local;
    using Mode = HttpTestServer::Mode;
    const struct
    {
        QUrl url;
        Mode mode;
        QByteArray verb;
        int whole;
        int inactivity;
        int atLeastMs;
    } cases[] = {
        // Steady arrival stretches neither bound; a silence ends the transfer early.
        {url(QStringLiteral("/slow/big.bin")), Mode::Answer, "GET", 150, 5000, 135},
        {local.url(QStringLiteral("/")), Mode::Stall, "GET", 30000, 100, 90},
        {local.url(QStringLiteral("/")), Mode::Stall, "PATCH", 100, 0, 90},
        {local.url(QStringLiteral("/")), Mode::Trickle, "GET", 1500, 1000, 1350},
    };
    for (const auto& c : cases) {
        HttpTestServer::Route route;
        route.mode = c.mode;
        local.setRoute("/", route);
        CKyNANetworkRequest request(c.url);
        request.setRequestTimeout(c.whole);
        request.setInactivityTimeout(c.inactivity);
        request.setStreaming(true);
        QElapsedTimer clock;
        clock.start();
        EXPECT_EQ(run(request, c.verb).mid(0, 2), (QStringList{"error:5", "finished"})) << c.atLeastMs;
        EXPECT_GE(clock.elapsed(), c.atLeastMs);
    }
}

// abort() and deletion from the TLS reports; the other reports are TransferEnd's.
TEST_F(RealServices, AbortOrDeleteFromTheTlsReports)
{
    const struct
    {
        int options;
        QString at;
        bool remove;
        QStringList outcome;
    } cases[] = {
        {Trust, "encrypted", false, {"encrypted", "abort", "error:5", "finished"}},
        {Trust, "encrypted", true, {"encrypted", "delete"}},
        {Https, "sslErrors", false, {"sslErrors", "abort", "error:5", "finished"}},
        {Https, "sslErrors", true, {"sslErrors", "delete"}},
    };
    for (const auto& c : cases) {
        CKyNANetworkAccessManager manager; // a fresh connection each time
        CKyNANetworkRequest request(url(QStringLiteral("/hello.txt"), true));
        if ((c.options & Trust) == Trust)
            request.setCaCertificates(QSslCertificate::fromData(file("ca.pem")));
        CKyNANetworkReply* reply = manager.get(request);
        Recorder log;
        RecordReply(log, reply);
        const auto act = [&](const QString& report) {
            if (report != c.at)
                return;
            log.add(c.remove ? "delete" : "abort");
            if (!c.remove)
                return reply->abort();
            delete reply;
            reply = nullptr;
        };
        reply->encrypted().connect([&] { act("encrypted"); });
        reply->sslErrors().connect([&](const QList<QSslError>&) {
            log.add("sslErrors");
            act("sslErrors");
        });
        ASSERT_TRUE(waitUntil([&] { return !reply || reply->isFinished(); }));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        EXPECT_EQ(Outcome(log), c.outcome) << c.at.toStdString();
        delete reply;
    }
}
