// 20,000 small HTTP transfers over loopback to commonui_bench_server (keep-alive
// HTTP/1.1), through CKyNANetworkAccessManager against a raw
// QNetworkAccessManager, with 1 and 6 transfers in flight. The figure is the
// CPU time of this whole process (QNetworkAccessManager works in a thread of
// its own) per transfer; the wall time per transfer is the latency with one in
// flight. The two clients take turns in 100 rounds of 200 transfers each,
// each client keeping its manager (and so its connections) from round to
// round; the whole is repeated three times.
//
// Both clients do what a plug-in does with a reply: read the status code and
// the body when it finishes, delete it, and start the next transfer from the
// finished handler. The raw reply is deleted with deleteLater, ours with
// delete, both inside the finished handler.
#include "BenchServerProcess.h"
#include "Paired.h"

#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

#include <algorithm>
#include <functional>

namespace
{

// COMMONUI_BENCH_TRANSFERS makes a round shorter, for runs under callgrind.
const int kTransfers = qEnvironmentVariableIsSet("COMMONUI_BENCH_TRANSFERS")
                           ? qEnvironmentVariableIntValue("COMMONUI_BENCH_TRANSFERS")
                           : 20000;
constexpr int kAnswerBytes = 16;

const QByteArray& PostBody()
{
    static const QByteArray body(64, 'p');
    return body;
}

const QByteArray kContentType = "application/octet-stream";

struct Tally
{
    long good = 0;
    std::function<void()> onFinished;

    void Count(int status, int bytes)
    {
        if (status == 200 && bytes == kAnswerBytes)
            ++good;
        onFinished();
    }
};

class QtClient
{
public:
    explicit QtClient(bool post)
        : m_request(BenchServerProcess::HttpUrl(post ? QStringLiteral("/post") : QStringLiteral("/get")))
        , m_post(post)
    {
        if (post)
            m_request.setHeader(QNetworkRequest::ContentTypeHeader, kContentType);
    }

    void Start()
    {
        QNetworkReply* reply = m_post ? m_manager.post(m_request, PostBody()) : m_manager.get(m_request);
        QObject::connect(reply, &QNetworkReply::finished, reply, [this, reply] {
            const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
            const int bytes = reply->readAll().size();
            reply->deleteLater();
            tally.Count(status, bytes);
        });
    }

    Tally tally;

private:
    QNetworkAccessManager m_manager;
    QNetworkRequest m_request;
    const bool m_post;
};

class CommonUIClient
{
public:
    explicit CommonUIClient(bool post)
        : m_request(BenchServerProcess::HttpUrl(post ? QStringLiteral("/post") : QStringLiteral("/get")))
        , m_post(post)
    {
        if (post)
            m_request.setHeader(CKyNANetworkRequest::ContentTypeHeader, kContentType);
    }

    void Start()
    {
        CKyNANetworkReply* reply = m_post ? m_manager.post(m_request, PostBody()) : m_manager.get(m_request);
        reply->finished().connect([this, reply] {
            const int status = reply->attribute(CKyNANetworkRequest::HttpStatusCodeAttribute).toInt();
            const int bytes = reply->readAll().size();
            // The slot's captures go with the reply.
            CommonUIClient* client = this;
            delete reply;
            client->tally.Count(status, bytes);
        });
    }

    Tally tally;

private:
    CKyNANetworkAccessManager m_manager;
    CKyNANetworkRequest m_request;
    const bool m_post;
};

// Keeps `inflight` transfers running until `total` have finished; false when
// the transfers stalled for a minute.
template <class Client> bool Run(Client& client, int total, int inflight)
{
    QEventLoop loop;
    int started = 0;
    int finished = 0;
    client.tally.onFinished = [&] {
        if (++finished == total)
            loop.quit();
        else if (started < total) {
            ++started;
            client.Start();
        }
    };
    bool stalled = false;
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, &loop, [&] {
        stalled = true;
        loop.quit();
    });
    watchdog.start(60000);
    for (; started < std::min(inflight, total); ++started)
        client.Start();
    loop.exec();
    // Let the last deletions happen before the manager goes.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return !stalled;
}

constexpr int kRounds = 100;

void Transfers(benchmark::State& state, bool post)
{
    const int inflight = int(state.range(0));
    const int perRound = std::max(1, kTransfers / kRounds);
    CommonUIClient ours(post);
    QtClient qt(post);
    bool stalled = false;
    long oursExpected = 0;
    long qtExpected = 0;
    Paired::Compare(state, Paired::Clock::Process, kRounds, perRound,
                    {{"commonui",
                      [&] {
                          oursExpected += perRound;
                          stalled |= !Run(ours, perRound, inflight);
                      }},
                     {"qt",
                      [&] {
                          qtExpected += perRound;
                          stalled |= !Run(qt, perRound, inflight);
                      }}},
                    "qt");
    if (stalled)
        state.SkipWithError("the transfers stalled");
    else if (ours.tally.good != oursExpected || qt.tally.good != qtExpected)
        state.SkipWithError("a transfer did not answer 200 with the expected body");
}

void Get(benchmark::State& state)
{
    Transfers(state, false);
}

void Post(benchmark::State& state)
{
    Transfers(state, true);
}

} // namespace

#define TRANSFERS(function, name)                                                                            \
    BENCHMARK(function)->Name(name)->ArgName("inflight")->Arg(1)->Arg(6)->Iterations(1)->Repetitions(3)

TRANSFERS(Get, "HTTP/GET");
TRANSFERS(Post, "HTTP/POST");
