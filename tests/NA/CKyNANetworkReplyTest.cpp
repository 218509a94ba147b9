#include "NA/Impl/CKyNANetworkReplyImpl.h"

#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"

#include <QtTest/QSignalSpy>

namespace
{

using Route = HttpTestServer::Route;
using Mode = HttpTestServer::Mode;
using Pairs = CKyNANetworkReplyImpl::HeaderPairs;

CKyNANetworkReplyImpl* implOf(CKyNANetworkReply& reply)
{
    return static_cast<CKyNANetworkReplyImpl*>(reply.impl());
}

class NetworkReply : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(server.isListening()); }

    // Serves the given headers and body under / and starts fetching it.
    CKyNANetworkReply* start(const HttpHeaderPairs& headers, const QByteArray& body, Mode mode = Mode::Answer)
    {
        server.setRoute("/", Route{mode, headers, body});
        return manager.get(request);
    }

    HttpTestServer server;
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest request{server.url(QStringLiteral("/"))};
};

} // namespace

TEST_F(NetworkReply, NothingIsReadableBeforeTheTransferEnds)
{
    std::unique_ptr<CKyNANetworkReply> reply(
        start({{"Content-Type", "text/plain"}}, QByteArray(2000, 'b'), Mode::StallMidBody));
    Recorder recorder;
    RecordReply(recorder, reply.get());
    auto* toolkit = qobject_cast<QNetworkReply*>(reply->getHandle());
    ASSERT_TRUE(toolkit);
    // Half of the body has arrived in the toolkit reply...
    QSignalSpy arrived(toolkit, &QNetworkReply::readyRead);
    ASSERT_TRUE(arrived.wait(5000));
    EXPECT_EQ(toolkit->bytesAvailable(), 1000);

    // ...but the reply shows none of it until it has failed or finished.
    EXPECT_TRUE(reply->isRunning());
    EXPECT_FALSE(reply->header(CKyNANetworkRequest::ContentTypeHeader).isValid());
    EXPECT_FALSE(reply->hasRawHeader("Content-Type"));
    EXPECT_TRUE(reply->rawHeaderList().isEmpty());
    EXPECT_TRUE(reply->rawHeaderPairs().isEmpty());
    EXPECT_EQ(reply->bytesAvailable(), 0);
    EXPECT_EQ(reply->pos(), 0);
    EXPECT_FALSE(reply->seek(0));
    EXPECT_TRUE(reply->readAll().isEmpty());

    reply->abort();
    ASSERT_TRUE(waitFinished(recorder));
    EXPECT_EQ(Outcome(recorder), (QStringList{QStringLiteral("error:5"), QStringLiteral("finished")}));
    EXPECT_TRUE(reply->isFinished());
    EXPECT_EQ(errorCode(*reply), CKyNANetworkReply::OperationCanceledError);
    EXPECT_EQ(reply->rawHeader("Content-Type"), QByteArray("text/plain"));
}

TEST_F(NetworkReply, RepeatedHeaderNamesMergeAsInTheToolkitAndNamesMatchCaseSensitively)
{
    const HttpHeaderPairs headers{{"X-Rep", "1"},        {"X-Rep", "2"},   {"Set-Cookie", "a=1"},
                                  {"Set-Cookie", "b=2"}, {"X-After", "z"}, {"content-type", "text/plain"}};
    std::unique_ptr<CKyNANetworkReply> reply(start(headers, "body"));
    Recorder recorder;
    ASSERT_TRUE(waitFinished(RecordReply(recorder, reply.get())));
    auto* toolkit = qobject_cast<QNetworkReply*>(reply->getHandle());
    ASSERT_TRUE(toolkit);

    EXPECT_EQ(reply->rawHeaderPairs(), toolkit->rawHeaderPairs());
    EXPECT_EQ(reply->rawHeader("X-Rep"), QByteArray("1, 2"));
    EXPECT_EQ(reply->rawHeader("Set-Cookie"), QByteArray("a=1\nb=2"));
    EXPECT_EQ(reply->header(CKyNANetworkRequest::SetCookieHeader).toByteArray(), QByteArray("a=1\nb=2"));
    EXPECT_EQ(reply->rawHeader("X-After"), QByteArray("z"));
    // The toolkit hands each name once, so the names follow the pairs.
    QList<QByteArray> names;
    for (const auto& pair : toolkit->rawHeaderPairs())
        names << pair.first;
    EXPECT_EQ(reply->rawHeaderList(), names);

    EXPECT_TRUE(reply->hasRawHeader("content-type"));
    EXPECT_FALSE(reply->hasRawHeader("Content-Type"));
    EXPECT_FALSE(reply->header(CKyNANetworkRequest::ContentTypeHeader).isValid());
    EXPECT_EQ(reply->rawHeader("content-type"), QByteArray("text/plain"));
    EXPECT_TRUE(reply->rawHeader("x-after").isNull());
    EXPECT_FALSE(reply->header(CKyNANetworkRequest::KnownHeaders(9)).isValid());
}

