#include "NA/ClosedPort.h"
#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"

#include <QtTest/QSignalSpy>

namespace
{

using Route = HttpTestServer::Route;
using Mode = HttpTestServer::Mode;

class NetworkReplyFault : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(server.isListening()); }

    HttpTestServer server;
    CKyNANetworkAccessManager manager;
};

} // namespace

// Each fault ends the reply with its own error and then finished, well before
// the request's time-out would have cancelled it. (No case for a host name
// that does not resolve: the resolver here would ask a name server off this
// machine, even for a name under .invalid.)
TEST_F(NetworkReplyFault, EachFaultGivesItsErrorThenFinishedBeforeTheTimeout)
{
    ClosedPort refused;
    ASSERT_TRUE(refused.isValid());
    const struct
    {
        const char* name;
        Mode mode;
        QByteArray answer;
        CKyNANetworkReply::NetworkError error = CKyNANetworkReply::RemoteHostClosedError;
    } cases[] = {
        {"closed in the middle of the body", Mode::CloseMidBody, QByteArray(4000, 'm')},
        // The toolkit takes a status line it cannot read for a broken
        // connection (and tries again before it gives up).
        {"malformed status line", Mode::Malformed, "HTTP/1.1 two hundred OK\r\nContent-Length: 2\r\n\r\nok"},
        {"no HTTP at all", Mode::Malformed, "220 mail.example ESMTP ready\r\n"},
        {"closed without an answer", Mode::CloseEarly, ""},
        {"connection refused", Mode::Answer, "", CKyNANetworkReply::ConnectionRefusedError},
    };
    const int timeout = 10000;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        server.setRoute("/", Route{c.mode, {}, c.answer});
        CKyNANetworkRequest request(c.error == CKyNANetworkReply::ConnectionRefusedError ? refused.url()
                                                                                         : server.url("/"));
        request.setRequestTimeout(timeout);
        std::unique_ptr<CKyNANetworkReply> reply(manager.get(request));
        Recorder recorder;
        ASSERT_TRUE(waitFinished(RecordReply(recorder, reply.get()), timeout));
        EXPECT_EQ(Outcome(recorder),
                  (QStringList{QStringLiteral("error:%1").arg(int(c.error)), QStringLiteral("finished")}));
        EXPECT_EQ(errorCode(*reply), c.error);
        EXPECT_TRUE(reply->isFinished());
        EXPECT_FALSE(reply->errorString().isEmpty());
        // Whatever arrived is readable and nothing more: never more than was sent.
        EXPECT_LE(reply->readAll().size(), 4000);
    }
}

TEST_F(NetworkReplyFault, DeletingARunningReplyEndsItsTransferAndItsSignals)
{
    server.setRoute("/trickle", Route{Mode::Trickle, {}, {}});
    CKyNANetworkRequest request(server.url(QStringLiteral("/trickle")));

    // Deleted at once, before the event loop has seen the transfer at all.
    delete manager.get(request);

    Recorder log; // outlives the reply
    std::unique_ptr<CKyNANetworkReply> reply(manager.get(request));
    RecordReply(log, reply.get());
    QPointer<QObject> toolkit = reply->getHandle();
    // Progress is reported at most every 100 ms or so while bytes trickle in.
    ASSERT_TRUE(waitUntil([&] { return log.lines.size() >= 2; }));

    reply.reset();
    const QStringList before = log.lines;
    // The toolkit reply lives on until the event loop deletes it, and the
    // bytes keep coming meanwhile: nothing of it reaches the deleted reply.
    QSignalSpy arrivals(toolkit.data(), SIGNAL(downloadProgress(qint64, qint64)));
    ASSERT_TRUE(waitUntil([&] { return arrivals.count() >= 2; }));
    EXPECT_EQ(log.lines, before);

    // Its deletion takes the connection and the time-out guard with it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(toolkit.isNull());
    EXPECT_TRUE(manager.getHandle()->findChildren<QNetworkReply*>().isEmpty());
    EXPECT_TRUE(waitUntil([&] { return server.openConnections() == 0; }));
    EXPECT_EQ(log.lines, before);
}
