// SPDX-License-Identifier: Apache-2.0
// The color stages against numbers computed by hand and against a sector-by-sector version.
#include "colorstages.h"

#include "obviousrenderer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <vector>

namespace Cameras::Emulation {
namespace {

using Rgb = std::array<int, 3>;

/// On a scale of 1000 to full scale.
Rgb adjusted(const PipelineSettings& settings, const std::array<double, 3>& thousandths)
{
    Word words[3];
    for (std::size_t c = 0; c < 3; ++c)
        words[c] = static_cast<Word>(thousandths[c] * wordFullScale / 1000.0 + 0.5);
    ColorStages(settings).apply(words, 1);
    return {words[0], words[1], words[2]};
}

void expectThousandths(const Rgb& words, const std::array<double, 3>& expected)
{
    for (std::size_t c = 0; c < 3; ++c)
        EXPECT_NEAR(words[c] * 1000.0 / wordFullScale, expected[c], 0.03) << "channel " << c;
}

PipelineSettings withSectors()
{
    PipelineSettings settings;
    settings.sectorsEnabled = true;
    return settings;
}

TEST(ColorStages, AreNeutralByDefault)
{
    EXPECT_TRUE(ColorStages(PipelineSettings()).isNeutral());
    PipelineSettings settings = withSectors();
    settings.colorMatrixEnabled = true;
    EXPECT_TRUE(ColorStages(settings).isNeutral());
    settings.colorMatrix[1] = 0.5;
    EXPECT_FALSE(ColorStages(settings).isNeutral());
    settings.colorMatrixEnabled = false;
    EXPECT_TRUE(ColorStages(settings).isNeutral());
}

TEST(ColorStages, MultiplyByTheRowsOfTheMatrix)
{
    PipelineSettings settings;
    settings.colorMatrixEnabled = true;
    settings.colorMatrix = {1.5, -0.25, -0.25, 0.1, 0.7, 0.2, 0.0, -0.5, 1.5};
    expectThousandths(adjusted(settings, {400, 200, 600}),
                      {600 - 50 - 150, 40 + 140 + 120, -100 + 900});
}

TEST(ColorStages, ClampAfterTheMatrix)
{
    PipelineSettings settings;
    settings.colorMatrixEnabled = true;
    settings.colorMatrix = {2.0, 0.0, 0.0, 0.0, 1.0, -2.0, 0.0, 0.0, 1.0};
    EXPECT_EQ(adjusted(settings, {800, 300, 500})[0], wordFullScale);
    EXPECT_EQ(adjusted(settings, {800, 300, 500})[1], 0);
    // What was clamped does not come back.
    settings.brightness = -0.25;
    expectThousandths(adjusted(settings, {800, 300, 500}), {750, 0, 250});
}

// Red over green over blue: between red and yellow; 300 above the middle, 200 above the smallest.
TEST(ColorStages, TurnAndSaturateRedAndYellow)
{
    PipelineSettings settings = withSectors();
    settings.sectorHue = {0.1, 0.2, 9, 9, 9, 9};
    settings.sectorSaturation = {1.1, 0.9, 9, 9, 9, 9};
    expectThousandths(adjusted(settings, {700, 400, 200}),
                      {700 + 0.2 * 200, 700 - (1.1 + 0.1) * 300 - 0.2 * 200,
                       700 - (1.1 - 0.1) * 300 - 0.9 * 200});
}

// Blue over green over red: between cyan and blue, where a turn has the other sign.
TEST(ColorStages, TurnAndSaturateCyanAndBlue)
{
    PipelineSettings settings = withSectors();
    settings.sectorHue = {9, 9, 9, 0.2, 0.1, 9};
    settings.sectorSaturation = {9, 9, 9, 0.9, 1.1, 9};
    expectThousandths(adjusted(settings, {200, 400, 700}),
                      {700 - (1.1 + 0.1) * 300 - 0.9 * 200, 700 - (1.1 - 0.1) * 300 + 0.2 * 200,
                       700 - 0.2 * 200});
}

TEST(ColorStages, LeaveGrayAloneWhateverTheSectors)
{
    PipelineSettings settings = withSectors();
    settings.sectorHue = {1, -1, 0.5, -0.5, 0.3, 0.2};
    settings.sectorSaturation = {0, 2, 0.5, 1.5, 3, 0.1};
    expectThousandths(adjusted(settings, {321, 321, 321}), {321, 321, 321});
}

TEST(ColorStages, MakeEverythingGrayAtItsLargestChannelWithoutSaturation)
{
    PipelineSettings settings = withSectors();
    settings.sectorSaturation = {0, 0, 0, 0, 0, 0};
    expectThousandths(adjusted(settings, {100, 640, 300}), {640, 640, 640});
}

TEST(ColorStages, AgreeWithTheSectorBySectorVersion)
{
    std::mt19937 random(3);
    const auto uniform = [&random](double from, double to) {
        return from + (to - from) * static_cast<double>(random()) / 4294967296.0;
    };
    for (int round = 0; round < 200; ++round) {
        PipelineSettings settings = withSectors();
        for (double& hue : settings.sectorHue)
            hue = uniform(-0.5, 0.5);
        for (double& saturation : settings.sectorSaturation)
            saturation = uniform(0.3, 1.7);
        const ColorStages stages(settings);
        for (int sample = 0; sample < 50; ++sample) {
            Word words[3];
            for (Word& word : words)
                word = static_cast<Word>(random() % (wordFullScale + 1));
            if (sample % 5 == 0)
                words[1] = words[2]; // ties
            const std::array<double, 3> expected =
                obviousSectors(settings, {double(words[0]), double(words[1]), double(words[2])});
            stages.apply(words, 1);
            for (std::size_t c = 0; c < 3; ++c)
                ASSERT_NEAR(words[c], std::clamp(expected[c], 0.0, double(wordFullScale)), 0.6);
        }
    }
}

// BT.601: red is Cb -0.299/1.772, Cr 0.5; turned by 90 degrees Cb becomes -Cr and Cr becomes Cb.
TEST(ColorStages, TurnTheHue)
{
    PipelineSettings settings;
    settings.hue = 90.0;
    const double luma = 0.299 * 500;
    const double cb = -500 * 0.701 / 1.402;
    const double cr = -500 * 0.299 / 1.772;
    const double blue = luma + 1.772 * cb;
    const double red = luma + 1.402 * cr;
    const double green = (luma - 0.299 * red - 0.114 * blue) / 0.587;
    // All three rise by 300, as gray is not turned.
    expectThousandths(adjusted(settings, {800, 300, 300}), {300 + red, 300 + green, 300 + blue});
}

TEST(ColorStages, TurnRedTowardsYellow)
{
    PipelineSettings settings;
    settings.hue = 20.0;
    const Rgb turned = adjusted(settings, {500, 200, 200});
    EXPECT_GT(turned[1], turned[2]);
    EXPECT_GT(turned[0], turned[1]);
}

TEST(ColorStages, ScaleTheColorDifferenceByTheSaturation)
{
    PipelineSettings settings;
    settings.saturation = 0.5;
    const double luma = 0.299 * 600 + 0.587 * 300 + 0.114 * 100;
    expectThousandths(adjusted(settings, {600, 300, 100}),
                      {(luma + 600) / 2, (luma + 300) / 2, (luma + 100) / 2});
    settings.saturation = 0.0;
    expectThousandths(adjusted(settings, {600, 300, 100}), {luma, luma, luma});
}

TEST(ColorStages, AddBrightnessAndScaleContrastAboutTheMiddle)
{
    PipelineSettings settings;
    settings.brightness = 0.1;
    expectThousandths(adjusted(settings, {600, 300, 950}), {700, 400, 1000});
    settings.contrast = 0.5;
    expectThousandths(adjusted(settings, {600, 300, 100}), {750, 300, 0});
    settings.brightness = 0.0;
    settings.contrast = -1.0;
    expectThousandths(adjusted(settings, {600, 300, 100}), {500, 500, 500});
}

TEST(ColorStages, KeepWhatSaturationLiftsAboveFullScaleForTheContrast)
{
    PipelineSettings settings;
    settings.saturation = 2.0;
    settings.contrast = -0.5;
    // Luma is 379.4, so red is 1220.6 between the two, and the others are 20.6.
    expectThousandths(adjusted(settings, {800, 200, 200}), {860.3, 260.3, 260.3});
}

TEST(ColorStages, ApplyBrightnessAndContrastAloneToMono)
{
    PipelineSettings settings;
    settings.hue = 45.0;
    settings.saturation = 3.0;
    settings.brightness = 0.1;
    settings.contrast = 0.5;
    Word words[2] = {static_cast<Word>(0.6 * wordFullScale), wordFullScale};
    ColorStages(settings).applyToMono(words, 2);
    EXPECT_NEAR(words[0], 0.75 * wordFullScale, 1.0);
    EXPECT_EQ(words[1], wordFullScale);
}

TEST(ColorStages, TreatAllPixelsOfARowAlike)
{
    PipelineSettings settings = withSectors();
    settings.sectorHue[0] = 0.2;
    std::vector<Word> words;
    for (int i = 0; i < 1001; ++i)
        words.insert(words.end(), {50000, 20000, 10000});
    ColorStages(settings).apply(words.data(), 1001);
    for (std::size_t i = 0; i < words.size(); ++i)
        ASSERT_EQ(words[i], words[i % 3]);
    EXPECT_EQ(words[1], 50000 - 36000);
}

} // namespace
} // namespace Cameras::Emulation
