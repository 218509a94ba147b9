#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"

#include "NA/EventWait.h"
#include "NA/HttpTestServer.h"
#include "NA/ReplyRecorder.h"
#include "NA/WebSocketTestServer.h"

#include <QtCore/QBuffer>
#include <QtNetwork/QNetworkRequest>

#include <gtest/gtest.h>

#include <climits>
#include <memory>

// Null devices, requests without a toolkit request or a URL, positions and
// codes outside what a reply holds, sockets opened twice or closed unopened:
// defined answers where there are some, and never a crash.

namespace
{

using Route = HttpTestServer::Route;
using Mode = HttpTestServer::Mode;

// Takes the request's toolkit request away for the scope and gives it back.
struct WithoutToolkitRequest
{
    explicit WithoutToolkitRequest(CKyNANetworkRequest& request)
        : request(request)
        , taken(request.getHandle())
    {
        request.setHandle(nullptr);
    }
    ~WithoutToolkitRequest() { request.setHandle(taken); }

    CKyNANetworkRequest& request;
    QNetworkRequest* const taken;
};

class NetworkBadInput : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.isListening());
        Route echo;
        echo.mode = Mode::Echo;
        server.setRoute("/echo", echo);
    }

    // Runs the reply to its end and gives it back with what it reported.
    std::unique_ptr<CKyNANetworkReply> finish(CKyNANetworkReply* started, QStringList* log = nullptr)
    {
        std::unique_ptr<CKyNANetworkReply> reply(started);
        EXPECT_TRUE(reply);
        if (!reply)
            return reply;
        ReplyRecorder recorder(reply.get());
        EXPECT_TRUE(waitUntil([&] { return recorder.isFinished(); }, 10000));
        if (log)
            *log = recorder.log;
        return reply;
    }

    HttpTestServer server;
    CKyNANetworkAccessManager manager;
};

} // namespace

TEST_F(NetworkBadInput, NullOrClosedDevicesSendNoBody)
{
    CKyNANetworkRequest request(server.url(QStringLiteral("/echo")));
    QBuffer closed;
    closed.setData("never opened");

    QStringList log;
    SCOPED_TRACE("no device");
    auto reply = finish(manager.post(request, static_cast<QIODevice*>(nullptr)), &log);
    EXPECT_EQ(log, QStringList{QStringLiteral("finished")});
    EXPECT_EQ(reply->rawHeader("X-Echo-Method"), QByteArray("POST"));
    EXPECT_TRUE(reply->readAll().isEmpty());

    reply = finish(manager.put(request, static_cast<QIODevice*>(nullptr)), &log);
    EXPECT_EQ(log, QStringList{QStringLiteral("finished")});
    EXPECT_EQ(reply->rawHeader("X-Echo-Method"), QByteArray("PUT"));
    EXPECT_TRUE(reply->readAll().isEmpty());

    // A device that cannot be read from is the toolkit's to handle; at the
    // latest the time-out ends the transfer.
    request.setRequestTimeout(3000);
    for (const char* method : {"POST", "PUT"}) {
        SCOPED_TRACE(method);
        reply = finish(method == QByteArray("POST") ? manager.post(request, &closed)
                                                    : manager.put(request, &closed),
                       &log);
        EXPECT_EQ(log.value(log.size() - 1), QStringLiteral("finished"));
    }
}

