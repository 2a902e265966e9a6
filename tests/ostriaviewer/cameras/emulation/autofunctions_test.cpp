// SPDX-License-Identifier: Apache-2.0
// Automatic functions move the image towards a middle gray without a cast.
#include "autofunctions.h"
#include "emulationtest.h"
#include "frameprobe.h"
#include "generationname.h"
#include "modelfeatures.h"
#include "registerstore.h"

#include <cmath>

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;

class AutoFunctionsTest : public testing::TestWithParam<FeatureNames>
{
protected:
    double value(const char* name, int cell = 0) const
    {
        return m_store.values().value(QString::fromLatin1(name), cell, -1.0);
    }
    void set(const char* name, double value) { m_store.set(QString::fromLatin1(name), value); }
    bool isFirst() const { return GetParam() == FeatureNames::FirstGeneration; }
    const char* exposure() const { return isFirst() ? "ExposureTimeAbs" : "ExposureTime"; }
    const char* longestAutomatic() const
    {
        return isFirst() ? "AutoExposureTimeAbsUpperLimit" : "AutoExposureTimeUpperLimit";
    }
    const char* ratio() const { return isFirst() ? "BalanceRatioAbs" : "BalanceRatio"; }
    double gain() const { return isFirst() ? value("GainRaw") / 10.0 : value("Gain"); }

    RegisterStore m_store{std::make_shared<FeatureTable>(modelFeatures(modelWith(GetParam())))};
};

TEST_P(AutoFunctionsTest, NothingHappensWhileAllAreOff)
{
    EXPECT_FALSE(isAnyAutoFunctionOn(m_store.values()));
    runAutoFunctions({0.1, 0.2, 0.3}, m_store);
    EXPECT_EQ(value(exposure()), 10000.0);
    EXPECT_EQ(gain(), 0.0);
    EXPECT_EQ(value(ratio(), 0), 1.0);
}

TEST_P(AutoFunctionsTest, ExposureOnceActsOnce)
{
    set("ExposureAuto", 1);
    EXPECT_TRUE(isAnyAutoFunctionOn(m_store.values()));
    runAutoFunctions({0.25, 0.25, 0.25}, m_store);
    EXPECT_EQ(value(exposure()), 20000.0);
    EXPECT_EQ(value("ExposureAuto"), 0.0);
    EXPECT_EQ(gain(), 0.0);
}

TEST_P(AutoFunctionsTest, ContinuousGoesOn)
{
    set("ExposureAuto", 2);
    runAutoFunctions({0.25, 0.25, 0.25}, m_store);
    runAutoFunctions({1.0, 1.0, 1.0}, m_store);
    EXPECT_EQ(value(exposure()), 10000.0);
    EXPECT_EQ(value("ExposureAuto"), 2.0);
}

TEST_P(AutoFunctionsTest, GainTakesWhatExposureCannotGive)
{
    set("ExposureAuto", 1);
    set("GainAuto", 1);
    set(exposure(), 90000.0);
    set(longestAutomatic(), 100000.0);
    runAutoFunctions({0.25, 0.25, 0.25}, m_store);
    EXPECT_EQ(value(exposure()), 100000.0);
    EXPECT_NEAR(gain(), 5.1, 0.06); // 20 log10(2 * 0.9) = 5.105
}

TEST_P(AutoFunctionsTest, BlackAndWhiteStayWithinTheLimits)
{
    set("ExposureAuto", 2);
    set("GainAuto", 2);
    for (int i = 0; i < 5; ++i)
        runAutoFunctions({0.0, 0.0, 0.0}, m_store);
    EXPECT_EQ(value(exposure()), 1000000.0);
    EXPECT_EQ(gain(), 24.0);
    for (int i = 0; i < 20; ++i)
        runAutoFunctions({1.0, 1.0, 1.0}, m_store);
    EXPECT_EQ(value(exposure()), 100.0);
    EXPECT_EQ(gain(), 0.0);
}

