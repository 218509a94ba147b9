// What a host that runs for days keeps of each piece of work: the heap the
// process holds after a unit of work, measured after a warm-up, per unit.
// Each workload runs twice, once with dialogs releasing their toolkit dialog
// and once keeping it (the default); the counter "bytes" is the growth per
// unit ("per" says how many units that is):
//   dialog runs, empty and with 80 controls, exec() accepted at once and the
//   dialog object deleted after each run (bytes per run);
//   HTTP GETs to commonui_bench_server, reply deleted in its finished slot;
//   web-socket open/close cycles (the server sends one message and closes);
//   signal connect/disconnect cycles (bytes per 1,000 units for these three).
// "units" is the number of units measured.
// The heap is malloc's count of bytes in use after malloc_trim, which sees
// every allocation of the process, the toolkit's included.
//
// Apart from these, the peak resident memory while one 100 MB body arrives
// (counter "peak", bytes above the resident size before the transfer): read
// by a streaming reader that takes 5 ms per 64 KiB, and read whole at the end
// without streaming; and while a 200 MB file is uploaded from disk as a
// multipart form.
#include "BenchServerProcess.h"

#include "NA/CKyNAMultipartForm.h"
#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"
#include "UI/CKyUICheckBox.h"
#include "UI/CKyUIComboBox.h"
#include "UI/CKyUIDialog.h"
#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUILabel.h"
#include "UI/CKyUITextEdit.h"
#include "UI/CKyUITimer.h"
#include "UI/CKyUIVerticalLayout.h"

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QTemporaryFile>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>

namespace
{

double HeapInUse()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    malloc_trim(0);
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

// How a workload is measured: `step` does `stepUnits` units of work; it runs
// `warmUp` times, then `steps` times, and the growth is given per `per`
// units.
struct Plan
{
    int warmUp;
    int steps;
    int stepUnits;
    int per;
};

double Growth(const std::function<bool()>& step, const Plan& plan, bool& failed)
{
    for (int i = 0; i < plan.warmUp; ++i)
        failed |= !step();
    const double before = HeapInUse();
    for (int i = 0; i < plan.steps; ++i)
        failed |= !step();
    return (HeapInUse() - before) * plan.per / (double(plan.steps) * plan.stepUnits);
}

// Dialogs release their toolkit dialog while a releasing side is measured.
bool g_release = false;

// Runs the workload and reports the growth as the counter "bytes".
void Measure(benchmark::State& state, const std::function<bool()>& step, const Plan& plan)
{
    bool failed = false;
    CKyUIDialog::setDefaultReleasesToolkitDialog(g_release);
    for (auto _ : state)
        state.counters["bytes"] = Growth(step, plan, failed);
    CKyUIDialog::setDefaultReleasesToolkitDialog(false);
    state.counters["per"] = plan.per;
    state.counters["units"] = double(plan.steps) * plan.stepUnits;
    if (failed)
        state.SkipWithError("a unit of work did not complete");
}

// Accepts itself as soon as its modal loop runs.
class SoakDialog : public CKyUIDialog
{
public:
    explicit SoakDialog(int rows)
        : m_rows(rows)
    {}

