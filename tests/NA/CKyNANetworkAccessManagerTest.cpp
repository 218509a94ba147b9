#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QBuffer>
#include <QtNetwork/QNetworkAccessManager>

#include <functional>

namespace
{

using Route = HttpTestServer::Route;
using Mode = HttpTestServer::Mode;

class NetworkAccessManager : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.isListening());
        server.setRoute("/", Route());
    }

    HttpTestServer server;
    CKyNANetworkAccessManager manager;
};

} // namespace

// Each call makes a new reply that remembers the caller's request.
TEST_F(NetworkAccessManager, GetFinishesWithStatusBodyAndRawHeaderBytes)
{
    server.setRoute("/hello",
                    Route{Mode::Answer, {{"Content-Type", "text/plain"}, {"X-Custom", "abc"}}, "hello"});
    CKyNANetworkRequest request(server.url(QStringLiteral("/hello")));
    request.setRawHeader("X-Client", "plug-in");
    std::unique_ptr<CKyNANetworkReply> reply(manager.get(request)), second(manager.get(request));
    ASSERT_TRUE(reply && second);
    EXPECT_NE(reply->getHandle(), second->getHandle());
    EXPECT_EQ(second->request(), &request);
    // The toolkit replies belong to the toolkit manager.
    EXPECT_EQ(reply->getHandle()->parent(), manager.getHandle());
    Recorder recorder;
    RecordReply(recorder, reply.get());
    EXPECT_TRUE(reply->isRunning());

    ASSERT_TRUE(waitFinished(recorder));
    EXPECT_EQ(Outcome(recorder), QStringList{QStringLiteral("finished")});
    EXPECT_TRUE(reply->isFinished());
    EXPECT_FALSE(reply->isRunning());
    EXPECT_EQ(errorCode(*reply), CKyNANetworkReply::NoError);
    EXPECT_EQ(reply->attribute(CKyNANetworkRequest::HttpStatusCodeAttribute).toInt(), 200);
    EXPECT_EQ(reply->readAll(), QByteArray("hello"));
    // Each attribute code reads the toolkit's attribute of that name, also
    // where Qt 6 numbers it differently.
    auto* toolkit = qobject_cast<QNetworkReply*>(reply->getHandle());
    ASSERT_TRUE(toolkit);
    const std::pair<CKyNANetworkRequest::Attribute, QNetworkRequest::Attribute> attributes[] = {
        {CKyNANetworkRequest::HttpReasonPhraseAttribute, QNetworkRequest::HttpReasonPhraseAttribute},
        {CKyNANetworkRequest::HTTP2WasUsedAttribute, QNetworkRequest::Http2WasUsedAttribute},
    };
    for (const auto& attribute : attributes) {
        ASSERT_TRUE(toolkit->attribute(attribute.second).isValid()) << attribute.second;
        EXPECT_EQ(reply->attribute(attribute.first), toolkit->attribute(attribute.second)) << attribute.first;
    }
    EXPECT_EQ(reply->attribute(CKyNANetworkRequest::SpdyWasUsedAttribute), QVariant(false));

    // Known headers come back as the bytes received, never as typed values.
    const QVariant length = reply->header(CKyNANetworkRequest::ContentLengthHeader);
    EXPECT_EQ(length.type(), QVariant::ByteArray);
    EXPECT_EQ(length.toByteArray(), QByteArray("5"));
    EXPECT_EQ(reply->header(CKyNANetworkRequest::ContentTypeHeader).toByteArray(), QByteArray("text/plain"));
    EXPECT_EQ(reply->rawHeader("X-Custom"), QByteArray("abc"));

    ASSERT_TRUE(waitUntil([&] { return server.requests().size() == 2; }));
    EXPECT_EQ(server.requests()[0].method, QByteArray("GET"));
    EXPECT_EQ(server.requests()[0].header("X-Client"), QByteArray("plug-in"));

    // An error status still delivers status and body: without a route the server answers 404.
    CKyNANetworkRequest missing(server.url(QStringLiteral("/missing")));
    reply.reset(manager.get(missing));
    Recorder failed;
    ASSERT_TRUE(waitFinished(RecordReply(failed, reply.get())));
    EXPECT_EQ(Outcome(failed), (QStringList{QStringLiteral("error:203"), QStringLiteral("finished")}));
    EXPECT_EQ(reply->attribute(CKyNANetworkRequest::HttpStatusCodeAttribute).toInt(), 404);
    EXPECT_EQ(reply->readAll(), QByteArray("no route"));
}