TEST_P(AutoFunctionsTest, WhiteBalanceFollowsGreen)
{
    set("BalanceWhiteAuto", 1);
    runAutoFunctions({0.2, 0.4, 0.8}, m_store);
    EXPECT_EQ(value(ratio(), 0), 2.0);
    EXPECT_EQ(value(ratio(), 1), 1.0);
    EXPECT_EQ(value(ratio(), 2), 0.5);
    EXPECT_EQ(value("BalanceWhiteAuto"), 0.0);
}

TEST_P(AutoFunctionsTest, WhiteBalanceLeavesABlackImageAlone)
{
    set("BalanceWhiteAuto", 2);
    runAutoFunctions({0.0, 0.0, 0.0}, m_store);
    EXPECT_EQ(value(ratio(), 0), 1.0);
    EXPECT_EQ(value(ratio(), 2), 1.0);
}

INSTANTIATE_TEST_SUITE_P(Generations, AutoFunctionsTest,
                         testing::Values(FeatureNames::FirstGeneration,
                                         FeatureNames::SecondGeneration),
                         generationName);

TEST(MeasureLevels, TakesTheMeanOfEachChannel)
{
    Ostria::COstriaImage rgb(PixelType::RGB8, 10, 40);
    for (std::size_t i = 0; i < rgb.size(); ++i)
        rgb.writableData()[i] = static_cast<std::uint8_t>(51 * (i % 3)); // 0, 51, 102
    const FrameLevels levels = measureLevels(rgb);
    EXPECT_DOUBLE_EQ(levels[0], 0.0);
    EXPECT_DOUBLE_EQ(levels[1], 0.2);
    EXPECT_DOUBLE_EQ(levels[2], 0.4);
}

TEST(MeasureLevels, CountsEachSiteOfAMosaicForItsChannel)
{
    Ostria::COstriaImage mosaic(PixelType::BayerRG8, 8, 64);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 8; ++x)
            mosaic.writableData()[static_cast<std::size_t>(y) * mosaic.stride() + x] =
                static_cast<std::uint8_t>(51 * (1 + x % 2 + y % 2)); // red 51, green 102, blue 153
    const FrameLevels levels = measureLevels(mosaic);
    EXPECT_DOUBLE_EQ(levels[0], 0.2);
    EXPECT_DOUBLE_EQ(levels[1], 0.4);
    EXPECT_DOUBLE_EQ(levels[2], 0.6);
}

class AutomaticCamera : public EmulationTest
{};

TEST_F(AutomaticCamera, OneFrameBringsExposureAndBalanceNearer)
{
    const auto camera = openCamera(smallModel());
    const auto features = camera->parameterCollection();
    const auto exposure = features->floatParameter(QStringLiteral("ExposureTime"));
    exposure->setValue(2000.0);
    for (const char* name : {"ExposureAuto", "BalanceWhiteAuto"})
        features->enumerationParameter(QString::fromLatin1(name))->setValue(QStringLiteral("Once"));
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->grabSingle());
    ASSERT_TRUE(probe.waitFor(1));
    EXPECT_EQ(features->enumerationParameter(QStringLiteral("ExposureAuto"))->value(),
              QStringLiteral("Off"));
    ASSERT_TRUE(camera->grabSingle());
    ASSERT_TRUE(probe.waitFor(2));
    const FrameLevels before = measureLevels(probe.results()[0]->image());
    const FrameLevels after = measureLevels(probe.results()[1]->image());
    EXPECT_LT(before[1], 0.25);
    EXPECT_GT(after[1], 0.35);
    EXPECT_LT(after[1], 0.65);
    EXPECT_GT(std::abs(before[2] / before[1] - 1.0), 0.2);
    EXPECT_NEAR(after[2] / after[1], 1.0, 0.1);
    EXPECT_TRUE(exposure->isWritable());
}

} // namespace
} // namespace Cameras::Emulation
