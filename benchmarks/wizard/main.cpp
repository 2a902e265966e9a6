// SPDX-License-Identifier: Apache-2.0
// Runs the benchmarks with a screen.
#include "drawing.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("ostria-benchmarks"));
    QCoreApplication::setApplicationName(QStringLiteral("wizard"));
    benchmark::Initialize(&argc, argv);
    Viewer::drawScenesQuickly();
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
