#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>
#include <QtNetwork/QNetworkCookie>

namespace
{

using R = CKyNANetworkRequest;

// header_peer.py on 127.0.0.1: each request's header lines as received, cut
// at any line break; the web-socket key, new each time, blanked.
struct HeaderPeer : QProcess
{
    HeaderPeer()
    {
        start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(COMMONUI_TESTS_DIR "/NA/header_peer.py")});
        waitUntil([this] { return canReadLine() || state() == NotRunning; }, 20000);
        url = QStringLiteral("://127.0.0.1:%1/").arg(QString::fromLatin1(readLine().trimmed()));
    }
    ~HeaderPeer() override { closeWriteChannel(), waitForFinished(5000); }
    std::string next()
    {
        waitUntil([this] { return canReadLine(); });
        QByteArray lines;
        for (const QByteArray& hex : readLine().trimmed().split(' ')) {
            const QByteArray line = QByteArray::fromHex(hex);
            lines += (line.startsWith("Sec-WebSocket-Key:") ? QByteArray("Sec-WebSocket-Key:") : line) + '\n';
        }
        return lines.toStdString();
    }
    std::string http(const R& request)
    {
        CKyNANetworkAccessManager manager;
        std::unique_ptr<CKyNANetworkReply> reply(manager.get(request));
        return next();
    }
    std::string webSocket(const R& request, const QString& origin)
    {
        CKyNAWebSocket socket(origin, CKyNAWebSocketProtocol::VersionLatest);
        socket.open(request);
        return next();
    }
    QString url;
};

std::string g_warnings;

// What the request answers, known headers included.
std::string State(const R& request)
{
    QByteArray state;
    for (const QByteArray& name : request.rawHeaderList())
        state += name + '=' + request.rawHeader(name).toByteArray() + '\n';
    for (int code = 0; code <= 9; ++code) {
        const QVariant value = request.header(R::KnownHeaders(code));
        state += value.isValid() ? value.toByteArray() + '\n' : QByteArray("-\n");
    }
    return state.toStdString();
}

// Odd but valid headers; a null value is kept but sends nothing.
void Fill(R& request)
{
    const std::pair<const char*, QByteArray> valid[] = {
        {"X-A", "old"},        {"X-Tab", "a\tb"}, {"!#$%&'*+-.^_`|~09azAZ", "v"},
        {"X-Obs", "\x80\xff"}, {"X-Empty", ""},   {"X-Null", QByteArray()}};
    for (const auto& header : valid)
        request.setRawHeader(header.first, header.second);
    request.setHeader(R::UserAgentHeader, QByteArray("agent/1.0 (x)"));
}

} // namespace

// A header that would split, or whose name is no token, is refused with one
// warning and leaves the request as it was: neither a transfer nor a
// web-socket opening carries a trace of it. Valid ones arrive as given.
TEST(HeaderSplitting, ARefusedHeaderNeverReachesTheWireAndValidOnesArriveAsGiven)
{
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
         "CKyNANetworkRequest::setRawHeader: header \"Injected:\\x20b\\x0d\\x0aX-A\" not set: the name holds "
         "CR, LF or NUL"},
        {[](R& r) { r.setRawHeader("X A", "1"); },
         "CKyNANetworkRequest::setRawHeader: header \"X\\x20A\" not set: the name is not a token"},
        {[](R& r) { r.setRawHeader("", "1"); },
         "CKyNANetworkRequest::setRawHeader: header \"\" not set: the name is not a token"},
        {[](R& r) { r.setHeader(R::UserAgentHeader, QStringLiteral("a\nInjected: b")); },
         "CKyNANetworkRequest::setHeader: header \"User-Agent\" not set: the value holds CR, LF or NUL"},
        {[](R& r) {
             const QList<QNetworkCookie> cookies{QNetworkCookie("c", "1\r\nInjected: b")};
             r.setHeader(R::CookieHeader, QVariant::fromValue(cookies));
         },
         "CKyNANetworkRequest::setHeader: header \"Cookie\" not set: the value holds CR, LF or NUL"},
        // A code the library has no name for still reaches the toolkit under one.
        {[](R& r) { r.setHeader(R::KnownHeaders(9), QByteArray("a\r\nInjected: b")); },
         "CKyNANetworkRequest::setHeader: header \"If-Modified-Since\" not set: the value holds CR, LF or "
         "NUL"},
    };
    const std::string sent = "\nX-A: old\nX-Tab: a\tb\n!#$%&'*+-.^_`|~09azAZ: v\nX-Obs: \x80\xff\nX-Empty: "
                             "\nUser-Agent: agent/1.0 (x)\n";
    const QString origin = QStringLiteral("http://plug-in.test");
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& m) { g_warnings += m.toStdString() + '\n'; });
    g_warnings.clear();

    HeaderPeer peer;
    R plain(QUrl(QLatin1String("http") + peer.url)), socket(QUrl(QLatin1String("ws") + peer.url));
    Fill(plain), Fill(socket);
    const std::string before = State(plain), httpLines = peer.http(plain),
                      socketLines = peer.webSocket(socket, origin);
    EXPECT_NE(httpLines.find(sent), std::string::npos) << httpLines;
    EXPECT_NE(socketLines.find(sent), std::string::npos) << socketLines;
    EXPECT_NE(socketLines.find("\nOrigin: http://plug-in.test\n"), std::string::npos) << socketLines;
    EXPECT_EQ(g_warnings, "");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.warning);
        R http(QUrl(QLatin1String("http") + peer.url)), ws(QUrl(QLatin1String("ws") + peer.url));
        Fill(http), Fill(ws);
        row.set(http);
        EXPECT_EQ(g_warnings, row.warning + std::string("\n"));
        row.set(ws);
        EXPECT_EQ(State(http), before);
        EXPECT_EQ(peer.http(http), httpLines);
        EXPECT_EQ(peer.webSocket(ws, origin), socketLines);
        g_warnings.clear();
    }

    // The origin is a header of the opening too: refused, none is announced.
    std::string unannounced = socketLines;
    unannounced.erase(unannounced.find("Origin:"), sizeof("Origin: http://plug-in.test"));
    EXPECT_EQ(peer.webSocket(socket, QStringLiteral("http://a\r\nInjected: b")), unannounced);
    EXPECT_EQ(g_warnings, "CKyNAWebSocket: header \"Origin\" not set: the value holds CR, LF or NUL\n");
    qInstallMessageHandler(previous);
}
