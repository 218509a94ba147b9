#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>
#include <QtNetwork/QNetworkCookie>
#include <QtNetwork/QNetworkRequest>

namespace
{

// Lines as one string, which a failure shows with its line breaks escaped.
std::string Joined(const QList<QByteArray>& lines)
{
    QByteArray joined;
    for (const QByteArray& line : lines)
        joined += line + '\n';
    return joined.toStdString();
}

// header_peer.py: the header lines of each request it receives, as bytes,
// cut at any line break.
struct HeaderPeer : QProcess
{
    HeaderPeer()
    {
        start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(COMMONUI_TESTS_DIR "/NA/header_peer.py")});
        waitUntil([this] { return canReadLine() || state() == NotRunning; }, 20000);
        port = readLine().trimmed().toInt();
        EXPECT_GT(port, 0) << readAllStandardError().toStdString();
    }
    ~HeaderPeer() override { closeWriteChannel(), waitForFinished(5000); }
    QUrl url(const char* scheme) const
    {
        return QUrl(QStringLiteral("%1://127.0.0.1:%2/").arg(scheme).arg(port));
    }

    // The lines of the next request; the web-socket key, new each time, blanked.
    QList<QByteArray> next()
    {
        if (!waitUntil([this] { return canReadLine(); }))
            return {"nothing arrived"};
        QList<QByteArray> lines;
        for (const QByteArray& hex : readLine().trimmed().split(' ')) {
            const QByteArray line = QByteArray::fromHex(hex);
            lines << (line.startsWith("Sec-WebSocket-Key:") ? QByteArray("Sec-WebSocket-Key:") : line);
        }
        return lines;
    }
    QList<QByteArray> http(const CKyNANetworkRequest& request)
    {
        CKyNANetworkAccessManager manager;
        std::unique_ptr<CKyNANetworkReply> reply(manager.get(request));
        const QList<QByteArray> lines = next();
        EXPECT_TRUE(waitUntil([&] { return reply->isFinished(); }));
        return lines;
    }
    QList<QByteArray> webSocket(const CKyNANetworkRequest& request, const QString& origin = QString())
    {
        CKyNAWebSocket socket(origin, CKyNAWebSocketProtocol::VersionLatest);
        Recorder log;
        RecordSocket(log, socket);
        socket.open(request);
        const QList<QByteArray> lines = next();
        EXPECT_TRUE(waitUntil([&] { return log.has(QStringLiteral("connected")); }));
        socket.blockSignals(true);
        return lines;
    }
    int port = 0;
};

// Every message of the toolkit's warning channel while it lives.
struct Warnings
{
    Warnings()
    {
        lines().clear();
        previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& message) { lines() << message; });
    }
    ~Warnings() { qInstallMessageHandler(previous); }
    static std::string text() { return lines().join('\n').toStdString(); }
    static QStringList& lines()
    {
        static QStringList all;
        return all;
    }
    QtMessageHandler previous;
};

// What a request holds: its own answers and the toolkit request's headers.
std::string State(const CKyNANetworkRequest& request)
{
    QList<QByteArray> state;
    for (const QByteArray& name : request.rawHeaderList())
        state << name + '=' + request.rawHeader(name).toByteArray();
    for (int code = 0; code <= 9; ++code)
        state << QByteArray::number(request.header(CKyNANetworkRequest::KnownHeaders(code)).isValid());
    for (const QByteArray& name : request.getHandle()->rawHeaderList())
        state << "toolkit " + name + '=' + request.getHandle()->rawHeader(name);
    return Joined(state);
}

void Fill(CKyNANetworkRequest& request)
{
    request.setRawHeader("X-A", "old");
    request.setRawHeader("X-Base", "1");
    request.setHeader(CKyNANetworkRequest::UserAgentHeader, QByteArray("agent"));
}

} // namespace

