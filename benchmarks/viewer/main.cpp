// SPDX-License-Identifier: Apache-2.0
// Runs the benchmarks with a screen.
#include "largememory.h"
#include "start.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    Viewer::giveLargeMemoryBack();
    QCoreApplication::setOrganizationName(QStringLiteral("ostria-benchmarks"));
    QCoreApplication::setApplicationName(QStringLiteral("viewer"));
    const int exitCode = runMeasuredStart(argc, argv);
    if (exitCode >= 0)
        return exitCode;
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
