#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

namespace
{

// Trust and Client imply https; OneHop allows one redirect instead of two; Custom sends the verb
// with sendCustomRequest, even GET and HEAD.
constexpr int Https = 1, Trust = 3, Client = 5, IgnoreAll = 8, IgnoreListed = 16, Follow = 32, Downgrade = 64,
              OneHop = 128, Stream = 256, Custom = 512;

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
    // streamed in pieces) and, in `body`, all it delivered; its error() in `code` (-1 once deleted).
    // An action, "abort" (asked for twice) or "delete", runs in the slot of the report `at` (or
    // right after the start), after that report was recorded. Whatever came late would have come
    // by the time the local server has no connection left.
    QStringList run(CKyNANetworkRequest& request, const QByteArray& verb, int options = 0,
                    const QString& at = QString(), const QString& action = QString())
    {
        CKyNANetworkAccessManager manager;
        const QByteArray plain = options & Custom ? "" : verb;
        CKyNANetworkReply* reply = plain == "GET"    ? manager.get(request)
                                   : plain == "HEAD" ? manager.head(request)
                                                     : manager.sendCustomRequest(request, verb, "x");
        Recorder recorder;
        RecordReply(recorder, reply);
        int pieces = 0;
        body.clear();
        const auto act = [&](const QString& report) {
            if (report != at || recorder.has(action))
                return;
            recorder.add(action);
            if (action == "abort")
                return reply->abort(), reply->abort();
            delete reply;
            reply = nullptr;
        };
        // Readable before the end, piece by piece or all there is.
        reply->readyRead().connect(
            [&] { body += pieces++ % 2 ? reply->readAll() : reply->read(50000), act("readyRead"); });
        reply->sslErrors().connect([&](const QList<QSslError>& errors) {
            recorder.add(QStringLiteral("sslErrors"), !errors.isEmpty());
            if (options & IgnoreAll)
                reply->ignoreSslErrors();
            if (options & IgnoreListed)
                reply->ignoreSslErrors(errors);
            act("sslErrors");
        });
        reply->downloadProgress().connect([&](long long, long long) { act("downloadProgress"); });
        reply->uploadProgress().connect([&](long long, long long) { act("uploadProgress"); });
        reply->encrypted().connect([&] { act("encrypted"); });
        reply->error().connect([&](int) { act("error"); });
        reply->finished().connect([&] { act("finished"); });
        act("start");
        EXPECT_TRUE(waitUntil([&] { return !reply || reply->isFinished(); }, 10000));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(waitUntil([&] { return local.openConnections() == 0; }));
        code = reply ? int(errorCode(*reply)) : -1;
        if (reply) {
            EXPECT_FALSE(reply->seek(0));
            body += reply->readAll();
            recorder.add(QStringLiteral("at"), reply->url().path(), pieces > 1);
        }
        delete reply;
        return Outcome(recorder);
    }

    QTemporaryDir dir;
    QProcess nginx;
    QStringList ports;
    HttpTestServer local;
    QByteArray body;
    int code = 0;
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
        request.setStreaming(c.options & Stream);
        EXPECT_EQ(run(request, c.verb, c.options).join(' ').toStdString(), c.outcome.join(' ').toStdString());
        EXPECT_EQ(body, c.body) << c.path;
    }
}

