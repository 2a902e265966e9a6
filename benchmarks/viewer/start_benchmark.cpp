// SPDX-License-Identifier: Apache-2.0
// From the start of the process to the first live picture, beside an empty window's start.
#include "start.h"

#include "emulatedcameras.h"
#include "viewerapplication.h"

#include <QApplication>
#include <QPaintEvent>
#include <QProcess>
#include <QWidget>

#include <cstring>

#include <benchmark/benchmark.h>

namespace {

// Ends without unwinding: what comes after the first picture is not measured.
[[noreturn]] void endNow()
{
    std::_Exit(0);
}

class EmptyWindow final : public QWidget
{
protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QMetaObject::invokeMethod(this, endNow, Qt::QueuedConnection);
    }
};

int startViewer(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QString error;
    const auto cameras = Viewer::emulatedCameras({}, error);
    Viewer::ViewerArguments arguments;
    arguments.backends = Viewer::Backends::Emulation;
    arguments.camera = cameras.constFirst()->displayName();
    Viewer::ViewerApplication viewer(arguments, cameras);
    QObject::connect(&viewer.window().liveView(), &Viewer::LiveView::painted, &viewer, endNow,
                     Qt::QueuedConnection);
    viewer.start();
    return QApplication::exec();
}

int startWindow(int argc, char** argv)
{
    const QApplication application(argc, argv);
    EmptyWindow window;
    window.resize(1200, 800);
    window.show();
    return QApplication::exec();
}

void measure(benchmark::State& state, const char* argument)
{
    for (auto _ : state) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(argument)});
        if (!process.waitForFinished(60000) || process.exitCode() != 0)
            state.SkipWithError("The program did not show a picture");
    }
}

void firstLivePicture(benchmark::State& state)
{
    measure(state, "--start-viewer");
}

void emptyWindow(benchmark::State& state)
{
    measure(state, "--start-window");
}

BENCHMARK(emptyWindow)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(firstLivePicture)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int runMeasuredStart(int argc, char** argv)
{
    if (argc != 2)
        return -1;
    if (std::strcmp(argv[1], "--start-viewer") == 0)
        return startViewer(argc, argv);
    return std::strcmp(argv[1], "--start-window") == 0 ? startWindow(argc, argv) : -1;
}