    void SetupUI() override
    {
        for (int row = 0; row < m_rows; ++row) {
            auto* label = new CKyUILabel;
            label->setText(QStringLiteral("Length %1").arg(row));
            GetLayout()->addView(label);
            auto* edit = new CKyUITextEdit(CKyUITextEdit::Medium);
            edit->setText(QStringLiteral("12.5"));
            GetLayout()->addView(edit);
            auto* units = new CKyUIComboBox;
            units->addItem(QStringLiteral("mm"));
            units->addItem(QStringLiteral("in"));
            GetLayout()->addView(units);
            auto* check = new CKyUICheckBox;
            check->setText(QStringLiteral("Fixed"));
            GetLayout()->addView(check);
        }
        auto* box = new CKyUIDialogButtonBox(this);
        box->accepted().connect([this] { accept(); });
        m_accept.timeout().connect([this] {
            m_accept.stop();
            accept();
        });
        m_accept.start(0);
    }

private:
    const int m_rows;
    CKyUITimer m_accept;
};

bool RunDialog(int rows)
{
    auto dialog = std::make_unique<SoakDialog>(rows);
    return dialog->exec() == 1;
}

void DialogRuns(benchmark::State& state, int controls)
{
    const int rows = controls / 4;
    Measure(state, [rows] { return RunDialog(rows); }, {20, rows ? 100 : 300, 1, 1});
}

// Runs the loop until `done` quits it, or for a minute at most.
bool RunLoop(QEventLoop& loop)
{
    bool stalled = false;
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, &loop, [&] {
        stalled = true;
        loop.quit();
    });
    watchdog.start(60000);
    loop.exec();
    return !stalled;
}

void HttpTransfers(benchmark::State& state)
{
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest request(BenchServerProcess::HttpUrl(QStringLiteral("/get")));
    // A batch of 100 GETs, one after the other, each reply deleted in its
    // finished slot.
    const auto batch = [&] {
        QEventLoop loop;
        int left = 100;
        bool good = true;
        std::function<void()> next = [&] {
            CKyNANetworkReply* reply = manager.get(request);
            reply->finished().connect([&, reply] {
                good &= reply->readAll().size() == 16;
                delete reply;
                if (--left == 0)
                    loop.quit();
                else
                    next();
            });
        };
        next();
        return RunLoop(loop) && good;
    };
    Measure(state, batch, {10, 200, 100, 1000});
}

void WebSocketCycles(benchmark::State& state)
{
    const CKyNANetworkRequest request(
        BenchServerProcess::WebSocketUrl(QStringLiteral("/stream?size=16&count=1")));
    const auto cycle = [&] {
        QEventLoop loop;
        int messages = 0;
        auto socket = std::make_unique<CKyNAWebSocket>(QString(), CKyNAWebSocketProtocol::VersionLatest);
        socket->textMessageReceived().connect([&](const QString&) { ++messages; });
        socket->disconnected().connect([&] { loop.quit(); });
        socket->open(request);
        return RunLoop(loop) && messages == 1;
    };
    Measure(state, cycle, {50, 1000, 1, 1000});
}

void SignalCycles(benchmark::State& state)
{
    CKyUITimer timer;
    int sink = 0;
    // A batch of 1,000 connect/disconnect cycles.
    const auto batch = [&] {
        for (int i = 0; i < 1000; ++i) {
            auto connection = timer.timeout().connect([&sink] { ++sink; });
            connection.disconnect();
        }
        return true;
    };
    Measure(state, batch, {10, 100, 1000, 1000});
    benchmark::DoNotOptimize(sink);
}

// A field of /proc/self/status in bytes (its kB figure), 0 if absent.
double StatusBytes(const char* field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith(field))
            return line.mid(int(qstrlen(field))).trimmed().split(' ').value(0).toDouble() * 1024;
    }
    return 0;
}

// Trims the heap and resets the peak resident size to the size now, which
// it answers: the start of a peak measured by VmHWM.
double StartPeakWindow()
{
    HeapInUse();
    const double now = StatusBytes("VmRSS:");
    if (FILE* clear = std::fopen("/proc/self/clear_refs", "w")) {
        std::fputs("5", clear);
        std::fclose(clear);
    }
    return now;
}

