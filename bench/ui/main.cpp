#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdlib>

/// Draws into memory unless told otherwise.
int main(int argc, char* argv[])
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
