// SPDX-License-Identifier: Apache-2.0
// Finding the chart in 8-bit colour images, beside the same search pixel by pixel. The counter
// peakMB is the most heap that one search takes beyond the image.
#include "colorcorrectionautochartfinder.h"

#include "chartscene.h"
#include "heapmeter.h"
#include "obviouschartfinder.h"

#include <benchmark/benchmark.h>

#include <ctime>
#include <map>
#include <utility>

using namespace ColorCalibration;

namespace {

/// Processor time, so that the ratio holds on a busy machine too.
double millisecondsSince(std::clock_t start)
{
    return 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
}

/// A chart over half the width. Rendered small and enlarged: the search sees no difference.
QImage scene(const QSize& size, QImage::Format format)
{
    ChartScene::Scene made;
    made.size = QSize(800, 800 * size.height() / size.width());
    made.corners = ChartScene::cornersOf({QPointF(430, 240), 400.0, 2.0, 3.0});
    made.noise = 2.0;
    return ChartScene::render(made).scaled(size).convertToFormat(format);
}

const QImage& imageOf(const benchmark::State& state)
{
    static std::map<std::pair<int64_t, int64_t>, QImage> images;
    QImage& image = images[{state.range(0), state.range(2)}];
    if (image.isNull())
        image =
            scene(QSize(int(state.range(0)), int(state.range(1))), QImage::Format(state.range(2)));
    return image;
}

/// Milliseconds of the plain search by width and format, measured in the same run.
std::map<std::pair<int64_t, int64_t>, double>& plainMilliseconds()
{
    static std::map<std::pair<int64_t, int64_t>, double> times;
    return times;
}

void findPixelByPixel(benchmark::State& state)
{
    const QImage image = imageOf(state);
    const std::clock_t start = std::clock();
    for (auto _ : state)
        benchmark::DoNotOptimize(Obvious::findChart(image));
    plainMilliseconds()[{state.range(0), state.range(2)}] =
        millisecondsSince(start) / double(state.iterations());
}

void findChart(benchmark::State& state)
{
    const QImage image = imageOf(state);
    ColorCorrectionAutoChartFinder finder;
    HeapMeter::restart();
    if (!finder.findChart(image).valid)
        state.SkipWithError("the chart was not found");
    const std::size_t peak = HeapMeter::peakBytes();

    const std::clock_t start = std::clock();
    for (auto _ : state)
        benchmark::DoNotOptimize(finder.findChart(image));
    const double milliseconds = millisecondsSince(start) / double(state.iterations());
    state.counters["peakMB"] = double(peak) / 1e6;
    state.counters["timesFaster"] =
        plainMilliseconds()[{state.range(0), state.range(2)}] / milliseconds;
}

/// The largest that is searched: 16-bit channels, and a strip on end.
void findInTallImage(benchmark::State& state)
{
    const QImage image =
        scene(QSize(200, 200), QImage::Format_RGBX64).scaled(200, int(state.range(0)));
    ColorCorrectionAutoChartFinder finder;
    HeapMeter::restart();
    finder.findChart(image);
    state.counters["peakMB"] = double(HeapMeter::peakBytes()) / 1e6;
    for (auto _ : state)
        benchmark::DoNotOptimize(finder.findChart(image));
}

void cameraImages(benchmark::internal::Benchmark* benchmark)
{
    for (const int format :
         {QImage::Format_RGB32, QImage::Format_RGB888, QImage::Format_ARGB32_Premultiplied}) {
        benchmark->Args({1920, 1200, format});
        benchmark->Args({4096, 3000, format});
    }
    benchmark->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(findPixelByPixel)->Apply(cameraImages);
BENCHMARK(findChart)->Apply(cameraImages);
BENCHMARK(findInTallImage)->Arg(600)->Arg(680)->Unit(benchmark::kMillisecond);
