// SPDX-License-Identifier: Apache-2.0
// The renderer is asked for what the features say.
#include "emulationtest.h"
#include "framesettings.h"
#include "modelfeatures.h"

#include <stdexcept>
#include <tuple>

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;

FeatureValues factoryValues(FeatureNames names)
{
    return FeatureValues(std::make_shared<FeatureTable>(modelFeatures(modelWith(names))));
}

void set(FeatureValues& values, const char* name, double value, int cell = 0)
{
    ASSERT_NE(values.table().find(QString::fromLatin1(name)), nullptr) << name;
    values.set(QString::fromLatin1(name), value, cell);
}

TEST(FrameSettings, NewCamerasLeaveTheFactoryNeutral)
{
    for (const FeatureNames names :
         {FeatureNames::SecondGeneration, FeatureNames::SecondGenerationMaker}) {
        const PipelineSettings settings = pipelineSettings(factoryValues(names));
        const PipelineSettings neutral;
        EXPECT_EQ(settings.gain, 0.0);
        EXPECT_EQ(settings.blackLevel, 0.0);
        EXPECT_EQ(settings.balanceRatio, neutral.balanceRatio);
        EXPECT_EQ(settings.colorMatrix, neutral.colorMatrix);
        EXPECT_EQ(settings.sectorHue, neutral.sectorHue);
        EXPECT_EQ(settings.sectorSaturation, neutral.sectorSaturation);
        EXPECT_EQ(settings.gammaCurve, GammaCurve::Off);
        EXPECT_EQ(settings.saturation, 1.0);
        EXPECT_FALSE(settings.lutEnabled);
        EXPECT_EQ(settings.testImage, TestImage::Off);
        EXPECT_EQ(settings.pixelFormat, PixelType::RGB8);
        EXPECT_EQ(settings.width, 1920);
        EXPECT_EQ(settings.height, 1200);
    }
}

TEST(FrameSettings, RawGainCountsTenthsOfADecibel)
{
    FeatureValues values = factoryValues(FeatureNames::FirstGeneration);
    set(values, "GainRaw", 125);
    EXPECT_DOUBLE_EQ(pipelineSettings(values).gain, 12.5);
}

TEST(FrameSettings, OldCamerasUseTheUsersMatrixWithCustomAlone)
{
    FeatureValues values = factoryValues(FeatureNames::FirstGeneration);
    set(values, "ColorTransformationValue", -0.5, 5);
    EXPECT_FALSE(pipelineSettings(values).colorMatrixEnabled);
    set(values, "LightSourceSelector", 1);
    EXPECT_TRUE(pipelineSettings(values).colorMatrixEnabled);
    EXPECT_EQ(pipelineSettings(values).colorMatrix[5], -0.5);
}

TEST(FrameSettings, PresetsTakeThePlaceOfTheUsersMatrixAndKeepGraysGray)
{
    for (const auto& [names, feature, first] :
         {std::tuple(FeatureNames::FirstGeneration, "LightSourceSelector", 2),
          std::tuple(FeatureNames::SecondGeneration, "LightSourcePreset", 1),
          std::tuple(FeatureNames::SecondGenerationMaker, "TvrLightSourcePreset", 1)}) {
        FeatureValues values = factoryValues(names);
        set(values, "ColorTransformationValue", 4.0, 1);
        for (int preset = first; preset < first + 2; ++preset) {
            set(values, feature, preset);
            const PipelineSettings settings = pipelineSettings(values);
            EXPECT_TRUE(settings.colorMatrixEnabled);
            for (std::size_t row = 0; row < 9; row += 3)
                EXPECT_NEAR(settings.colorMatrix[row] + settings.colorMatrix[row + 1] +
                                settings.colorMatrix[row + 2],
                            1.0, 1e-12);
        }
    }
}

TEST(FrameSettings, AdjustmentNeedsItsSwitchWhereThereIsOne)
{
    FeatureValues old = factoryValues(FeatureNames::FirstGeneration);
    set(old, "ColorAdjustmentHue", 0.5, 3);
    EXPECT_FALSE(pipelineSettings(old).sectorsEnabled);
    set(old, "ColorAdjustmentEnable", 1);
    EXPECT_TRUE(pipelineSettings(old).sectorsEnabled);
    EXPECT_EQ(pipelineSettings(old).sectorHue[3], 0.5);

    FeatureValues plain = factoryValues(FeatureNames::SecondGeneration);
    set(plain, "ColorAdjustmentSaturation", 1.5, 5);
    EXPECT_TRUE(pipelineSettings(plain).sectorsEnabled);
    EXPECT_EQ(pipelineSettings(plain).sectorSaturation[5], 1.5);

    FeatureValues maker = factoryValues(FeatureNames::SecondGenerationMaker);
    set(maker, "TvrColorAdjustmentHue", -0.25, 0);
    EXPECT_TRUE(pipelineSettings(maker).sectorsEnabled);
    EXPECT_EQ(pipelineSettings(maker).sectorHue[0], -0.25);
}

TEST(FrameSettings, GammaOfOldCamerasNeedsItsSwitch)
{
    FeatureValues values = factoryValues(FeatureNames::FirstGeneration);
    set(values, "Gamma", 0.45);
    EXPECT_EQ(pipelineSettings(values).gammaCurve, GammaCurve::Off);
    set(values, "GammaEnable", 1);
    EXPECT_EQ(pipelineSettings(values).gammaCurve, GammaCurve::User);
    EXPECT_EQ(pipelineSettings(values).gamma, 0.45);
    set(values, "GammaSelector", 1);
    EXPECT_EQ(pipelineSettings(values).gammaCurve, GammaCurve::Srgb);
}

