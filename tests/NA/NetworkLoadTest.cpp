#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"
#include "NA/WebSocketTestServer.h"

#include <vector>

// Many transfers, big bodies and long message streams on 127.0.0.1; the
// suites' names keep them out of the memcheck run, where they would take
// most of the time and prove nothing more than the fault tests do.

namespace
{

using Route = HttpTestServer::Route;

// A body that tells where each of its bytes belongs: every eight bytes spell
// their own block number (offset by the index) in hexadecimal.
QByteArray patternBody(int index, int size)
{
    QByteArray body(size, Qt::Uninitialized);
    char* data = body.data();
    for (int i = 0; i < size; ++i) {
        const unsigned block = unsigned(i / 8 + index);
        data[i] = "0123456789abcdef"[(block >> (4 * (7 - i % 8))) & 0xfu];
    }
    return body;
}

int liveToolkitReplies(const CKyNANetworkAccessManager& manager)
{
    return manager.getHandle()->findChildren<QNetworkReply*>().size();
}

class NetworkLoad : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(server.isListening()); }

    HttpTestServer server;
    CKyNANetworkAccessManager manager;
};

} // namespace

TEST_F(NetworkLoad, FiveHundredConcurrentGetsAllFinishIntactAndLeaveNoReplyBehind)
{
    const int count = 500;
    std::vector<std::unique_ptr<CKyNANetworkRequest>> requests;
    for (int i = 0; i < count; ++i) {
        const QByteArray path = "/item/" + QByteArray::number(i);
        server.setRoute(path, Route{HttpTestServer::Mode::Answer, {}, patternBody(i, 200 + 37 * (i % 50))});
        requests.push_back(std::make_unique<CKyNANetworkRequest>(server.url(QString::fromLatin1(path))));
        requests.back()->setRequestTimeout(60000);
    }

    struct Result
    {
        Recorder log;
        QByteArray body;
    };
    std::vector<Result> results(count);
    int deleted = 0;
    for (int i = 0; i < count; ++i) {
        CKyNANetworkReply* reply = manager.get(*requests[i]);
        ASSERT_TRUE(reply);
        results[i].log.on(reply->error(), QStringLiteral("error"));
        // Read at the finish; deleted there and then (every other one) or on
        // the next pass of the event loop, while the other transfers go on.
        reply->finished().connect([&results, &deleted, reply, i] {
            results[i].log.add(QStringLiteral("finished"));
            results[i].body = reply->readAll();
            // A copy of its own: the slot's captures go with the reply.
            const auto deleteReply = [&deleted, reply] {
                delete reply;
                ++deleted;
            };
            if (i % 2 == 0)
                deleteReply();
            else
                QTimer::singleShot(0, deleteReply);
        });
    }
    EXPECT_EQ(liveToolkitReplies(manager), count);

    ASSERT_TRUE(waitUntil([&] { return deleted == count; }, 60000));
    for (int i = 0; i < count; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(results[i].log.lines, QStringList{QStringLiteral("finished")});
        EXPECT_EQ(results[i].body, patternBody(i, 200 + 37 * (i % 50)));
    }
    EXPECT_EQ(server.requests().size(), count);

    // The toolkit replies were handed to the event loop for deletion.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(liveToolkitReplies(manager), 0);
}

TEST_F(NetworkLoad, TenMegabyteBodyArrivesIntact)
{
    const QByteArray big = patternBody(10, 10 * 1024 * 1024);
    server.setRoute("/big", Route{HttpTestServer::Mode::Answer, {}, big});
    CKyNANetworkRequest request(server.url(QStringLiteral("/big")));
    std::unique_ptr<CKyNANetworkReply> reply(manager.get(request));
    Recorder recorder;
    ASSERT_TRUE(waitFinished(RecordReply(recorder, reply.get()), 30000));

    EXPECT_EQ(Outcome(recorder), QStringList{QStringLiteral("finished")});
    EXPECT_EQ(recorder.last(QStringLiteral("downloadProgress")).section(QLatin1Char(','), 0, 0).toLongLong(),
              big.size());
    EXPECT_EQ(reply->bytesAvailable(), big.size());
    const QByteArray body = reply->readAll();
    EXPECT_EQ(body.size(), big.size());
    EXPECT_TRUE(body == big);
}

TEST(WebSocketLoad, HundredThousandTextMessagesArriveInOrder)
{
    WebSocketTestServer server;
    ASSERT_TRUE(server.isListening());
    CKyNAWebSocket socket(QString(), CKyNAWebSocketProtocol::VersionLatest);
    Recorder log;
    RecordSocket(log, socket);
    const int count = 100000;
    socket.open(CKyNANetworkRequest(server.url()));
    ASSERT_TRUE(waitUntil([&] { return log.has(QStringLiteral("connected")) && server.peer(); }));
    QStringList expected{QStringLiteral("connected")};
    for (int i = 0; i < count; ++i) {
        server.peer()->sendTextMessage(QString::number(i));
        expected << QStringLiteral("text:%1").arg(i);
    }
    ASSERT_TRUE(waitUntil([&] { return log.lines.size() >= expected.size(); }, 60000));
    EXPECT_TRUE(log.lines == expected);
    socket.blockSignals(true);
}
