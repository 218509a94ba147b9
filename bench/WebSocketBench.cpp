// Receiving text messages from commonui_bench_server through CKyNAWebSocket
// against a raw QWebSocket: 200,000 messages of 32 bytes and 20,000 of 1 KiB
// per round, then the server's close. The figure is the CPU time of this
// process per message; each round opens its own connection.
#include "BenchServerProcess.h"

#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"

#include <benchmark/benchmark.h>

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkRequest>
#include <QtWebSockets/QWebSocket>

namespace
{

QUrl StreamUrl(int bytes, int messages)
{
    return BenchServerProcess::WebSocketUrl(
        QStringLiteral("/stream?size=%1&count=%2").arg(bytes).arg(messages));
}

struct Tally
{
    long messages = 0;
    long characters = 0;
    bool stalled = false;

    void Count(const QString& message)
    {
        ++messages;
        characters += message.size();
    }
};

// Runs the loop until the server has closed, or for a minute at most.
void RunUntilClosed(QEventLoop& loop, Tally& tally)
{
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, &loop, [&] {
        tally.stalled = true;
        loop.quit();
    });
    watchdog.start(60000);
    loop.exec();
}

void ReceiveWithQt(const QUrl& url, Tally& tally)
{
    QEventLoop loop;
    QWebSocket socket(QString(), QWebSocketProtocol::VersionLatest);
    QObject::connect(&socket, &QWebSocket::textMessageReceived,
                     [&tally](const QString& message) { tally.Count(message); });
    QObject::connect(&socket, &QWebSocket::disconnected, &loop, &QEventLoop::quit);
    socket.open(QNetworkRequest(url));
    RunUntilClosed(loop, tally);
}

void ReceiveWithCommonUI(const QUrl& url, Tally& tally)
{
    QEventLoop loop;
    CKyNAWebSocket socket(QString(), CKyNAWebSocketProtocol::VersionLatest);
    socket.textMessageReceived().connect([&tally](const QString& message) { tally.Count(message); });
    socket.disconnected().connect([&loop] { loop.quit(); });
    socket.open(CKyNANetworkRequest(url));
    RunUntilClosed(loop, tally);
}

template <void (*Receive)(const QUrl&, Tally&)> void Messages(benchmark::State& state)
{
    const int bytes = int(state.range(0));
    const int messages = int(state.range(1));
    const QUrl url = StreamUrl(bytes, messages);
    for (auto _ : state) {
        Tally tally;
        Receive(url, tally);
        if (tally.stalled || tally.messages != messages || tally.characters != long(messages) * bytes) {
            state.SkipWithError("the messages did not all arrive");
            return;
        }
    }
    state.counters["per"] = messages;
}

} // namespace

#define MESSAGES(receive, variant)                                                                           \
    BENCHMARK_TEMPLATE(Messages, receive)                                                                    \
        ->Name("WebSocket/" variant)                                                                         \
        ->ArgNames({"bytes", "messages"})                                                                    \
        ->Args({32, 200000})                                                                                 \
        ->Args({1024, 20000})                                                                                \
        ->Iterations(1)                                                                                      \
        ->MeasureProcessCPUTime()                                                                            \
        ->Unit(benchmark::kMillisecond)

MESSAGES(ReceiveWithCommonUI, "commonui");
MESSAGES(ReceiveWithQt, "qt");
