// The HTTP and web-socket benchmarks run in a QCoreApplication; their server
// is a second process, so that the CPU time of this process is the client's.
#include "BenchServerProcess.h"

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    QCoreApplication application(argc, argv);
    if (!BenchServerProcess::Start()) {
        std::fprintf(stderr, "commonui_bench_network: commonui_bench_server did not start\n");
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    BenchServerProcess::Stop();
    return 0;
}
