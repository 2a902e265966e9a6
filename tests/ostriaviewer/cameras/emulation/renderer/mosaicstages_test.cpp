// SPDX-License-Identifier: Apache-2.0
// What happens before colors exist: test patterns, black level, white balance, demosaicing.
#include "gradientdemosaic.h"
#include "mosaiccorrection.h"
#include "sensor.h"
#include "testpattern.h"

#include "testscenes.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace Cameras::Emulation {
namespace {

std::vector<Word> corrected(const PipelineSettings& settings, const SensorModel& sensor,
                            const std::vector<float>& raw, int x, int y)
{
    std::vector<Word> words(raw.size());
    MosaicCorrection(settings, sensor)
        .apply(raw.data(), x, y, static_cast<int>(raw.size()), words.data());
    return words;
}

TEST(MosaicCorrection, LeavesCountsAloneIfNeutral)
{
    std::vector<float> raw;
    std::vector<Word> expected;
    for (int i = 0; i <= 4095; ++i) {
        raw.push_back(static_cast<float>(i));
        expected.push_back(static_cast<Word>(16 * i));
    }
    EXPECT_EQ(corrected(PipelineSettings(), idealSensor(8, 8), raw, 0, 0), expected);
}

TEST(MosaicCorrection, TakesThePedestalAwayAndKeepsFullScale)
{
    SensorModel sensor = idealSensor(8, 8);
    sensor.pedestal = 95.0;
    // 16 * 4095 / 4000 words a count: 16.38.
    EXPECT_EQ(corrected(PipelineSettings(), sensor, {0, 94, 95, 195, 4095}, 0, 0),
              (std::vector<Word>{0, 0, 0, 1638, 65520}));
}

TEST(MosaicCorrection, AddsTheBlackLevelBeforeTheRatios)
{
    PipelineSettings settings;
    settings.blackLevel = 10.0;
    settings.balanceRatio = {2.0, 1.5, 0.5};
    const SensorModel sensor = idealSensor(8, 8);
    EXPECT_EQ(corrected(settings, sensor, {100, 100, 100}, 0, 0),
              (std::vector<Word>{16 * 220, 16 * 165, 16 * 220}));
    EXPECT_EQ(corrected(settings, sensor, {100, 100, 100}, 0, 1),
              (std::vector<Word>{16 * 165, 16 * 55, 16 * 165}));
    EXPECT_EQ(corrected(settings, sensor, {100, 100}, 5, 7),
              (std::vector<Word>{16 * 55, 16 * 165}));
    EXPECT_EQ(corrected(settings, sensor, {3000}, 0, 0), std::vector<Word>{65520});
    settings.blackLevel = -50.0;
    EXPECT_EQ(corrected(settings, sensor, {20, 80}, 0, 0), (std::vector<Word>{0, 16 * 45}));
}

TEST(MosaicCorrection, KeepsWhatABlackLevelLiftsAboveFullScaleForTheRatio)
{
    PipelineSettings settings;
    settings.blackLevel = 100.0;
    settings.balanceRatio = {0.5, 1.0, 1.0};
    // (4095 + 100) / 2 counts, and not 4095 / 2.
    EXPECT_EQ(corrected(settings, idealSensor(8, 8), {4095, 4095}, 0, 0),
              (std::vector<Word>{8 * 4195, 65520}));
}

TEST(MosaicCorrection, DoesNotBalanceAMonoSensor)
{
    PipelineSettings settings;
    settings.balanceRatio = {2.0, 1.5, 0.5};
    SensorModel sensor = idealSensor(8, 8);
    sensor.mono = true;
    EXPECT_EQ(corrected(settings, sensor, {100, 100}, 0, 1), (std::vector<Word>{1600, 1600}));
}

std::vector<Word> pattern(TestImage image, SensorModel sensor, int frame, int x, int y, int count)
{
    sensor.pedestal = 64.0;
    std::vector<float> raw(static_cast<std::size_t>(count));
    testPatternRow(image, sensor, static_cast<std::uint64_t>(frame), x, y, count, raw.data());
    return corrected(PipelineSettings(), sensor, raw, x, y);
}

TEST(TestPattern, RampsUpByOneCountAColumn)
{
    const SensorModel sensor = idealSensor(5000, 8);
    const std::vector<Word> row = pattern(TestImage::GrayRamp, sensor, 77, 4090, 3, 10);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(row[static_cast<std::size_t>(i)], 16 * ((4090 + i) % 4096));
}

TEST(TestPattern, MovesTheRampWithTheFrame)
{
    const SensorModel sensor = idealSensor(64, 8);
    EXPECT_EQ(pattern(TestImage::MovingGrayRamp, sensor, 5, 10, 0, 20),
              pattern(TestImage::GrayRamp, sensor, 0, 15, 0, 20));
    EXPECT_EQ(pattern(TestImage::MovingGrayRamp, sensor, 4096, 10, 0, 20),
              pattern(TestImage::GrayRamp, sensor, 0, 10, 0, 20));
}

TEST(TestPattern, ShowsBarsThroughTheFilters)
{
    const SensorModel sensor = idealSensor(80, 8);
    const Word on = 16 * 3071;
    // White, yellow, cyan: red and green sites, then green and blue sites.
    EXPECT_EQ(pattern(TestImage::ColorBars, sensor, 0, 8, 0, 14),
              (std::vector<Word>{on, on, on, on, on, on, on, on, on, on, on, on, 0, on}));
    EXPECT_EQ(pattern(TestImage::ColorBars, sensor, 0, 8, 1, 4),
              (std::vector<Word>{on, on, on, 0}));
    EXPECT_EQ(pattern(TestImage::ColorBars, sensor, 0, 78, 0, 2), (std::vector<Word>{0, 0}));
    SensorModel mono = sensor;
    mono.mono = true;
    EXPECT_EQ(pattern(TestImage::ColorBars, mono, 0, 9, 0, 2),
              (std::vector<Word>{on, static_cast<Word>(16 * (3071 * 6 / 7))}));
}

constexpr int side = 9;
constexpr int middle = side / 2;

std::vector<Word> refined(const std::vector<Word>& mosaic)
{
    std::vector<Word> colors(3 * mosaic.size(), 12345);
    refineDemosaicing(mosaic.data(), side, side, colors.data());
    return colors;
}

Word at(const std::vector<Word>& colors, int x, int y, int channel)
{
    return colors[static_cast<std::size_t>(3 * (y * side + x) + channel)];
}

// The kernels answer an impulse with their own weights: eighths, from figure 2 of the paper.
TEST(GradientDemosaic, HasTheKernelsOfThePaper)
{
    std::vector<Word> mosaic(side * side, 8000);
    mosaic[middle * side + middle] += 1600; // a red site; an eighth is 200
    const std::vector<Word> colors = refined(mosaic);
    EXPECT_EQ(at(colors, middle, middle, 1), 8000 + 4 * 200);
    EXPECT_EQ(at(colors, middle, middle, 2), 8000 + 6 * 200);
    EXPECT_EQ(at(colors, middle + 2, middle, 1), 8000 - 200);
    EXPECT_EQ(at(colors, middle, middle - 2, 2), 8000 - 300);
    EXPECT_EQ(at(colors, middle + 1, middle, 0), 8000 + 4 * 200);
    EXPECT_EQ(at(colors, middle, middle + 1, 0), 8000 + 4 * 200);
    EXPECT_EQ(at(colors, middle + 1, middle + 1, 0), 8000 + 2 * 200);
    EXPECT_EQ(at(colors, middle + 1, middle + 1, 1), 8000);
}

TEST(GradientDemosaic, HasTheKernelsOfThePaperAroundGreen)
{
    std::vector<Word> mosaic(side * side, 8000);
    mosaic[middle * side + middle + 1] += 1600; // green in a row of red
    const std::vector<Word> colors = refined(mosaic);
    EXPECT_EQ(at(colors, middle + 1, middle, 0), 8000 + 5 * 200);
    EXPECT_EQ(at(colors, middle + 1, middle, 2), 8000 + 5 * 200);
    EXPECT_EQ(at(colors, middle, middle, 1), 8000 + 2 * 200);
    // Two columns on: for red it lies along the row, for blue across it.
    EXPECT_EQ(at(colors, middle + 3 - 4, middle, 0), 8000 - 200);
    EXPECT_EQ(at(colors, middle + 3 - 4, middle, 2), 8000 + 100);
    EXPECT_EQ(at(colors, middle, middle + 1, 0), 8000 - 200);
    EXPECT_EQ(at(colors, middle, middle + 1, 2), 8000 - 200);
}

TEST(GradientDemosaic, KeepsWhatIsKnownAndTheBorder)
{
    std::vector<Word> mosaic(side * side, 65520);
    const std::vector<Word> colors = refined(mosaic);
    EXPECT_EQ(at(colors, 1, middle, 0), 12345);
    EXPECT_EQ(at(colors, middle, side - 2, 1), 12345);
    EXPECT_EQ(at(colors, middle, middle, 0), 12345);
    EXPECT_EQ(at(colors, middle, middle, 1), 65520);
}

TEST(GradientDemosaic, ReproducesAPlaneExactly)
{
    std::vector<Word> mosaic;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            mosaic.push_back(static_cast<Word>(1000 + 160 * x + 320 * y));
    const std::vector<Word> colors = refined(mosaic);
    for (int y = 2; y < side - 2; ++y)
        for (int x = 2; x < side - 2; ++x)
            for (int channel = 0; channel < 3; ++channel) {
                if (channel != filterAt(x, y)) {
                    EXPECT_EQ(at(colors, x, y, channel), 1000 + 160 * x + 320 * y);
                }
            }
}

TEST(GradientDemosaic, StaysBetweenZeroAndFullScale)
{
    std::mt19937 random(4);
    std::vector<Word> mosaic(side * side);
    for (Word& word : mosaic)
        word = random() % 2 == 0 ? 0 : 65520;
    for (const Word word : refined(mosaic))
        EXPECT_LE(word, 65520);
}

} // namespace
} // namespace Cameras::Emulation
