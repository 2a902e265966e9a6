// SPDX-License-Identifier: Apache-2.0
// What the live view costs at 1920 x 1200 and 24 pictures a second, part by part.
#include "emulatedcameras.h"
#include "frameconverter.h"
#include "imageformatconverter.h"
#include "liveview.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <condition_variable>
#include <ctime>
#include <mutex>

#include <benchmark/benchmark.h>

namespace {

constexpr double picturesPerSecond = 24.0;

/// A frame of the first emulated camera, as it leaves the camera.
Ostria::CGrabResultPtr cameraFrame()
{
    QString error;
    const auto camera = Viewer::emulatedCameras({}, error).constFirst();
    std::mutex mutex;
    std::condition_variable arrived;
    Ostria::CGrabResultPtr frame;
    QObject::connect(camera.data(), &Cameras::HostCamera::cameraImageGrabbed,
                     [&](const auto& /*camera*/, const Ostria::CGrabResultPtr& result) {
                         const std::lock_guard lock(mutex);
                         frame = result;
                         arrived.notify_one();
                     });
    camera->open();
    std::unique_lock lock(mutex);
    camera->grabSingle();
    arrived.wait(lock, [&] { return frame != nullptr; });
    return frame;
}

double processorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

QImage picture()
{
    QImage image(1920, 1200, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    return image;
}

void showView(Viewer::LiveView& view)
{
    view.resize(800, 620);
    view.show();
    QApplication::processEvents();
}

void convert(benchmark::State& state)
{
    const Ostria::CGrabResultPtr frame = cameraFrame();
    Ostria::CImageFormatConverter converter;
    converter.setOutputPixelFormat(Ostria::PixelType::BGRa8);
    Ostria::COstriaImage target;
    for (auto _ : state)
        converter.Convert(target, frame->image());
}

void paintFitted(benchmark::State& state)
{
    Viewer::LiveView view;
    showView(view);
    view.setPicture(picture());
    for (auto _ : state)
        view.repaint();
}

void paintPixelByPixel(benchmark::State& state)
{
    Viewer::LiveView view;
    showView(view);
    view.setPicture(picture());
    view.zoomToPixels();
    for (auto _ : state)
        view.repaint();
}

/// Counter "coreShare": of one core, for conversion, scaling and drawing together, in all threads
/// of the process.
void liveAt24(benchmark::State& state)
{
    const Ostria::CGrabResultPtr frame = cameraFrame();
    Viewer::LiveView view;
    showView(view);
    Viewer::FrameConverter converter;
    QObject::connect(&converter, &Viewer::FrameConverter::frameReady, &view,
                     [&](const Viewer::LiveFrame& ready) { view.setPicture(ready.picture); });
    int painted = 0;
    QObject::connect(&view, &Viewer::LiveView::painted, [&] { ++painted; });
    const auto inlet = converter.openInlet();
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&] { inlet(frame); });
    timer.start(static_cast<int>(1000.0 / picturesPerSecond));

    double processor = 0.0;
    double wall = 0.0;
    for (auto _ : state) {
        const double processorBefore = processorSeconds();
        const auto before = std::chrono::steady_clock::now();
        QEventLoop loop;
        QTimer::singleShot(1000, &loop, &QEventLoop::quit);
        loop.exec();
        processor += processorSeconds() - processorBefore;
        wall += std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count();
    }
    state.counters["coreShare"] = processor / wall;
    state.counters["picturesPerSecond"] = painted / wall;
}

BENCHMARK(convert)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(paintFitted)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(paintPixelByPixel)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(liveAt24)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