void BigBody(benchmark::State& state, bool streaming)
{
    const long long size = 100LL << 20;
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest request(BenchServerProcess::HttpUrl(QStringLiteral("/bytes/%1").arg(size)));
    request.setStreaming(streaming);
    request.setRequestTimeout(10 * 60 * 1000);
    bool good = true;
    for (auto _ : state) {
        const double before = StartPeakWindow();
        QEventLoop loop;
        long long received = 0;
        CKyNANetworkReply* reply = manager.get(request);
        const auto take = [&] {
            for (QByteArray piece; !(piece = reply->read(1 << 16)).isEmpty();) {
                received += piece.size();
                if (streaming)
                    std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
        };
        reply->readyRead().connect(take);
        reply->finished().connect([&] {
            take();
            good = received == size && reply->networkError() == CKyNANetworkReply::NoError;
            loop.quit();
        });
        good &= RunLoop(loop);
        delete reply;
        state.counters["peak"] = StatusBytes("VmHWM:") - before;
        state.counters["body"] = double(size);
    }
    if (!good)
        state.SkipWithError("the body did not arrive whole");
}

// The file is read a piece at a time while the upload runs: the peak stays
// far below its size.
void BigUpload(benchmark::State& state)
{
    const long long size = 200LL << 20;
    QTemporaryFile file;
    if (!file.open()) {
        state.SkipWithError("no temporary file");
        return;
    }
    const QByteArray block(1 << 20, 'm');
    for (long long written = 0; written < size; written += block.size())
        file.write(block);
    file.close();
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest request(BenchServerProcess::HttpUrl(QStringLiteral("/upload")));
    request.setRequestTimeout(10 * 60 * 1000);
    bool good = true;
    for (auto _ : state) {
        const double before = StartPeakWindow();
        QEventLoop loop;
        long long sent = 0;
        CKyNAMultipartForm form;
        form.addField(QStringLiteral("title"), QStringLiteral("model"));
        form.addFile(QStringLiteral("model"), file.fileName(), "application/octet-stream");
        CKyNANetworkReply* reply = manager.post(request, form);
        reply->uploadProgress().connect([&sent](long long bytes, long long total) {
            if (total > 0)
                sent = bytes;
        });
        reply->finished().connect([&] {
            good = sent > size && reply->networkError() == CKyNANetworkReply::NoError;
            loop.quit();
        });
        good &= RunLoop(loop);
        delete reply;
        state.counters["peak"] = StatusBytes("VmHWM:") - before;
        state.counters["body"] = double(size);
    }
    if (!good)
        state.SkipWithError("the upload did not go through whole");
}

} // namespace

// All the releasing sides first: the dialogs the keeping sides leave alive
// would grow the toolkit's tables of live widgets under a later measurement.
void Register()
{
    for (const int release : {1, 0}) {
        const std::string side = release ? "/released" : "/kept";
        const auto add = [release](const std::string& name, void (*run)(benchmark::State&)) {
            benchmark::RegisterBenchmark(name.c_str(), [release, run](benchmark::State& state) {
                g_release = release != 0;
                run(state);
            })->Iterations(1);
        };
        add("Soak/Dialog/empty" + side, [](benchmark::State& state) { DialogRuns(state, 0); });
        add("Soak/Dialog/controls:80" + side, [](benchmark::State& state) { DialogRuns(state, 80); });
        add("Soak/HTTP" + side, HttpTransfers);
        add("Soak/WebSocket" + side, WebSocketCycles);
        add("Soak/Signal" + side, SignalCycles);
    }
    benchmark::RegisterBenchmark("Soak/BigBody/streaming-slow-reader", [](benchmark::State& state) {
        BigBody(state, true);
    })->Iterations(1);
    benchmark::RegisterBenchmark("Soak/BigBody/whole", [](benchmark::State& state) {
        BigBody(state, false);
    })->Iterations(1);
    benchmark::RegisterBenchmark("Soak/BigBody/multipart-upload-from-disk", BigUpload)->Iterations(1);
}

// Dialogs need a QApplication; the offscreen platform unless the caller chose
// another one.
int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    QApplication application(argc, argv);
    Register();
    if (!BenchServerProcess::Start()) {
        std::fprintf(stderr, "commonui_bench_soak: commonui_bench_server did not start\n");
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    BenchServerProcess::Stop();
    return 0;
}