TEST(FrameSettings, GammaOfNewCamerasActsByItself)
{
    FeatureValues values = factoryValues(FeatureNames::SecondGeneration);
    set(values, "Gamma", 0.45);
    EXPECT_EQ(pipelineSettings(values).gammaCurve, GammaCurve::User);
    EXPECT_EQ(pipelineSettings(values).gamma, 0.45);
}

TEST(FrameSettings, TheMakersAdjustmentsAreHandedOn)
{
    FeatureValues values = factoryValues(FeatureNames::SecondGenerationMaker);
    set(values, "TvrHue", 30.0);
    set(values, "TvrSaturation", 1.5);
    set(values, "TvrBrightness", 0.25);
    set(values, "TvrContrast", -0.5);
    PipelineSettings settings = pipelineSettings(values);
    EXPECT_EQ(settings.hue, 30.0);
    EXPECT_EQ(settings.saturation, 1.5);
    EXPECT_EQ(settings.brightness, 0.25);
    EXPECT_EQ(settings.contrast, -0.5);

    // A curve keeps both ends and the middle, and is steeper between.
    set(values, "TvrContrast", 1.0);
    set(values, "TvrContrastMode", 1);
    settings = pipelineSettings(values);
    EXPECT_EQ(settings.contrast, 0.0);
    ASSERT_TRUE(settings.lutEnabled);
    ASSERT_EQ(settings.lut.size(), 4096U);
    EXPECT_EQ(settings.lut.front(), 0);
    EXPECT_NEAR(settings.lut[2048], 2048, 1);
    EXPECT_EQ(settings.lut.back(), 4095);
    EXPECT_LT(settings.lut[1024], 1024);
    EXPECT_GT(settings.lut[3072], 3072);
}

TEST(FrameSettings, TheLookUpTableIsHandedOnWhileItIsEnabled)
{
    FeatureValues values = factoryValues(FeatureNames::SecondGeneration);
    set(values, "LUTValue", 99, 4000);
    EXPECT_FALSE(pipelineSettings(values).lutEnabled);
    set(values, "LUTEnable", 1);
    const PipelineSettings settings = pipelineSettings(values);
    ASSERT_EQ(settings.lut.size(), 4096U);
    EXPECT_EQ(settings.lut[4000], 99);
    EXPECT_EQ(settings.lut[3999], 3999);
}

TEST(FrameSettings, TheFramePeriodIsTheLongestOfItsCauses)
{
    using std::chrono::microseconds;
    FeatureValues values = factoryValues(FeatureNames::SecondGeneration);
    set(values, "ExposureTime", 3000);
    EXPECT_EQ(exposureTime(values), microseconds(3000));
    EXPECT_EQ(framePeriod(values, 10000.0), microseconds(10000));
    EXPECT_EQ(framePeriod(values, 2000.0), microseconds(3000));
    set(values, "AcquisitionFrameRate", 10.0);
    EXPECT_EQ(framePeriod(values, 2000.0), microseconds(3000));
    set(values, "AcquisitionFrameRateEnable", 1);
    EXPECT_EQ(framePeriod(values, 2000.0), microseconds(100000));
}

TEST(FrameSettings, ProcessedRawAsksForColorsAndSamplesThem)
{
    FeatureValues values = factoryValues(FeatureNames::FirstGeneration);
    set(values, "PixelFormat", static_cast<double>(PixelType::BayerRG8));
    EXPECT_FALSE(isProcessedRaw(values));
    EXPECT_EQ(pipelineSettings(values).pixelFormat, PixelType::BayerRG8);
    set(values, "ProcessedRawEnable", 1);
    EXPECT_TRUE(isProcessedRaw(values));
    EXPECT_EQ(pipelineSettings(values).pixelFormat, PixelType::RGB8);
    EXPECT_EQ(wantedPixelType(values), PixelType::BayerRG8);
    set(values, "PixelFormat", static_cast<double>(PixelType::Mono8));
    EXPECT_FALSE(isProcessedRaw(values));
}

TEST(FrameSettings, AMosaicHasRedFirst)
{
    Ostria::COstriaImage rgb(PixelType::RGB8, 4, 2);
    for (int i = 0; i < 24; ++i)
        rgb.writableData()[i] = static_cast<std::uint8_t>(10 * (i % 3 + 1)); // 10, 20, 30
    const Ostria::COstriaImage narrow = toMosaic(rgb, PixelType::BayerRG8);
    const std::uint8_t wanted[] = {10, 20, 10, 20, 20, 30, 20, 30};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(narrow.data()[i], wanted[i]) << i;
    const Ostria::COstriaImage wide = toMosaic(rgb, PixelType::BayerRG12);
    EXPECT_EQ(wide.readPixel(0, 0).red, 160);  // 10 << 4 | 10 >> 4
    EXPECT_EQ(wide.readPixel(1, 1).blue, 481); // 30 << 4 | 30 >> 4
    EXPECT_THROW(toMosaic(narrow, PixelType::BayerRG8), std::invalid_argument);
    EXPECT_THROW(toMosaic(rgb, PixelType::Mono8), std::invalid_argument);
}

} // namespace
} // namespace Cameras::Emulation