TEST_F(RealServices, TimeOutsBoundTheWholeTransferAndEachSilence)
{
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

// Every way a transfer ends, and what its client hears: the stated error and exactly one
// finished(), however late one would come; or nothing after a slot deleted the reply. After "=":
// error(), or -1 once deleted.
TEST_F(RealServices, EachWayATransferEndsGivesItsErrorAndOneFinished)
{
    local.setRoute("/ok", {HttpTestServer::Mode::Answer, {}, "ok"});
    local.setRoute("/stall", {HttpTestServer::Mode::Stall, {}, {}});
    local.setRoute("/trickle", {HttpTestServer::Mode::Trickle, {}, {}});
    for (const QByteArray route :
         {"/ftp 302 Found\r\nLocation: ftp://127.0.0.1/", "/hop 307 Again\r\nLocation: /trickle",
          "/bare 302 Found", "/blank 303 See Other\r\nLocation: "}) {
        const int space = route.indexOf(' ');
        local.setRoute(route.left(space),
                       {HttpTestServer::Mode::Malformed,
                        {},
                        "HTTP/1.1 " + route.mid(space + 1) + "\r\nContent-Length: 5\r\n\r\nmoved"});
    }
    // Whole: a short whole-transfer bound (the time-outs have a table of their own, above); Post:
    // a custom POST of one byte; https is nginx's.
    constexpr int Whole = 2048, Post = 8192;
    const struct
    {
        const char* path;
        int options;
        QString at; // the report in whose slot the action runs, or "start"
        QString action;
        QString outcome;
    } cases[] = {
        {"/ok", 0, "finished", "abort", "finished abort at:/ok,false =0"},
        {"/stall", 0, "start", "abort", "abort error:5 finished at:/stall,false =5"},
        {"/trickle", 0, "downloadProgress", "abort", "abort error:5 finished at:/trickle,false =5"},
        {"/stall", Post, "uploadProgress", "abort", "abort error:5 finished at:/stall,false =5"},
        {"/trickle", Stream, "readyRead", "abort", "abort error:5 finished at:/trickle,false =5"},
        {"/hello.txt", Trust, "encrypted", "abort",
         "encrypted abort error:5 finished at:/hello.txt,false =5"},
        {"/hello.txt", Https, "sslErrors", "abort",
         "sslErrors:true abort error:5 finished at:/hello.txt,false =5"},
        // Failed already: the toolkit keeps the first error and finishes at once.
        {"/missing", 0, "error", "abort", "error:203 abort finished at:/missing,false =203"},
        {"/ftp", Follow, "error", "abort", "error:301 abort finished at:/ftp,false =301"},
        // The redirect's own body is not reported: the abort comes on the next request's.
        {"/hop", Follow | Post, "downloadProgress", "abort", "abort error:5 finished at:/trickle,false =5"},
        {"/hop", Follow | Whole, "", "", "error:5 finished at:/trickle,false =5"},
        // A redirect that says nowhere is the answer, body included.
        {"/bare", Follow, "", "", "finished at:/bare,false moved =0"},
        {"/blank", Follow, "", "", "finished at:/blank,false moved =0"},
        {"/trickle", 0, "downloadProgress", "delete", "delete =-1"},
        {"/stall", Post, "uploadProgress", "delete", "delete =-1"},
        {"/trickle", Stream, "readyRead", "delete", "delete =-1"},
        {"/hello.txt", Trust, "encrypted", "delete", "encrypted delete =-1"},
        {"/hello.txt", Https, "sslErrors", "delete", "sslErrors:true delete =-1"},
        {"/missing", 0, "error", "delete", "error:203 delete =-1"},
        {"/ok", 0, "finished", "delete", "finished delete =-1"},
        {"/ftp", Follow, "error", "delete", "error:301 delete =-1"},
    };
    for (const auto& c : cases) {
        CKyNANetworkRequest request(c.options & Https ? url(c.path, true) : local.url(c.path));
        if ((c.options & Trust) == Trust)
            request.setCaCertificates(QSslCertificate::fromData(file("ca.pem")));
        request.setStreaming(c.options & Stream);
        request.setFollowRedirects(c.options & Follow);
        request.setRequestTimeout(c.options & Whole ? 300 : 10000);
        QStringList outcome = run(request, c.options & Post ? "POST" : "GET", c.options, c.at, c.action);
        if (body == "moved")
            outcome << body;
        EXPECT_EQ((outcome << QStringLiteral("=%1").arg(code)).join(' ').toStdString(),
                  c.outcome.toStdString());
        // The toolkit's own words when abort(), handed on as it is, comes after its error.
        g_warnings.removeAll(
            "QNetworkReplyImplPrivate::error: Internal problem, this method must only be called once.");
    }
}

// Answers, in order, that the slot gives ("" gives none); the slot's calls as "ask" or "retry".
TEST_F(RealServices, SignInAsksTheSlotAtMostTwiceAndNeverLoops)
{
    const QString good = "plugin:secret", bad = "plugin:wrong";
    const struct
    {
        const char* path;
        QString ahead; // user:password, or a bearer token after "Bearer "
        QStringList answers;
        QString outcome;
    } cases[] = {
        {"/private/hello.txt", "", {""}, "ask error:204 finished =401"},
        {"/private/hello.txt", good, {}, "finished =200 signed in"},
        {"/private/hello.txt", "", {good}, "ask finished =200 signed in"},
        {"/private/hello.txt", bad, {bad, good}, "retry error:204 finished =401"},
        {"/private/hello.txt", "", {bad, bad, bad}, "ask retry error:204 finished =401"},
        {"/private/hello.txt", bad, {good}, "retry finished =200 signed in"},
        {"/bearer", "Bearer t0ken", {}, "finished =200 bearer"},
        {"/bearer", "Bearer other", {}, "error:204 finished =401"},
    };
    for (const auto& c : cases) {
        CKyNANetworkAccessManager manager;
        QStringList asked, answers = c.answers;
        manager.authenticationRequired().connect([&](CKyNAAuthentication& question) {
            EXPECT_EQ(question.realm(), "CommonUI");
            asked << (question.isRetry() ? "retry" : "ask");
            const QStringList answer = answers.isEmpty() ? QStringList() : answers.takeFirst().split(':');
            if (answer.size() == 2)
                question.setCredentials(answer[0], answer[1]);
        });
        CKyNANetworkRequest request(url(QLatin1String(c.path)));
        if (c.ahead.startsWith("Bearer "))
            request.setBearerToken(c.ahead.mid(7).toLatin1());
        else if (!c.ahead.isEmpty())
            request.setCredentials(c.ahead.section(':', 0, 0), c.ahead.section(':', 1));
        std::unique_ptr<CKyNANetworkReply> reply(manager.get(request));
        Recorder recorder;
        ASSERT_TRUE(waitFinished(RecordReply(recorder, reply.get())));
        const QString status = reply->attribute(CKyNANetworkRequest::HttpStatusCodeAttribute).toString();
        const QString seen = (asked + Outcome(recorder)
                              << "=" + status + " " + (status == "200" ? reply->readAll() : QByteArray()))
                                 .join(' ');
        EXPECT_EQ(seen.trimmed().toStdString(), c.outcome.toStdString()) << c.path;
    }
}

// Against redirect_peer.py: two ports on 127.0.0.1 that redirect as told and echo the request that
// reaches /headers. A missing interpreter fails here.
TEST(RedirectCredentials, NeverLeaveTheOriginTheClientAddressed)
{
    QProcess peer;
    peer.start(QStringLiteral("/usr/bin/python3"),
               {QStringLiteral(COMMONUI_TESTS_DIR "/NA/redirect_peer.py")});
    waitUntil([&] { return peer.canReadLine() || peer.state() == QProcess::NotRunning; }, 20000);
    const QStringList ports = QString::fromLatin1(peer.readLine()).trimmed().split(QLatin1Char(' '));
    ASSERT_EQ(ports.size(), 2) << peer.readAllStandardError().toStdString();
    const QString a = "http://127.0.0.1:" + ports[0], b = "http://127.0.0.1:" + ports[1],
                  host = "http://localhost:" + ports[0], echo = "/headers";
    const auto to = [](int code, const QString& target) {
        return QStringLiteral("/to/%1/").arg(code) + QString::fromLatin1(QUrl::toPercentEncoding(target));
    };
    // What reached /headers: the method, whether the credentials came along, the type and the body.
    const struct
    {
        int code;
        QByteArray verb;
        QString target;
        QString seen;
    } cases[] = {
        {302, "GET", a + echo, "GET credentials:3"},
        {307, "POST", a + echo, "POST credentials:3 typed body"},
        {301, "GET", b + echo, "GET credentials:0"},
        // 307 and 308 repeat a POST, body and type; the others turn it into a bare GET.
        {302, "POST", b + echo, "GET credentials:0"},
        {308, "POST", b + echo, "POST credentials:0 typed body"},
        {307, "POST", host + echo, "POST credentials:0 typed body"},
        {308, "GET", host + echo, "GET credentials:0"},
        // Gone once the transfer left the origin, also on the way back.
        {303, "GET", b + to(302, a + echo), "GET credentials:0"},
    };
    CKyNANetworkAccessManager manager;
    for (const auto& c : cases) {
        CKyNANetworkRequest request(QUrl(a + to(c.code, c.target)));
        for (const QByteArray header : {"Authorization:Bearer secret", "proxy-authorization:Basic cHJveHk=",
                                        "Cookie:session=1", "X-Kept:yes"})
            request.setRawHeader(header.split(':')[0], header.split(':')[1]);
        if (c.verb == "POST")
            request.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("text/plain"));
        request.setFollowRedirects(true);
        std::unique_ptr<CKyNANetworkReply> reply(
            c.verb == "GET" ? manager.get(request) : manager.post(request, QByteArray("payload")));
        Recorder recorder;
        ASSERT_TRUE(waitFinished(RecordReply(recorder, reply.get())));
        const QByteArray got = reply->readAll();
        const int credentials =
            got.contains("Bearer secret") + got.contains("cHJveHk=") + got.contains("session=1");
        const QString seen = got.left(got.indexOf(" /headers ")) +
                             QStringLiteral(" credentials:%1").arg(credentials) +
                             (got.contains("Content-Type: text/plain") ? " typed" : "") +
                             (got.endsWith("\r\n\r\npayload") ? " body" : "");
        EXPECT_EQ(seen.toStdString(), c.seen.toStdString()) << c.code << ' ' << c.target.toStdString();
        EXPECT_TRUE(got.contains("X-Kept: yes") && Outcome(recorder) == QStringList{"finished"});
    }
    peer.closeWriteChannel();
    peer.waitForFinished(5000);
}
