#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"

namespace
{

using Route = HttpTestServer::Route;
using Mode = HttpTestServer::Mode;

Route Raw(const QByteArray& answer)
{
    return Route{Mode::Malformed, {}, answer};
}

} // namespace

// Every way a transfer ends, and what its client hears: the stated error and
// exactly one finished(), however late one looks; or nothing at all after a
// slot deleted the reply. An abort is always asked for twice.
TEST(TransferEnd, EachWayGivesItsErrorAndOneFinished)
{
    HttpTestServer server;
    server.setRoute("/ok", Route{Mode::Answer, {}, "ok"});
    server.setRoute("/stall", Route{Mode::Stall, {}, {}});
    server.setRoute("/trickle", Route{Mode::Trickle, {}, {}});
    server.setRoute("/loop", Raw("HTTP/1.1 302 Found\r\nLocation: /loop\r\nContent-Length: 0\r\n\r\n"));
    server.setRoute("/hop",
                    Raw("HTTP/1.1 307 Again\r\nLocation: /trickle\r\nContent-Length: 5\r\n\r\nmoved"));
    server.setRoute("/bare", Raw("HTTP/1.1 302 Found\r\nContent-Length: 5\r\n\r\nmoved"));
    server.setRoute("/blank", Raw("HTTP/1.1 303 See Other\r\nLocation: \r\nContent-Length: 5\r\n\r\nmoved"));
    enum { Post = 1, Stream = 2, Follow = 4, Whole = 8, Silence = 16 };
    const QStringList aborted{"abort", "error:5", "finished"};
    const struct
    {
        const char* path;
        int options;
        QString at; // the report in whose slot the action runs, or "start"
        QString action;
        QStringList outcome;
        int error;
    } cases[] = {
        {"/ok", 0, "", "", {"finished", "at:/ok,200"}, 0},
        {"/ok", 0, "finished", "abort", {"finished", "abort", "at:/ok,200"}, 0},
        {"/stall", 0, "start", "abort", aborted + QStringList{"at:/stall,0"}, 5},
        {"/trickle", 0, "downloadProgress", "abort", aborted + QStringList{"at:/trickle,200"}, 5},
        {"/stall", Post, "uploadProgress", "abort", aborted + QStringList{"at:/stall,0"}, 5},
        {"/trickle", Stream, "readyRead", "abort", aborted + QStringList{"at:/trickle,200"}, 5},
        // Failed already: the toolkit keeps the first error and finishes at once.
        {"/missing", 0, "error", "abort", {"error:203", "abort", "finished", "at:/missing,404"}, 203},
        {"/stall", Whole, "", "", {"error:5", "finished", "at:/stall,0"}, 5},
        {"/trickle", Whole | Stream, "", "", {"error:5", "finished", "at:/trickle,200"}, 5},
        {"/stall", Silence, "", "", {"error:5", "finished", "at:/stall,0"}, 5},
        {"/loop", Follow, "", "", {"error:10", "finished", "at:/loop,302"}, 10},
        {"/loop", Follow, "error", "abort", {"error:10", "abort", "finished", "at:/loop,302"}, 10},
        // The redirect's own body is not reported: the abort comes on the next request's.
        {"/hop", Follow | Post, "downloadProgress", "abort", aborted + QStringList{"at:/trickle,200"}, 5},
        {"/hop", Follow | Whole, "", "", {"error:5", "finished", "at:/trickle,200"}, 5},
        // A redirect that says nowhere is the answer.
        {"/bare", Follow, "", "", {"finished", "at:/bare,302", "body:moved"}, 0},
        {"/blank", Follow, "", "", {"finished", "at:/blank,303", "body:moved"}, 0},
        {"/trickle", 0, "downloadProgress", "delete", {"delete"}, -1},
        {"/stall", Post, "uploadProgress", "delete", {"delete"}, -1},
        {"/trickle", Stream, "readyRead", "delete", {"delete"}, -1},
        {"/missing", 0, "error", "delete", {"error:203", "delete"}, -1},
        {"/ok", 0, "finished", "delete", {"finished", "delete"}, -1},
        {"/loop", Follow, "error", "delete", {"error:10", "delete"}, -1},
    };
    CKyNANetworkAccessManager manager;
    for (const auto& c : cases) {
        SCOPED_TRACE(QStringLiteral("%1 %2 in %3").arg(c.path, c.action, c.at).toStdString());
        CKyNANetworkRequest request(server.url(QLatin1String(c.path)));
        request.setStreaming(c.options & Stream);
        request.setFollowRedirects(c.options & Follow);
        request.setRequestTimeout(c.options & Whole ? 300 : 10000);
        request.setInactivityTimeout(c.options & Silence ? 100 : 0);
        request.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("text/plain"));
        CKyNANetworkReply* reply =
            c.options & Post ? manager.post(request, QByteArray(1 << 16, 'p')) : manager.get(request);
        Recorder log;
        RecordReply(log, reply);
        bool acted = false;
        const auto act = [&](const QString& report) {
            if (acted || report != c.at)
                return;
            acted = true;
            log.add(c.action);
            if (c.action == QLatin1String("delete")) {
                delete reply;
                reply = nullptr;
            } else {
                reply->abort();
                reply->abort();
            }
        };
        // Each report is recorded first, then acted on.
        reply->downloadProgress().connect([&](long long, long long) { act("downloadProgress"); });
        reply->uploadProgress().connect([&](long long, long long) { act("uploadProgress"); });
        reply->readyRead().connect([&] { act("readyRead"); });
        reply->error().connect([&](CKyNANetworkReply::NetworkError) { act("error"); });
        reply->finished().connect([&] { act("finished"); });
        act("start");
        ASSERT_TRUE(waitUntil([&] { return !reply || reply->isFinished(); }));
        // Whatever comes late would come by the time the connection is closed.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_TRUE(waitUntil([&] { return server.openConnections() == 0; }));
        if (reply && reply->getHandle()) {
            log.add("at", reply->url().path(),
                    reply->attribute(CKyNANetworkRequest::HttpStatusCodeAttribute).toInt());
            if (c.error == 0 && c.options & Follow)
                log.add("body", QString::fromLatin1(reply->readAll()));
        }
        EXPECT_EQ(Outcome(log).join(' ').toStdString(), c.outcome.join(' ').toStdString());
        EXPECT_EQ(reply ? int(errorCode(*reply)) : -1, c.error);
        delete reply;
    }
}