TEST_F(NetworkBadInput, RequestsWithoutToolkitRequestOrUrl)
{
    // Without a toolkit request there is nothing to send: no reply.
    CKyNANetworkRequest request(server.url(QStringLiteral("/echo")));
    {
        WithoutToolkitRequest without(request);
        EXPECT_EQ(manager.get(request), nullptr);
        EXPECT_EQ(manager.post(request, QByteArray("x")), nullptr);
        EXPECT_EQ(manager.put(request, static_cast<QIODevice*>(nullptr)), nullptr);
        EXPECT_EQ(manager.deleteResource(request), nullptr);
        // The bookkeeping goes on without it.
        request.setUrl(QUrl(QStringLiteral("http://127.0.0.1/")));
        request.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("text/plain"));
        request.setRawHeader("X-A", "1");
        EXPECT_EQ(request.rawHeader("X-A").toByteArray(), QByteArray("1"));

        CKyNAWebSocket socket(QString(), CKyNAWebSocketProtocol::VersionLatest);
        int reports = 0;
        socket.error().connect([&reports](int) { ++reports; });
        socket.open(request);
        QCoreApplication::processEvents();
        EXPECT_EQ(reports, 0);
    }

    // An empty URL fails in the toolkit's way.
    CKyNANetworkRequest empty{QUrl()};
    QStringList log;
    auto reply = finish(manager.get(empty), &log);
    EXPECT_EQ(log, (QStringList{QStringLiteral("error:%1").arg(int(CKyNANetworkReply::ProtocolUnknownError)),
                                QStringLiteral("finished")}));

    // The caller's request may go while its transfer runs; only request()
    // would then point at nothing.
    auto gone = std::make_unique<CKyNANetworkRequest>(server.url(QStringLiteral("/echo")));
    CKyNANetworkReply* started = manager.post(*gone, QByteArray("body"));
    gone.reset();
    reply = finish(started, &log);
    EXPECT_EQ(log, QStringList{QStringLiteral("finished")});
    EXPECT_EQ(reply->readAll(), QByteArray("body"));
}

TEST_F(NetworkBadInput, ReplyPositionsAndCodesOutsideWhatItHolds)
{
    CKyNANetworkRequest request(server.url(QStringLiteral("/echo")));
    auto reply = finish(manager.post(request, QByteArray("0123456789")));

    // The body is a stream: it cannot be wound back or skipped ahead.
    for (long long position : {-1LL, 5LL, 11LL, LLONG_MAX, LLONG_MIN})
        EXPECT_FALSE(reply->seek(position));
    EXPECT_EQ(reply->readAll(), QByteArray("0123456789"));
    EXPECT_TRUE(reply->readAll().isEmpty());
    EXPECT_EQ(reply->bytesAvailable(), 0);

    for (int header : {9, 100, 1000})
        EXPECT_FALSE(reply->header(CKyNANetworkRequest::KnownHeaders(header)).isValid());
    for (int code : {int(CKyNANetworkRequest::User), int(CKyNANetworkRequest::UserMax), 999})
        EXPECT_FALSE(reply->attribute(CKyNANetworkRequest::Attribute(code)).isValid());
    EXPECT_FALSE(reply->hasRawHeader(QByteArray()));
    EXPECT_TRUE(reply->rawHeader(QByteArray()).isNull());
    // Aborting what is over changes nothing.
    reply->abort();
    EXPECT_EQ(errorCode(*reply), CKyNANetworkReply::NoError);
}

TEST(WebSocketBadInput, ClosedUnopenedOpenedTwiceAndOpenedOnNothing)
{
    WebSocketTestServer server;
    ASSERT_TRUE(server.isListening());
    CKyNAWebSocket socket(QString(), CKyNAWebSocketProtocol::VersionLatest);
    int connections = 0;
    int errors = 0;
    socket.connected().connect([&connections] { ++connections; });
    socket.error().connect([&errors](int) { ++errors; });

    socket.close(CKyNAWebSocketProtocol::CloseCodeNormal, QString());
    socket.close(CKyNAWebSocketProtocol::CloseCode(999), QString(200, QLatin1Char('r')));
    socket.open(CKyNANetworkRequest(QUrl()));
    EXPECT_GE(errors, 1);

    // A second open while the first is under way starts over; the socket ends
    // up connected once more.
    const CKyNANetworkRequest request(server.url());
    socket.open(request);
    socket.open(request);
    ASSERT_TRUE(waitUntil([&] { return connections >= 1 && server.peer(); }));
    socket.open(request);
    ASSERT_TRUE(waitUntil([&] { return connections >= 2; }));
    socket.close(CKyNAWebSocketProtocol::CloseCode(999), QString(200, QLatin1Char('r')));
    socket.close(CKyNAWebSocketProtocol::CloseCodeNormal, QString());
    socket.blockSignals(true);
}
