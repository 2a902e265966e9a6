// SPDX-License-Identifier: Apache-2.0
// Measuring the 24 patches of a 4096x3000 image, beside the loop that asks every pixel.
#include "patchmeasurement.h"
#include "patchtrapezoids.h"

#include <QColor>
#include <QPolygon>
#include <QRect>
#include <QVector>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

using namespace ColorCalibration;
using Ostria::COstriaImage;

namespace {

constexpr int width = 4096;
constexpr int height = 3000;

const COstriaImage& image()
{
    static const COstriaImage noise = [] {
        COstriaImage made(Ostria::PixelType::RGB16, width, height);
        std::mt19937 generator(1);
        std::normal_distribution<double> level(20000.0, 600.0);
        std::uint8_t* bytes = made.writableData();
        for (std::size_t i = 0; i < made.size(); i += 2) {
            const auto value = static_cast<std::uint16_t>(level(generator));
            std::memcpy(bytes + i, &value, sizeof value);
        }
        return made;
    }();
    return noise;
}

/// A chart that fills the image, seen a little askew.
const QVector<TrapezoidPoints>& patches()
{
    static const QVector<TrapezoidPoints> made =
        computePatchTrapezoids({{90, 60}, {4010, 20}, {40, 2960}, {4060, 2900}}, 70);
    return made;
}

struct Pixel
{
    double red;
    double green;
    double blue;
};

bool obviousLoop(const TrapezoidPoints& patch, QColor& out)
{
    const QPolygon polygon = patch.toPolygon();
    const QRect bounds = polygon.boundingRect();
    std::vector<Pixel> pixels;
    for (int y = bounds.top(); y < bounds.bottom(); ++y)
        for (int x = bounds.left(); x < bounds.right(); ++x)
            if (polygon.containsPoint({x, y}, Qt::OddEvenFill)) {
                const Ostria::PixelReading reading = image().readPixel(x, y);
                pixels.push_back({static_cast<double>(reading.red),
                                  static_cast<double>(reading.green),
                                  static_cast<double>(reading.blue)});
            }
    if (pixels.size() < 24)
        return false;
    const auto median = pixels.begin() + static_cast<std::ptrdiff_t>(pixels.size() / 2);
    std::nth_element(pixels.begin(), median, pixels.end(), [](const Pixel& a, const Pixel& b) {
        return std::max({a.red, a.green, a.blue}) < std::max({b.red, b.green, b.blue});
    });
    out.setRedF(median->red / 65536.0);
    out.setGreenF(median->green / 65536.0);
    out.setBlueF(median->blue / 65536.0);
    return true;
}

void baselineObviousLoop(benchmark::State& state)
{
    image();
    for (auto _ : state)
        for (const TrapezoidPoints& patch : patches()) {
            QColor color;
            benchmark::DoNotOptimize(obviousLoop(patch, color));
        }
}

void measureAllPatches(benchmark::State& state)
{
    image();
    for (auto _ : state)
        for (const TrapezoidPoints& patch : patches()) {
            QColor color;
            benchmark::DoNotOptimize(measurePatch(patch, image(), 65536, color));
        }
}

} // namespace

BENCHMARK(baselineObviousLoop)->Unit(benchmark::kMillisecond);
BENCHMARK(measureAllPatches)->Unit(benchmark::kMillisecond);