TEST_F(NetworkAccessManager, PostPutAndDeleteReachTheServerAsSent)
{
    server.setRoute("/echo", Route{Mode::Echo, {}, {}});
    CKyNANetworkRequest request(server.url(QStringLiteral("/echo")));
    request.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("application/octet-stream"));

    QBuffer postBody;
    postBody.setData("posted from a device");
    postBody.open(QIODevice::ReadOnly);
    QBuffer putBody;
    putBody.setData(QByteArray("put from a device\0with a zero", 29));
    putBody.open(QIODevice::ReadOnly);

    // One at a time, so that the server's last request is the one checked.
    struct Case
    {
        QByteArray method;
        QByteArray body;
        std::function<CKyNANetworkReply*()> start;
    };
    const Case cases[] = {
        {"POST", "posted bytes", [&] { return manager.post(request, QByteArray("posted bytes")); }},
        {"POST", postBody.data(), [&] { return manager.post(request, &postBody); }},
        {"PUT", "put bytes", [&] { return manager.put(request, QByteArray("put bytes")); }},
        {"PUT", putBody.data(), [&] { return manager.put(request, &putBody); }},
        {"DELETE", QByteArray(), [&] { return manager.deleteResource(request); }},
    };

    for (const Case& c : cases) {
        SCOPED_TRACE(c.method.constData());
        std::unique_ptr<CKyNANetworkReply> reply(c.start());
        ASSERT_TRUE(reply);
        Recorder recorder;
        ASSERT_TRUE(waitFinished(RecordReply(recorder, reply.get())));
        EXPECT_EQ(Outcome(recorder), QStringList{QStringLiteral("finished")});
        EXPECT_EQ(reply->rawHeader("X-Echo-Method"), c.method);
        EXPECT_EQ(reply->readAll(), c.body);
        EXPECT_GT(recorder.count(QStringLiteral("downloadProgress")), 0);
        EXPECT_TRUE(c.body.isEmpty() || recorder.count(QStringLiteral("uploadProgress")) > 0);

        const HttpTestRequest& received = server.requests().last();
        EXPECT_EQ(received.method, c.method);
        EXPECT_EQ(received.path, QByteArray("/echo"));
        EXPECT_EQ(received.body, c.body);
    }
    EXPECT_EQ(server.requests().size(), 5);
}

// A reply left behind by its manager does not reach for the gone toolkit reply.
// A reply deleted in its own finished slot leaves its toolkit reply, which is
// still reporting, to the event loop.
TEST_F(NetworkAccessManager, ToolkitObjectsAreReleasedManagerAtOnceReplyLater)
{
    auto* owned = new CKyNANetworkAccessManager;
    QPointer<QObject> toolkitManager = owned->getHandle();
    ASSERT_TRUE(qobject_cast<QNetworkAccessManager*>(toolkitManager));

    CKyNANetworkRequest request(server.url(QStringLiteral("/")));
    CKyNANetworkReply* reply = owned->get(request);
    std::unique_ptr<CKyNANetworkReply> leftBehind(owned->get(request));
    QPointer<QObject> toolkitReply = reply->getHandle();
    ASSERT_TRUE(qobject_cast<QNetworkReply*>(toolkitReply));

    bool toolkitReplyOutlivedTheSlot = false;
    reply->finished().connect([reply, &toolkitReply, &toolkitReplyOutlivedTheSlot] {
        // The captures go with the reply.
        const QPointer<QObject>* watched = &toolkitReply;
        bool* outlived = &toolkitReplyOutlivedTheSlot;
        delete reply;
        *outlived = !watched->isNull();
    });
    ASSERT_TRUE(waitUntil([&] { return toolkitReplyOutlivedTheSlot; }));
    EXPECT_FALSE(toolkitReply.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(toolkitReply.isNull());

    delete owned;
    EXPECT_TRUE(toolkitManager.isNull());
    EXPECT_EQ(leftBehind->getHandle(), nullptr);
    EXPECT_EQ(errorCode(*leftBehind), CKyNANetworkReply::NoError);
    EXPECT_TRUE(leftBehind->readAll().isEmpty());
    leftBehind->abort();
}

// Without a toolkit request there is nothing to send: no reply, and a socket
// opened on it stays quiet. An empty URL fails in the toolkit's way.
TEST_F(NetworkAccessManager, RequestsWithoutToolkitRequestOrUrl)
{
    CKyNANetworkRequest request(server.url(QStringLiteral("/echo")));
    QNetworkRequest* taken = request.getHandle();
    request.setHandle(nullptr);
    EXPECT_EQ(manager.get(request), nullptr);
    EXPECT_EQ(manager.post(request, QByteArray("x")), nullptr);
    EXPECT_EQ(manager.put(request, static_cast<QIODevice*>(nullptr)), nullptr);
    EXPECT_EQ(manager.deleteResource(request), nullptr);
    request.setRawHeader("X-A", "1");
    EXPECT_EQ(request.rawHeader("X-A").toByteArray(), QByteArray("1"));
    {
        CKyNAWebSocket socket(QString(), CKyNAWebSocketProtocol::VersionLatest);
        Recorder log;
        RecordSocket(log, socket);
        socket.open(request);
        QCoreApplication::processEvents();
        EXPECT_TRUE(log.lines.isEmpty());
    }
    request.setHandle(taken);

    std::unique_ptr<CKyNANetworkReply> reply(manager.get(CKyNANetworkRequest{QUrl()}));
    Recorder recorder;
    ASSERT_TRUE(waitFinished(RecordReply(recorder, reply.get())));
    EXPECT_EQ(Outcome(recorder),
              (QStringList{QStringLiteral("error:%1").arg(int(CKyNANetworkReply::ProtocolUnknownError)),
                           QStringLiteral("finished")}));
}
