#pragma once

#include <QtCore/QUrl>

// commonui_bench_server, started once from beside this program and stopped
// when the benchmarks end (closing its input ends it).
namespace BenchServerProcess
{

// Starts the server unless it runs; false when it cannot be started.
bool Start();
void Stop();

// http://127.0.0.1:<port><path> and ws://127.0.0.1:<port><path>.
QUrl HttpUrl(const QString& path);
QUrl WebSocketUrl(const QString& pathAndQuery);

} // namespace BenchServerProcess
