// SPDX-License-Identifier: Apache-2.0
// The live path's two conversions of a frame beside OpenCV's demosaicing alone.
#include "imageformatconverter.h"

#include <opencv2/imgproc.hpp>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <random>
#include <vector>

namespace Ostria {
namespace {

constexpr int frameWidth = 1920;
constexpr int frameHeight = 1200;

std::vector<std::uint16_t> noise(unsigned largest)
{
    std::mt19937 random(1);
    std::vector<std::uint16_t> values(static_cast<std::size_t>(frameWidth) * frameHeight);
    for (std::uint16_t& value : values)
        value = static_cast<std::uint16_t>(random() % (largest + 1));
    return values;
}

COstriaImage frame()
{
    const std::vector<std::uint16_t> values = noise(4095);
    COstriaImage image(PixelType::BayerRG12, frameWidth, frameHeight);
    std::memcpy(image.writableData(), values.data(), image.size());
    return image;
}

/// OpenCV's demosaicing of a 16-bit frame into memory that is there already.
class Baseline
{
public:
    void run() { cv::cvtColor(m_mosaic, m_colors, cv::COLOR_BayerRGGB2RGB); }

private:
    std::vector<std::uint16_t> m_values = noise(65535);
    cv::Mat m_mosaic = cv::Mat(frameHeight, frameWidth, CV_16UC1, m_values.data());
    cv::Mat m_colors = cv::Mat(frameHeight, frameWidth, CV_16UC3);
};

/// What is done to every frame of a live view.
class LivePath
{
public:
    LivePath() { m_display.setOutputPixelFormat(PixelType::BGRa8); }

    void measure() { m_measuring.Convert(m_measured, m_source); }
    void show() { m_display.Convert(m_shown.data(), m_shown.size(), m_measured); }

private:
    COstriaImage m_source = frame();
    CImageFormatConverter m_measuring;
    CImageFormatConverter m_display;
    COstriaImage m_measured;
    std::vector<std::uint8_t> m_shown =
        std::vector<std::uint8_t>(std::size_t(4) * frameWidth * frameHeight);
};

template <typename Work>
double secondsOf(Work work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double median(std::vector<double>& values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void OpenCvDemosaicAlone(benchmark::State& state)
{
    Baseline baseline;
    for (auto _ : state)
        baseline.run();
}

void ToRgb16(benchmark::State& state)
{
    LivePath live;
    for (auto _ : state)
        live.measure();
}

void Rgb16ToDisplay(benchmark::State& state)
{
    LivePath live;
    live.measure();
    for (auto _ : state)
        live.show();
}

/// Both in turns, so that whatever else the machine does hits both alike. The time is that of our
/// two conversions; the counter "ratio" is their median over the baseline's median.
void LivePathBesideOpenCvDemosaic(benchmark::State& state)
{
    Baseline baseline;
    LivePath live;
    std::vector<double> theirs;
    std::vector<double> ours;
    for (auto _ : state) {
        theirs.push_back(secondsOf([&] { baseline.run(); }));
        ours.push_back(secondsOf([&] {
            live.measure();
            live.show();
        }));
        state.SetIterationTime(ours.back());
    }
    state.counters["ratio"] = median(ours) / median(theirs);
}

BENCHMARK(OpenCvDemosaicAlone)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ToRgb16)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Rgb16ToDisplay)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(LivePathBesideOpenCvDemosaic)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace Ostria
