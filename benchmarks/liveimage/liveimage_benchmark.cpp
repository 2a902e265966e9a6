// SPDX-License-Identifier: Apache-2.0
// What one frame of 1920x1200 costs on its way to the screen, stage by stage, beside a plain copy.
// usage: scripts/with-display liveimage_benchmark
#include "heldcamera.h"
#include "imageformatconverter.h"
#include "livepictures.h"
#include "qmlostriacamera.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickView>

#include <benchmark/benchmark.h>

#include <cstring>
#include <ctime>
#include <memory>
#include <random>

namespace ColorCalibration {
namespace {

constexpr int frameWidth = 1920;
constexpr int frameHeight = 1200;
constexpr double framesPerSecond = 24.0;

Ostria::COstriaImage cameraFrame()
{
    std::mt19937 random(1);
    Ostria::COstriaImage image(Ostria::PixelType::BayerRG8, frameWidth, frameHeight);
    for (std::size_t i = 0; i < image.size(); ++i)
        image.writableData()[i] = static_cast<std::uint8_t>(random());
    return image;
}

/// The model's two conversions, and the copy that it hands out.
class Conversion
{
public:
    Conversion() { m_display.setOutputPixelFormat(Ostria::PixelType::BGRa8); }

    QImage run()
    {
        m_measuring.Convert(m_measured, m_source);
        m_display.Convert(m_shown.bits(), static_cast<std::size_t>(m_shown.sizeInBytes()),
                          m_measured);
        return m_shown.copy();
    }

private:
    Ostria::COstriaImage m_source = cameraFrame();
    Ostria::CImageFormatConverter m_measuring;
    Ostria::CImageFormatConverter m_display;
    Ostria::COstriaImage m_measured;
    QImage m_shown = QImage(frameWidth, frameHeight, QImage::Format_RGB32);
};

/// Runs the work and tells the processor time that all threads took for it, as percent of one core
/// at 24 frames a second.
template <typename Work>
void measure(benchmark::State& state, Work work)
{
    const std::clock_t begin = std::clock();
    for (auto _ : state)
        work();
    const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    state.counters["percentOfCore"] =
        seconds / static_cast<double>(state.iterations()) * framesPerSecond * 100.0;
}

void CopyAlone(benchmark::State& state)
{
    const QImage source = Conversion().run();
    QImage target(source.size(), source.format());
    measure(state, [&] {
        std::memcpy(target.bits(), source.constBits(),
                    static_cast<std::size_t>(source.sizeInBytes()));
        benchmark::ClobberMemory();
    });
}

void Convert(benchmark::State& state)
{
    Conversion conversion;
    measure(state, [&] { benchmark::DoNotOptimize(conversion.run()); });
}

QSize sizeOf(const benchmark::State& state)
{
    return {static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
}

void Scale(benchmark::State& state)
{
    const QImage source = Conversion().run();
    const QSize size = sizeOf(state);
    measure(state, [&] { benchmark::DoNotOptimize(cameraPicture(source, size)); });
}

/// Never ends: the library's own end may come first.
QGuiApplication& application()
{
    static int argc = 1;
    static char name[] = "liveimage_benchmark";
    static char* argv[] = {name, nullptr};
    static auto* const instance = new QGuiApplication(argc, argv);
    return *instance;
}

/// A window that shows the live image of a camera that always has a frame.
class LiveScene
{
public:
    explicit LiveScene(const QSize& size)
    {
        m_item.setInterval(0);
        m_item.setFrameSize(size);
        m_view.engine()->rootContext()->setContextProperty(QStringLiteral("camera"), &m_item);
        QQmlComponent component(m_view.engine());
        component.setData("import QtQuick 2.5\nimport QtMultimedia 5.8\n"
                          "VideoOutput { source: camera; fillMode: VideoOutput.Stretch }",
                          QUrl());
        m_output.reset(qobject_cast<QQuickItem*>(component.create()));
        m_output->setParentItem(m_view.contentItem());
        m_output->setSize(size);
        m_view.resize(size);
        m_view.show();
    }
    ~LiveScene()
    {
        m_camera.answerAll([](int) { return HeldCamera::Answer(); });
        m_item.stopGrab();
    }
    LiveScene(const LiveScene&) = delete;
    LiveScene& operator=(const LiveScene&) = delete;

    void start() { m_item.startGrab(); }

    /// Lets the camera deliver one image, and waits until it is drawn.
    void showOne(const QImage& image)
    {
        QEventLoop loop;
        QObject::connect(&m_item, &QMLOstriaCamera::imageChanged, &loop, [&] {
            QObject::connect(&m_view, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit,
                             Qt::QueuedConnection);
        });
        m_camera.answer(image);
        loop.exec();
    }

private:
    HeldCamera m_camera;
    QMLOstriaCamera m_item{&m_camera};
    QQuickView m_view;
    std::unique_ptr<QQuickItem> m_output;
};

/// Conversion, scaling and drawing together, all threads.
void ConvertScaleAndDraw(benchmark::State& state)
{
    application();
    Conversion conversion;
    LiveScene scene(sizeOf(state));
    scene.start();
    scene.showOne(conversion.run());
    measure(state, [&] { scene.showOne(conversion.run()); });
}

/// The same without the conversion.
void ScaleAndDraw(benchmark::State& state)
{
    application();
    const QImage image = Conversion().run();
    LiveScene scene(sizeOf(state));
    scene.start();
    scene.showOne(image);
    measure(state, [&] { scene.showOne(image); });
}

BENCHMARK(CopyAlone)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Convert)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Scale)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond)
    ->Args({960, 600})
    ->Args({1920, 1200});
BENCHMARK(ScaleAndDraw)->UseRealTime()->Unit(benchmark::kMillisecond)->Args({960, 600});
BENCHMARK(ConvertScaleAndDraw)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond)
    ->Args({960, 600})
    ->Args({1200, 750});

} // namespace
} // namespace ColorCalibration
