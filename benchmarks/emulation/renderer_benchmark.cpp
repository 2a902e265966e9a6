// SPDX-License-Identifier: Apache-2.0
// Frames of 1920x1200 beside the version that works pixel by pixel in double precision.
#include "obviousrenderer.h"
#include "renderer.h"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;

PipelineSettings neutral(PixelType format)
{
    PipelineSettings settings;
    settings.pixelFormat = format;
    return settings;
}

PipelineSettings highQuality()
{
    PipelineSettings settings;
    settings.demosaicing = Demosaicing::HighQuality;
    return settings;
}

/// As a calibrated camera is set.
PipelineSettings calibrated()
{
    PipelineSettings settings;
    settings.balanceRatio = {1.2, 1.0, 1.4};
    settings.colorMatrixEnabled = true;
    settings.colorMatrix = {1.4, -0.3, -0.1, -0.25, 1.45, -0.2, 0.0, -0.4, 1.4};
    settings.sectorsEnabled = true;
    settings.sectorHue = {0.05, -0.1, 0.08, 0.02, -0.06, 0.1};
    settings.gammaCurve = GammaCurve::Srgb;
    return settings;
}

void Frame(benchmark::State& state, const PipelineSettings& settings)
{
    Renderer renderer{SensorModel(), Scene()};
    std::uint64_t frame = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.render(settings, frame++));
}
BENCHMARK_CAPTURE(Frame, Rgb8, neutral(PixelType::RGB8))
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Frame, BayerRg8, neutral(PixelType::BayerRG8))
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Frame, Mono12, neutral(PixelType::Mono12))
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Frame, Rgb8HighQuality, highQuality())
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Frame, Rgb8Calibrated, calibrated())
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void ObviousFrame(benchmark::State& state, const PipelineSettings& settings)
{
    const SensorModel sensor;
    const ObviousRenderer renderer(sensor, Scene().project(sensor.width, sensor.height));
    std::uint64_t frame = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.colors(settings, frame++));
}
BENCHMARK_CAPTURE(ObviousFrame, Neutral, PipelineSettings())
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ObviousFrame, Calibrated, calibrated())
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void SetScene(benchmark::State& state)
{
    Renderer renderer{SensorModel(), Scene()};
    for (auto _ : state)
        renderer.setScene(Scene());
}
BENCHMARK(SetScene)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace Cameras::Emulation
