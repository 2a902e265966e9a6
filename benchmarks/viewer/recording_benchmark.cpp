// SPDX-License-Identifier: Apache-2.0
// How many pictures of 1920 x 1200 a second a recording keeps, beside what Qt's PNG would let it.
#include "emulatedcameras.h"
#include "imageformatconverter.h"
#include "recorder.h"

#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <condition_variable>
#include <mutex>
#include <vector>

namespace {

using Viewer::Recorder;

/// Frames of the first emulated camera, each with noise of its own.
struct Frames
{
    Frames()
    {
        QString error;
        camera = Viewer::emulatedCameras({}, error).constFirst();
        std::mutex mutex;
        std::condition_variable arrived;
        const auto connection =
            QObject::connect(camera.data(), &Cameras::HostCamera::cameraImageGrabbed,
                             [&](const auto& /*camera*/, const Ostria::CGrabResultPtr& frame) {
                                 const std::lock_guard lock(mutex);
                                 if (frames.size() < Recorder::longestQueue)
                                     frames.push_back(frame);
                                 arrived.notify_one();
                             });
        camera->open();
        camera->startGrabbing();
        {
            std::unique_lock lock(mutex);
            arrived.wait(lock, [&] { return frames.size() == Recorder::longestQueue; });
        }
        QObject::disconnect(connection);
        camera->stopGrabbing();
    }

    Cameras::HostCameraPtr camera;
    std::vector<Ostria::CGrabResultPtr> frames;
};

const Frames& frames()
{
    static const Frames instance;
    return instance;
}

void setRate(benchmark::State& state)
{
    const auto pictures = static_cast<double>(state.iterations() * frames().frames.size());
    state.counters["picturesPerSecond"] = benchmark::Counter(pictures, benchmark::Counter::kIsRate);
}

/// A recording whose pictures all wait at once, from its begin to the last file.
void record(benchmark::State& state)
{
    const Cameras::HostCameraPtr camera = frames().camera;
    for (auto _ : state) {
        const QTemporaryDir folder;
        Recorder recorder;
        recorder.start(camera, folder.path());
        for (const Ostria::CGrabResultPtr& frame : frames().frames)
            emit camera->cameraImageGrabbed(camera, frame);
    }
    setRate(state);
}

/// The baseline: the same pictures as Qt writes them at its lowest level of compression.
void recordByQt(benchmark::State& state)
{
    constexpr int lowestLevel = 85;
    Ostria::CImageFormatConverter converter;
    converter.setOutputPixelFormat(Ostria::PixelType::BGRa8);
    Ostria::COstriaImage target;
    for (auto _ : state) {
        const QTemporaryDir folder;
        for (const Ostria::CGrabResultPtr& frame : frames().frames) {
            converter.Convert(target, frame->image());
            const QImage picture(target.data(), target.width(), target.height(),
                                 static_cast<int>(target.stride()), QImage::Format_RGB32);
            picture.save(folder.filePath(QStringLiteral("%1.png").arg(frame->frameNumber())), "png",
                         lowestLevel);
        }
    }
    setRate(state);
}

BENCHMARK(record)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(recordByQt)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
