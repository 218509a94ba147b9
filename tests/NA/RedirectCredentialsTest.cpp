#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>

namespace
{

// redirect_peer.py: two ports on 127.0.0.1 that redirect as told and echo the
// request that reaches /headers. A missing interpreter fails here.
class RedirectCredentials : public ::testing::Test
{
protected:
    void SetUp() override
    {
        peer.start(QStringLiteral("/usr/bin/python3"),
                   {QStringLiteral(COMMONUI_TESTS_DIR "/NA/redirect_peer.py")});
        waitUntil([this] { return peer.canReadLine() || peer.state() == QProcess::NotRunning; }, 20000);
        ports = QString::fromLatin1(peer.readLine()).trimmed().split(QLatin1Char(' '));
        ASSERT_EQ(ports.size(), 2) << peer.readAllStandardError().toStdString();
    }
    void TearDown() override
    {
        peer.closeWriteChannel();
        peer.waitForFinished(5000);
    }

    QProcess peer;
    QStringList ports;
};

} // namespace

TEST_F(RedirectCredentials, NeverLeaveTheOriginTheClientAddressed)
{
    const QString a = "http://127.0.0.1:" + ports[0], b = "http://127.0.0.1:" + ports[1];
    const auto to = [](int code, const QString& target) {
        return QStringLiteral("/to/%1/").arg(code) + QString::fromLatin1(QUrl::toPercentEncoding(target));
    };
    const struct
    {
        int code;
        QByteArray verb;
        QString target;
        bool kept;
    } cases[] = {
        {302, "GET", a + "/headers", true},
        {307, "POST", a + "/headers", true},
        {301, "GET", b + "/headers", false},
        {302, "POST", b + "/headers", false},
        {308, "POST", b + "/headers", false},
        {307, "POST", "http://localhost:" + ports[0] + "/headers", false},
        {308, "GET", "http://localhost:" + ports[0] + "/headers", false},
        // Gone once the transfer left the origin, also on the way back.
        {303, "GET", b + to(302, a + "/headers"), false},
    };
    CKyNANetworkAccessManager manager;
    for (const auto& c : cases) {
        SCOPED_TRACE(
            QStringLiteral("%1 %2 to %3").arg(c.code).arg(c.verb.constData(), c.target).toStdString());
        CKyNANetworkRequest request(QUrl(a + to(c.code, c.target)));
        request.setRawHeader("Authorization", "Bearer secret");
        request.setRawHeader("proxy-authorization", "Basic cHJveHk=");
        request.setRawHeader("Cookie", "session=1");
        request.setRawHeader("X-Kept", "yes");
        if (c.verb == "POST")
            request.setHeader(CKyNANetworkRequest::ContentTypeHeader, QByteArray("text/plain"));
        request.setFollowRedirects(true);
        std::unique_ptr<CKyNANetworkReply> reply(
            c.verb == "GET" ? manager.get(request) : manager.post(request, QByteArray("payload")));
        Recorder recorder;
        ASSERT_TRUE(waitFinished(RecordReply(recorder, reply.get())));
        EXPECT_EQ(Outcome(recorder), QStringList{"finished"});
        const QByteArray seen = reply->readAll();
        EXPECT_EQ(seen.contains("Bearer secret"), c.kept);
        EXPECT_EQ(seen.contains("cHJveHk="), c.kept);
        EXPECT_EQ(seen.contains("session=1"), c.kept);
        EXPECT_TRUE(seen.contains("X-Kept: yes"));
        // 307 and 308 repeat a POST, body and type; the others turn it into a bare GET.
        const bool repeated = c.verb == "POST" && c.code >= 307;
        EXPECT_TRUE(seen.startsWith(repeated ? "POST /headers" : "GET /headers")) << seen.constData();
        EXPECT_EQ(seen.endsWith("\r\n\r\npayload"), repeated);
        EXPECT_EQ(seen.contains("Content-Type"), repeated);
    }
}
