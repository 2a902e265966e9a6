// SPDX-License-Identifier: Apache-2.0
// Images and whole calibrations of an emulated camera of 1920 x 1200 that exposes 20 ms.
#include "calibrationsequence.h"
#include "camerapool.h"
#include "emulatedcamera.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>

using namespace ColorCalibrate;
using Cameras::Emulation::EmulatedCamera;

namespace {

constexpr double exposure = 20000.0;

/// What the tool has around a camera.
class Host
{
public:
    Host()
    {
        QStandardPaths::setTestModeEnabled(true);
        Cameras::Emulation::EmulationOptions options;
        options.settingsFolder = m_folder.path();
        camera = EmulatedCamera::create(Cameras::Emulation::everydayModels().at(1), options);
        m_pool = std::make_unique<Cameras::CameraPool>(QList<Cameras::HostCameraPtr>{camera});
        m_pool->registerServices(m_registry);
        model.SetCameraStatusService(
            m_registry.find<Plugin::CameraPool::ICameraStatusService>().data());
        model.SetCameraControlService(
            m_registry.find<Plugin::CameraPool::ICameraControlService>().data());
        camera->open();
        camera->parameterCollection()
            ->floatParameter(QStringLiteral("ExposureTime"))
            ->setValue(exposure);
    }
    ~Host() { model.Close(); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    QSharedPointer<EmulatedCamera> camera;
    ColorCalibration::ColorCorrectionModel model;

private:
    QTemporaryDir m_folder;
    Core::Service::CServiceRegistry m_registry;
    std::unique_ptr<Cameras::CameraPool> m_pool;
};

double milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Counter "worst beyond exposure": how much longer than the exposure the slowest image took.
void singleImage(benchmark::State& state)
{
    Host host;
    host.model.Open(host.camera);
    QImage image;
    host.model.GrabImage(image, true);
    double worst = 0.0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        if (!host.model.GrabImage(image, true))
            state.SkipWithError("no image came");
        worst = std::max(worst, milliseconds(timer) - exposure / 1000.0);
    }
    state.counters["worst beyond exposure, ms"] = worst;
}
BENCHMARK(singleImage)->Unit(benchmark::kMillisecond)->UseRealTime();

/// One counter for each step. The baseline is the exposures that the steps cannot do without.
void wholeCalibration(benchmark::State& state)
{
    std::map<std::string, double> spent;
    double runs = 0.0;
    for (auto _ : state) {
        Host host;
        QElapsedTimer timer;
        std::string step;
        const auto endStep = [&] {
            if (!step.empty())
                spent[step] += milliseconds(timer);
            timer.start();
        };
        CalibrationSequence sequence(
            host.model,
            [&](const QString& next) {
                endStep();
                step = next.toStdString();
            },
            [] { return false; });
        SequenceOptions options;
        options.adjustExposure = false;
        sequence.run(host.camera, options);
        endStep();
        runs += 1.0;
        state.counters["exposures, ms"] =
            static_cast<double>(host.model.TakenImages()) * exposure / 1000.0;
    }
    for (const auto& [step, time] : spent)
        state.counters[step + ", ms"] = time / runs;
}
BENCHMARK(wholeCalibration)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
