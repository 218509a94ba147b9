// Receiving text messages from commonui_bench_server through CKyNAWebSocket
// against a raw QWebSocket: 200,000 messages of 32 bytes and 20,000 of 1 KiB
// per stream, then the server's close. The figure is the CPU time of this
// process per message; each stream opens its own connection, and the two
// sides take turns stream by stream.
#include "BenchServerProcess.h"
#include "Paired.h"

#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"

#include <benchmark/benchmark.h>

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkRequest>
#include <QtWebSockets/QWebSocket>

#include <algorithm>

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

void Messages(benchmark::State& state)
{
    const int bytes = int(state.range(0));
    const int messages = int(state.range(1));
    const QUrl url = StreamUrl(bytes, messages);
    bool complete = true;
    const auto receive = [&](void (*how)(const QUrl&, Tally&)) {
        return [&, how] {
            Tally tally;
            how(url, tally);
            complete &=
                !tally.stalled && tally.messages == messages && tally.characters == long(messages) * bytes;
        };
    };
    // Some 2 s of streams for each side, 5 streams at least.
    const long long rounds = 2000000000LL / (static_cast<long long>(messages) * (400 + bytes));
    Paired::Compare(state, Paired::Clock::Process, int(std::max(5LL, std::min(rounds, 30LL))), messages,
                    {{"commonui", receive(ReceiveWithCommonUI)}, {"qt", receive(ReceiveWithQt)}}, "qt");
    if (!complete)
        state.SkipWithError("the messages did not all arrive");
}

} // namespace

BENCHMARK(Messages)
    ->Name("WebSocket")
    ->ArgNames({"bytes", "messages"})
    ->Args({32, 200000})
    ->Args({1024, 20000})
    ->Iterations(1)
    ->Repetitions(1);
