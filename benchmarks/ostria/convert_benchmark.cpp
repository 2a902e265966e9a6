// SPDX-License-Identifier: Apache-2.0
// The live path's two conversions of a frame beside OpenCV's demosaicing alone.
#include "imageformatconverter.h"

#include <opencv2/imgproc.hpp>

#include <benchmark/benchmark.h>

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

void OpenCvDemosaicAlone(benchmark::State& state)
{
    std::vector<std::uint16_t> values = noise(65535);
    const cv::Mat mosaic(frameHeight, frameWidth, CV_16UC1, values.data());
    cv::Mat colors(frameHeight, frameWidth, CV_16UC3);
    for (auto _ : state) {
        cv::cvtColor(mosaic, colors, cv::COLOR_BayerRGGB2RGB);
        benchmark::DoNotOptimize(colors.data);
    }
}
BENCHMARK(OpenCvDemosaicAlone)->UseRealTime()->Unit(benchmark::kMillisecond);

void ToRgb16(benchmark::State& state)
{
    const COstriaImage source = frame();
    CImageFormatConverter converter;
    COstriaImage measured;
    for (auto _ : state)
        converter.Convert(measured, source);
}
BENCHMARK(ToRgb16)->UseRealTime()->Unit(benchmark::kMillisecond);

void Rgb16ToDisplay(benchmark::State& state)
{
    CImageFormatConverter converter;
    COstriaImage measured;
    converter.Convert(measured, frame());
    converter.setOutputPixelFormat(PixelType::BGRa8);
    COstriaImage shown;
    for (auto _ : state)
        converter.Convert(shown, measured);
}
BENCHMARK(Rgb16ToDisplay)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace Ostria