// A header that would split, or whose name is no token, is refused with one
// warning and leaves the request as it was; neither a transfer nor a
// web-socket opening carries any trace of it.
TEST(HeaderSplitting, RefusedHeadersLeaveTheRequestAndTheWireUnchanged)
{
    using R = CKyNANetworkRequest;
    const struct
    {
        void (*set)(R&);
        const char* warning;
    } rows[] = {
        {[](R& r) { r.setRawHeader("X-A", "a\r\nInjected: b"); },
         "CKyNANetworkRequest::setRawHeader: header \"X-A\" not set: the value holds CR, LF or NUL"},
        {[](R& r) { r.setRawHeader("X-A", "a\nInjected: b"); },
         "CKyNANetworkRequest::setRawHeader: header \"X-A\" not set: the value holds CR, LF or NUL"},
        {[](R& r) { r.setRawHeader("X-A", "a\rInjected: b"); },
         "CKyNANetworkRequest::setRawHeader: header \"X-A\" not set: the value holds CR, LF or NUL"},
        {[](R& r) { r.setRawHeader("X-A", QByteArray("a\0Injected: b", 13)); },
         "CKyNANetworkRequest::setRawHeader: header \"X-A\" not set: the value holds CR, LF or NUL"},
        {[](R& r) { r.setRawHeader("Injected: b\r\nX-A", "1"); },
         "CKyNANetworkRequest::setRawHeader: header \"Injected:\\x20b\\x0d\\x0aX-A\" not set: "
         "the name holds CR, LF or NUL"},
        {[](R& r) { r.setRawHeader("X A", "1"); },
         "CKyNANetworkRequest::setRawHeader: header \"X\\x20A\" not set: the name is not a token"},
        {[](R& r) { r.setRawHeader("X-\xc3\xa9", "1"); },
         "CKyNANetworkRequest::setRawHeader: header \"X-\\xc3\\xa9\" not set: the name is not a token"},
        {[](R& r) { r.setRawHeader("", "1"); },
         "CKyNANetworkRequest::setRawHeader: header \"\" not set: the name is not a token"},
        {[](R& r) { r.setHeader(R::UserAgentHeader, QStringLiteral("a\nInjected: b")); },
         "CKyNANetworkRequest::setHeader: header \"User-Agent\" not set: the value holds CR, LF or NUL"},
        {[](R& r) { r.setHeader(R::ContentTypeHeader, QByteArray("a\r\nInjected: b")); },
         "CKyNANetworkRequest::setHeader: header \"Content-Type\" not set: the value holds CR, LF or NUL"},
        {[](R& r) {
             const QList<QNetworkCookie> cookies{QNetworkCookie("c", "1\r\nInjected: b")};
             r.setHeader(R::CookieHeader, QVariant::fromValue(cookies));
         },
         "CKyNANetworkRequest::setHeader: header \"Cookie\" not set: the value holds CR, LF or NUL"},
        // A code the library has no name for still reaches the toolkit under its name.
        {[](R& r) { r.setHeader(R::KnownHeaders(9), QByteArray("a\r\nInjected: b")); },
         "CKyNANetworkRequest::setHeader: header \"If-Modified-Since\" not set: the value holds CR, LF or "
         "NUL"},
    };

    HeaderPeer peer;
    R plain(peer.url("http")), socket(peer.url("ws"));
    Fill(plain), Fill(socket);
    const QList<QByteArray> httpLines = peer.http(plain), socketLines = peer.webSocket(socket);
    const std::string before = State(plain);
    EXPECT_TRUE(httpLines.contains("X-A: old") && socketLines.contains("X-A: old"));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.warning);
        Warnings warnings;
        R http(peer.url("http")), ws(peer.url("ws"));
        Fill(http), Fill(ws);
        row.set(http);
        EXPECT_EQ(Warnings::text(), row.warning);
        row.set(ws);
        EXPECT_EQ(State(http), before);
        EXPECT_EQ(Joined(peer.http(http)), Joined(httpLines));
        EXPECT_EQ(Joined(peer.webSocket(ws)), Joined(socketLines));
        EXPECT_EQ(Warnings::lines().size(), 2);
    }

    // An origin is a header of the opening too: refused, the socket announces none.
    Warnings warnings;
    EXPECT_EQ(Joined(peer.webSocket(socket, QStringLiteral("http://a\r\nInjected: b"))), Joined(socketLines));
    EXPECT_EQ(Warnings::text(), "CKyNAWebSocket: header \"Origin\" not set: the value holds CR, LF or NUL");
}

// Valid headers, odd ones included, are kept and sent byte for byte, in the
// order they were set, without a word.
TEST(HeaderSplitting, ValidHeadersArriveByteForByte)
{
    const std::pair<QByteArray, QByteArray> rows[] = {
        {"X-Tab", "a\tb"}, {"!#$%&'*+-.^_`|~09azAZ", "v"}, {"X-Obs", "\x80\xff"}, {"X-Colon", "a: b"},
        {"X-Empty", ""},   {"X-Spaces", " a  b "},
    };
    HeaderPeer peer;
    Warnings warnings;
    CKyNANetworkRequest http(peer.url("http")), ws(peer.url("ws"));
    QList<QByteArray> expected;
    for (const auto& row : rows) {
        http.setRawHeader(row.first, row.second);
        ws.setRawHeader(row.first, row.second);
        EXPECT_EQ(http.rawHeader(row.first).toByteArray().toStdString(), row.second.toStdString());
        expected << row.first + ": " + row.second;
    }
    http.setHeader(CKyNANetworkRequest::UserAgentHeader, QByteArray("agent/1.0 (x)"));
    expected << "User-Agent: agent/1.0 (x)";
    // A null value is kept here but sends nothing.
    http.setRawHeader("X-Null", QByteArray());
    EXPECT_TRUE(http.rawHeader("X-Null").isValid());

    const auto ours = [](const QList<QByteArray>& lines) {
        QList<QByteArray> kept;
        for (const QByteArray& line : lines) {
            if (line.startsWith("X-") || line.startsWith("!") || line.startsWith("User-Agent"))
                kept << line;
        }
        return Joined(kept);
    };
    EXPECT_EQ(ours(peer.http(http)), Joined(expected));
    expected.removeLast();
    const QList<QByteArray> opening = peer.webSocket(ws, QStringLiteral("http://plug-in.test"));
    EXPECT_EQ(ours(opening), Joined(expected));
    EXPECT_TRUE(opening.contains("Origin: http://plug-in.test"));
    EXPECT_EQ(Warnings::text(), "");
}
