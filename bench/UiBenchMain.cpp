// The dialog and style-sheet benchmarks run inside a QApplication, on the
// offscreen platform unless the caller chose another one.
#include <benchmark/benchmark.h>

#include <QtWidgets/QApplication>

#include <cstdlib>

int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
