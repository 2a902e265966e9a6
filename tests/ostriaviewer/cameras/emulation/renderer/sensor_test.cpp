// SPDX-License-Identifier: Apache-2.0
// The sensor against the formulas of its physics.
#include "sensor.h"

#include "testscenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace Cameras::Emulation {
namespace {

std::vector<float> frameOf(Sensor& sensor, double exposure, double gain, std::uint64_t frame = 0)
{
    const SensorModel& model = sensor.model();
    const auto width = static_cast<std::size_t>(model.width);
    std::vector<float> raw(width * static_cast<std::size_t>(model.height));
    for (int y = 0; y < model.height; ++y)
        sensor.readRow(exposure, gain, frame, 0, y, model.width,
                       raw.data() + width * static_cast<std::size_t>(y));
    return raw;
}

std::vector<float> uniformFrame(const SensorModel& model, const Light& light, double exposure,
                                double gain = 0.0)
{
    Sensor sensor(model);
    sensor.expose(uniformLight(model.width, model.height, light[0], light[1], light[2]));
    return frameOf(sensor, exposure, gain);
}

struct Statistics
{
    double mean = 0.0;
    double variance = 0.0;
};

Statistics statisticsOf(const std::vector<float>& values)
{
    Statistics result;
    for (const float value : values)
        result.mean += value;
    result.mean /= static_cast<double>(values.size());
    for (const float value : values)
        result.variance += (value - result.mean) * (value - result.mean);
    result.variance /= static_cast<double>(values.size() - 1);
    return result;
}

SensorModel noisySensor()
{
    SensorModel model = idealSensor(256, 256);
    model.mono = true;
    model.noiseEnabled = true;
    model.conversionGain = 0.25;
    model.readNoise = 20.0;
    model.pedestal = 200.0;
    return model;
}

TEST(Sensor, DoublesTheSignalWithTheExposure)
{
    SensorModel model = idealSensor(8, 8);
    model.roundingEnabled = false;
    const float once = uniformFrame(model, {0.3F, 0.3F, 0.3F}, 500.0)[0];
    EXPECT_NEAR(once, 0.15 * 4095.0, 0.001);
    EXPECT_NEAR(uniformFrame(model, {0.3F, 0.3F, 0.3F}, 1000.0)[0], 2.0 * once, 0.001);
    EXPECT_EQ(uniformFrame(model, {0.3F, 0.3F, 0.3F}, 0.0)[0], 0.0F);
}

TEST(Sensor, MultipliesTheSignalByTheGain)
{
    SensorModel model = idealSensor(8, 8);
    model.roundingEnabled = false;
    const float plain = uniformFrame(model, {0.1F, 0.1F, 0.1F}, 1000.0)[0];
    // 20 dB are a factor of 10, -6.0206 dB one of a half.
    EXPECT_NEAR(uniformFrame(model, {0.05F, 0.05F, 0.05F}, 1000.0, 20.0)[0], 5.0 * plain, 0.01);
    EXPECT_NEAR(uniformFrame(model, {0.1F, 0.1F, 0.1F}, 1000.0, -6.020599913)[0], 0.5 * plain,
                0.01);
}

TEST(Sensor, LaysRedGreenGreenBlueOverItsPixels)
{
    const std::vector<float> raw = uniformFrame(idealSensor(8, 8), {0.2F, 0.4F, 0.8F}, 1000.0);
    EXPECT_EQ(raw[0], 819.0F);
    EXPECT_EQ(raw[1], 1638.0F);
    EXPECT_EQ(raw[8], 1638.0F);
    EXPECT_EQ(raw[9], 3276.0F);
    EXPECT_EQ(raw[2], 819.0F);
    EXPECT_EQ(raw[16], 819.0F);
}

TEST(Sensor, MixesColorsByItsCrosstalk)
{
    SensorModel model = idealSensor(8, 8);
    model.roundingEnabled = false;
    model.crosstalk = {0.7, 0.2, 0.1, 0.25, 0.6, 0.15, 0.05, 0.3, 0.65};
    const std::vector<float> raw = uniformFrame(model, {0.2F, 0.4F, 0.8F}, 1000.0);
    EXPECT_NEAR(raw[0], 4095 * (0.14 + 0.08 + 0.08), 0.001);
    EXPECT_NEAR(raw[1], 4095 * (0.05 + 0.24 + 0.12), 0.001);
    EXPECT_NEAR(raw[9], 4095 * (0.01 + 0.12 + 0.52), 0.001);
}

TEST(Sensor, SeesTheLuminanceWithoutFilters)
{
    SensorModel model = idealSensor(8, 8);
    model.mono = true;
    model.roundingEnabled = false;
    const std::vector<float> raw = uniformFrame(model, {0.2F, 0.4F, 0.8F}, 1000.0);
    const double luminance = 0.2126 * 0.2 + 0.7152 * 0.4 + 0.0722 * 0.8; // ITU-R BT.709
    EXPECT_NEAR(raw[0], 4095 * luminance, 0.001);
    EXPECT_EQ(raw[9], raw[0]);
}

TEST(Sensor, LosesAShareThatGrowsWithTheSignal)
{
    SensorModel model = idealSensor(8, 8);
    model.roundingEnabled = false;
    model.nonLinearityEnabled = true;
    model.nonLinearity = {0.01, 0.02, 0.04};
    const std::vector<float> half = uniformFrame(model, {0.5F, 0.5F, 0.5F}, 1000.0);
    EXPECT_NEAR(half[0], 4095 * 0.5 * 0.995, 0.001);
    EXPECT_NEAR(half[1], 4095 * 0.5 * 0.99, 0.001);
    EXPECT_NEAR(half[9], 4095 * 0.5 * 0.98, 0.001);
    model.nonLinearityEnabled = false;
    EXPECT_NEAR(uniformFrame(model, {0.5F, 0.5F, 0.5F}, 1000.0)[9], 4095 * 0.5, 0.001);
}

TEST(Sensor, LosesLightTowardsTheCorners)
{
    SensorModel model = idealSensor(200, 100);
    model.roundingEnabled = false;
    model.vignettingEnabled = true;
    model.vignetting = 0.04;
    const std::vector<float> raw = uniformFrame(model, {0.5F, 0.5F, 0.5F}, 1000.0);
    const auto loss = [&raw](std::size_t x, std::size_t y) {
        return 1.0 - raw[200 * y + x] / (4095 * 0.5);
    };
    EXPECT_NEAR(loss(0, 0), 0.04, 0.001);
    EXPECT_NEAR(loss(199, 99), loss(0, 0), 1e-6);
    EXPECT_NEAR(loss(100, 50), 0.0, 1e-5);
    // At the middle of the right edge: the square of 100 out of that of the half diagonal.
    EXPECT_NEAR(loss(199, 50), 0.04 * 10000.0 / 12500.0, 0.001);
}

TEST(Sensor, AddsThePedestalToEveryPixel)
{
    SensorModel model = idealSensor(8, 8);
    model.pedestal = 64.0;
    EXPECT_EQ(uniformFrame(model, {0, 0, 0}, 1000.0)[0], 64.0F);
    EXPECT_EQ(uniformFrame(model, {0, 0, 0}, 1000.0, 24.0)[0], 64.0F);
    EXPECT_EQ(uniformFrame(model, {1, 1, 1}, 1000.0)[0], 4095.0F);
    EXPECT_EQ(uniformFrame(model, {0.5F, 0.5F, 0.5F}, 1000.0)[0],
              std::floor(64 + 4031 / 2.0 + 0.5));
}

TEST(Sensor, ClipsAtFullScale)
{
    for (const double exposure : {1001.0, 5000.0, 1e10})
        EXPECT_EQ(uniformFrame(idealSensor(8, 8), {1, 1, 1}, exposure)[0], 4095.0F);
    SensorModel noisy = noisySensor();
    noisy.readNoise = 1000.0;
    const std::vector<float> bright = uniformFrame(noisy, {1, 1, 1}, 1000.0);
    EXPECT_EQ(*std::max_element(bright.begin(), bright.end()), 4095.0F);
    const std::vector<float> dark = uniformFrame(noisy, {0, 0, 0}, 1000.0);
    EXPECT_EQ(*std::min_element(dark.begin(), dark.end()), 0.0F);
}

TEST(Sensor, ClipsAtTheFullWellBeforeTheGain)
{
    SensorModel model = idealSensor(8, 8);
    model.conversionGain = 0.1;
    model.fullWell = 20000.0; // 2000 counts at 0 dB
    EXPECT_EQ(uniformFrame(model, {1, 1, 1}, 1000.0)[0], 2000.0F);
    EXPECT_EQ(uniformFrame(model, {1, 1, 1}, 9000.0)[0], 2000.0F);
    EXPECT_NEAR(uniformFrame(model, {1, 1, 1}, 1000.0, -6.020599913)[0], 1000.0F, 1.0F);
}

TEST(Sensor, RoundsToWholeCounts)
{
    SensorModel model = noisySensor();
    for (const float value : uniformFrame(model, {0.3F, 0.3F, 0.3F}, 1000.0))
        ASSERT_EQ(value, std::floor(value));
    model.noiseEnabled = false;
    model.roundingEnabled = false;
    EXPECT_NEAR(uniformFrame(model, {0.3F, 0.3F, 0.3F}, 1000.0)[0], 200 + 0.3 * 3895, 0.001);
}

// Photon transfer (EMVA Standard 1288): the variance is the conversion gain times the signal, plus
// the read noise, plus 1/12 of rounding. A variance of 65536 samples has a standard error of 0.55
// percent, the bound is four of them; a mean has 1/256 of the noise.
TEST(Sensor, HasAShotNoiseVarianceInProportionToTheSignal)
{
    for (const double level : {0.02, 0.1, 0.2, 0.4, 0.8}) {
        const auto light = static_cast<float>(level);
        const Statistics measured =
            statisticsOf(uniformFrame(noisySensor(), {light, light, light}, 1000.0));
        const double signal = level * 3895.0;
        const double expected = 0.25 * signal + 0.25 * 20.0 * 0.25 * 20.0 + 1.0 / 12.0;
        EXPECT_NEAR(measured.mean, 200.0 + signal, 4.0 * std::sqrt(expected) / 256.0);
        EXPECT_NEAR(measured.variance, expected, 0.022 * expected) << "at " << level;
    }
}

TEST(Sensor, AmplifiesItsNoiseWithTheGain)
{
    const Statistics measured =
        statisticsOf(uniformFrame(noisySensor(), {0.1F, 0.1F, 0.1F}, 1000.0, 12.0411998));
    const double expected = 0.25 * 4 * (4 * 389.5) + 16 * 25.0 + 1.0 / 12.0;
    EXPECT_NEAR(measured.variance, expected, 0.022 * expected);
}

TEST(Sensor, HasItsReadNoiseInTheDark)
{
    const Statistics measured = statisticsOf(uniformFrame(noisySensor(), {0, 0, 0}, 1000.0));
    EXPECT_NEAR(measured.mean, 200.0, 4.0 * 5.0 / 256.0);
    EXPECT_NEAR(measured.variance, 25.0 + 1.0 / 12.0, 0.022 * 25.0);
}

TEST(Sensor, HasNoNoiseIfItIsSwitchedOff)
{
    SensorModel model = noisySensor();
    model.noiseEnabled = false;
    EXPECT_EQ(statisticsOf(uniformFrame(model, {0.4F, 0.4F, 0.4F}, 1000.0)).variance, 0.0);
}

TEST(Sensor, ChangesItsNoiseWithSeedAndFrame)
{
    SensorModel model = noisySensor();
    Sensor sensor(model);
    sensor.expose(uniformLight(256, 256, 0.4F, 0.4F, 0.4F));
    const std::vector<float> first = frameOf(sensor, 1000.0, 0.0, 7);
    EXPECT_EQ(frameOf(sensor, 1000.0, 0.0, 7), first);
    EXPECT_NE(frameOf(sensor, 1000.0, 0.0, 8), first);
    model.noiseSeed = 2;
    Sensor other(model);
    other.expose(uniformLight(256, 256, 0.4F, 0.4F, 0.4F));
    EXPECT_NE(frameOf(other, 1000.0, 0.0, 7), first);
}

template <typename Change>
void expectRefused(Change change)
{
    SensorModel model;
    change(model);
    EXPECT_THROW(Sensor{model}, std::invalid_argument);
}

TEST(Sensor, RefusesPropertiesThatNoSensorHas)
{
    expectRefused([](SensorModel& m) { m.width = 0; });
    expectRefused([](SensorModel& m) { m.width = 1921; });
    expectRefused([](SensorModel& m) { m.height = -2; });
    expectRefused([](SensorModel& m) { m.height = 1 << 30; });
    expectRefused([](SensorModel& m) { m.fullScaleExposure = 0.0; });
    expectRefused([](SensorModel& m) { m.crosstalk[4] = -0.1; });
    expectRefused([](SensorModel& m) { m.crosstalk[4] = notANumber; });
    expectRefused([](SensorModel& m) { m.nonLinearity[2] = 0.6; });
    expectRefused([](SensorModel& m) { m.vignetting = 1.1; });
    expectRefused([](SensorModel& m) { m.fullWell = infinity; });
    expectRefused([](SensorModel& m) { m.conversionGain = 0.0; });
    expectRefused([](SensorModel& m) { m.readNoise = -1.0; });
    expectRefused([](SensorModel& m) { m.pedestal = 64.5; });
    expectRefused([](SensorModel& m) { m.pedestal = 4095.0; });
}

} // namespace
} // namespace Cameras::Emulation