TEST_F(NetworkReply, BlockedSignalsStayQuietButTheFinishIsRecorded)
{
    std::unique_ptr<CKyNANetworkReply> reply(start({{"X-Kept", "yes"}}, "quiet"));
    Recorder recorder;
    RecordReply(recorder, reply.get());
    reply->blockSignals(true);
    QSignalSpy toolkitFinished(qobject_cast<QNetworkReply*>(reply->getHandle()), &QNetworkReply::finished);
    ASSERT_TRUE(toolkitFinished.wait(5000));

    EXPECT_TRUE(Outcome(recorder).isEmpty());
    EXPECT_EQ(recorder.count(QStringLiteral("downloadProgress")), 0);
    EXPECT_TRUE(reply->isFinished());
    EXPECT_EQ(reply->rawHeader("X-Kept"), QByteArray("yes"));
    EXPECT_EQ(reply->readAll(), QByteArray("quiet"));
}

// A plug-in may delete the reply from inside the reply's own finished slot;
// the signals die with it, so the slot keeps nothing it needs in its captures.
TEST_F(NetworkReply, DeletingTheReplyInsideItsFinishedSlotEndsTheEmission)
{
    CKyNANetworkReply* reply = start({}, "done");
    QPointer<QObject> toolkit = reply->getHandle();
    ASSERT_TRUE(toolkit);
    QByteArray body;
    bool deleted = false;
    Recorder later;
    reply->finished().connect([reply, &body, &deleted] {
        body = reply->readAll();
        bool* const done = &deleted;
        delete reply;
        *done = true;
    });
    later.on(reply->finished(), "finished");

    ASSERT_TRUE(waitUntil([&] { return deleted; }));
    EXPECT_EQ(body, QByteArray("done"));
    EXPECT_TRUE(later.lines.isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(toolkit.isNull());
}

// The pairing rule on pair lists of our own, handed to the finish handler.
TEST(NetworkReplyHeaders, DistinctNameIndexIsAppliedToTheFullPairList)
{
    CKyNANetworkReply reply(nullptr);
    Recorder log;
    RecordReply(log, &reply);

    implOf(reply)->OnFinished(200, Pairs{{"A", "1"}, {"A", "2"}, {"Content-Type", "x/y"}}, nullptr);
    EXPECT_EQ(log.lines, QStringList{"finished"});
    EXPECT_TRUE(reply.isFinished());
    EXPECT_EQ(reply.rawHeaderList(), (QList<QByteArray>{"A", "Content-Type"}));
    EXPECT_EQ(reply.rawHeader("A"), QByteArray("1"));
    // Content-Type is the second distinct name, so it is answered with the second pair.
    EXPECT_EQ(reply.header(CKyNANetworkRequest::ContentTypeHeader).toByteArray(), QByteArray("2"));
    EXPECT_EQ(reply.rawHeaderPairs(), (Pairs{{"A", "1"}, {"A", "2"}, {"Content-Type", "x/y"}}));
    EXPECT_TRUE(reply.rawHeader("C").isNull());

    // A second finish replaces the pairs and only adds names.
    implOf(reply)->OnFinished(200, Pairs{{"C", "9"}}, nullptr);
    EXPECT_EQ(reply.rawHeaderList(), (QList<QByteArray>{"A", "Content-Type", "C"}));
    EXPECT_EQ(reply.rawHeaderPairs(), (Pairs{{"C", "9"}}));
    EXPECT_EQ(reply.rawHeader("A"), QByteArray("9"));
    // Indices past the end of the pairs answer nothing.
    EXPECT_TRUE(reply.rawHeader("C").isNull());
    EXPECT_TRUE(reply.hasRawHeader("C"));
    EXPECT_FALSE(reply.header(CKyNANetworkRequest::ContentTypeHeader).isValid());

    // A code without a name looks up the null name, which equals the empty one.
    CKyNANetworkReply unnamed(nullptr);
    implOf(unnamed)->OnFinished(200, Pairs{{"", "empty"}}, nullptr);
    EXPECT_EQ(unnamed.header(CKyNANetworkRequest::KnownHeaders(42)).toByteArray(), QByteArray("empty"));
    EXPECT_FALSE(unnamed.header(CKyNANetworkRequest::ServerHeader).isValid());
}

TEST(NetworkReplyHandle, AnythingButAToolkitReplyGivesNeutralAnswers)
{
    auto* notAReply = new QObject;
    QPointer<QObject> watch(notAReply);
    {
        CKyNANetworkReply reply(notAReply);
        Recorder log;
        RecordReply(log, &reply);

        EXPECT_EQ(reply.getHandle(), notAReply);
        EXPECT_EQ(errorCode(reply), CKyNANetworkReply::NoError);
        EXPECT_TRUE(reply.errorString().isEmpty());
        EXPECT_FALSE(reply.attribute(CKyNANetworkRequest::HttpStatusCodeAttribute).isValid());
        EXPECT_EQ(reply.request(), nullptr);
        EXPECT_TRUE(reply.isRunning());
        reply.abort();
        EXPECT_TRUE(log.lines.isEmpty());
    }
    // Only toolkit replies are released with the reply.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(watch.isNull());
    delete notAReply;
}
