// SPDX-License-Identifier: Apache-2.0
// Calibrating in too much light and too little, and charts that are not wholly in the picture.
#include "calibrationsequence.h"
#include "charttargets.h"
#include "command.h"
#include "emulatedhost.h"
#include "exposuresearch.h"
#include "patchcolorconversion.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ColorCalibrate;
using Cameras::Emulation::Scene;
using Cameras::Emulation::SceneSettings;

namespace {

/// A fifth of the usual light is enough for the gray patch's goal then.
constexpr double shortenedLimit = 100000.0;

/// One run of the sequence on a camera that has this exposure time before.
class LitCamera
{
public:
    LitCamera(int camera, double exposure, const SceneSettings& scene = SceneSettings())
        : LitCamera(camera, exposure, Scene(scene))
    {}

    LitCamera(int camera, double exposure, const Scene& scene)
        : m_host(supportedModels().at(camera), optionsOf(scene))
    {
        EXPECT_TRUE(m_host.camera().open());
        m_host.setExposure(exposure);
    }

    void limitAutomaticExposure(double microseconds)
    {
        m_host.camera()
            .parameterCollection()
            ->floatParameter(
                QStringLiteral("AutoExposureTimeAbsUpperLimit|AutoExposureTimeUpperLimit"))
            ->setValue(microseconds);
    }

    /// \return  the message of the error, empty if there was none
    std::string run(bool adjustExposure)
    {
        const QString before = m_host.settings();
        CalibrationSequence sequence(
            m_host.model(), [](const QString&) {}, [] { return false; });
        SequenceOptions options;
        options.adjustExposure = adjustExposure;
        try {
            sequence.run(m_host.pointer(), options);
        } catch (const CommandError& error) {
            EXPECT_EQ(m_host.settings().toStdString(), before.toStdString());
            return error.what();
        }
        return {};
    }

    double exposure() { return m_host.model().GetExposureTime(); }
    double gain() { return m_host.model().GetGain(); }
    bool hasRawGain() const { return m_host.isOldGeneration(); }

private:
    static Cameras::Emulation::EmulationOptions optionsOf(const Scene& scene)
    {
        Cameras::Emulation::EmulationOptions options;
        options.scene = scene;
        return options;
    }

    EmulatedHost m_host;
};

bool contains(const std::string& message, const char* words)
{
    return message.find(words) != std::string::npos;
}

SceneSettings inLight(double level)
{
    SceneSettings scene;
    scene.lightLevel = level;
    return scene;
}

/// The chart as small as it may be, a little over a fifth of the image wide, on black.
Scene smallChartOnBlack()
{
    constexpr int width = 960;
    constexpr int height = 600;
    constexpr int cell = 34;
    QImage image(width, height, QImage::Format_RGB888);
    image.fill(Qt::black);
    const QVector<QColor> colors =
        ColorCalibration::toQColors(ColorCalibration::ChartTargets().TargetColors(), true);
    for (int patch = 0; patch < colors.size(); ++patch)
        for (int y = 2; y < cell - 2; ++y)
            for (int x = 2; x < cell - 2; ++x)
                image.setPixelColor(378 + patch % 6 * cell + x, 232 + patch / 6 * cell + y,
                                    colors.at(patch));
    return Scene(Scene::fromSrgb8(width, height, image.constBits(),
                                  static_cast<std::size_t>(image.bytesPerLine())));
}

class CalibrationLight : public testing::TestWithParam<int>
{};

TEST_P(CalibrationLight, AnyStartExposureComesToTheSameEnd)
{
    // Of a chart in glare something is left that looks like another one.
    for (const double start : {100.0, 160000.0, 300000.0, 500000.0, 1000000.0}) {
        LitCamera camera(GetParam(), start);
        EXPECT_EQ(camera.run(true), "") << start;
        // The gray patch stands at its goal at some 20 ms; automatic brightness stops 10 percent
        // beside it.
        EXPECT_NEAR(camera.exposure(), 20000.0, 3000.0) << start;
        EXPECT_EQ(camera.gain(), 0.0) << start;
    }
}

TEST_P(CalibrationLight, KeptExposureAndGainStay)
{
    LitCamera camera(GetParam(), 17321.0);
    EXPECT_EQ(camera.run(false), "");
    EXPECT_EQ(camera.exposure(), 17321.0);
    EXPECT_EQ(camera.gain(), 0.0);
}

TEST_P(CalibrationLight, AnExposureThatIsKeptTooShortIsCalledSo)
{
    // Half of what the chart wants.
    const std::string message = LitCamera(GetParam(), 10000.0).run(false);
    EXPECT_TRUE(contains(message, "are off their targets")) << message;
    EXPECT_TRUE(contains(message, "the gray patch stood at 5") ||
                contains(message, "the gray patch stood at 4"))
        << message;
    EXPECT_TRUE(contains(message, "automatic exposure sees to")) << message;
}

TEST_P(CalibrationLight, OverExposureIsCalledSo)
{
    const std::string message = LitCamera(GetParam(), 300000.0).run(false);
    EXPECT_TRUE(contains(message, "over-exposed")) << message;
    EXPECT_TRUE(contains(message, "shorten the exposure time")) << message;
}

TEST_P(CalibrationLight, MoreLightThanTheShortestExposureTakesIsCalledSo)
{
    // 20 us would do; automatic exposure begins at 100 us.
    const std::string message = LitCamera(GetParam(), 20000.0, inLight(1000.0)).run(true);
    EXPECT_TRUE(
        contains(message, "percent of its target brightness and could not be brought nearer"))
        << message;
    EXPECT_TRUE(contains(message, "the light neither too weak nor too strong")) << message;
}

TEST_P(CalibrationLight, DarknessIsCalledSo)
{
    for (const bool adjustExposure : {false, true}) {
        const std::string message =
            LitCamera(GetParam(), 20000.0, inLight(0.0)).run(adjustExposure);
        EXPECT_TRUE(contains(message, "too dark")) << message;
        EXPECT_TRUE(contains(message, "give more light")) << message;
    }
}

TEST_P(CalibrationLight, DimLightIsMadeUpForByExposureTime)
{
    LitCamera camera(GetParam(), 20000.0, inLight(0.15));
    EXPECT_EQ(camera.run(true), "");
    EXPECT_NEAR(camera.exposure(), 20000.0 / 0.15, 20000.0);
    EXPECT_EQ(camera.gain(), 0.0);
    LitCamera kept(GetParam(), 130000.0, inLight(0.15));
    EXPECT_EQ(kept.run(false), "");
    EXPECT_EQ(kept.exposure(), 130000.0);
}

TEST_P(CalibrationLight, BehindTheLimitOfExposureDimLightIsMadeUpForByGainOrTheGainIsBlamed)
{
    LitCamera camera(GetParam(), 20000.0, inLight(0.1));
    camera.limitAutomaticExposure(shortenedLimit);
    const std::string message = camera.run(true);
    if (camera.hasRawGain()) {
        EXPECT_TRUE(contains(message, "percent of its target brightness")) << message;
        EXPECT_TRUE(contains(message, "(GainRaw: ")) << message;
        EXPECT_TRUE(contains(message, " is above the maximum 240. The camera does not take the "
                                      "gain "))
            << message;
        return;
    }
    EXPECT_EQ(message, "");
    EXPECT_EQ(camera.exposure(), shortenedLimit);
    // Half of the light that the goal needs is 6 dB; 10 percent beside it are 1 dB.
    EXPECT_NEAR(camera.gain(), 6.0, 1.0);
}

// A thirtieth of a second and thereabouts. A run from above it ends there, still too bright.
TEST_P(CalibrationLight, FromAboveTheLimitOfExposureTheGoalBelowItIsReached)
{
    for (const double limit : {26000.0, 30000.0, 33300.0}) {
        LitCamera camera(GetParam(), 60000.0);
        camera.limitAutomaticExposure(limit);
        EXPECT_EQ(camera.run(true), "") << limit;
        EXPECT_NEAR(camera.exposure(), 20000.0, 3000.0) << limit;
        EXPECT_EQ(camera.gain(), 0.0) << limit;
    }
}

// A run from near the goal ends at the limit, too dark, before the gain has its turn.
TEST_P(CalibrationLight, WhatTheLimitOfExposureTakesGainGivesBackFromEveryStart)
{
    for (const double limit : {5000.0, 15000.0})
        for (const double start : {5000.0, 20000.0}) {
            SCOPED_TRACE(testing::Message() << limit << " from " << start);
            LitCamera camera(GetParam(), start);
            camera.limitAutomaticExposure(limit);
            const std::string message = camera.run(true);
            if (camera.hasRawGain()) {
                EXPECT_TRUE(contains(message, "(GainRaw: ")) << message;
                continue;
            }
            EXPECT_EQ(message, "");
            EXPECT_EQ(camera.exposure(), limit);
            // 20 ms without gain are the goal; 10 percent beside it are 1 dB.
            EXPECT_NEAR(camera.gain(), 20.0 * std::log10(20000.0 / limit), 1.0);
        }
}

// It lights less of the image than a usual one does in the dark.
TEST_P(CalibrationLight, ASmallChartOnBlackIsNotOverExposed)
{
    for (const double start : {2000.0, 20000.0}) {
        LitCamera camera(GetParam(), start, smallChartOnBlack());
        EXPECT_EQ(camera.run(true), "") << start;
        EXPECT_NEAR(camera.exposure(), 20000.0, 3000.0) << start;
    }
    LitCamera kept(GetParam(), 20000.0, smallChartOnBlack());
    EXPECT_EQ(kept.run(false), "");
}

TEST_P(CalibrationLight, AChartThatIsHalfInThePictureIsNotCalibratedOn)
{
    SceneSettings half;
    half.chartCenterX = 0.98;
    for (const bool adjustExposure : {false, true}) {
        const std::string message = LitCamera(GetParam(), 20000.0, half).run(adjustExposure);
        EXPECT_TRUE(contains(message, "the whole of it must be in the image") ||
                    contains(message, "is the grid on the chart"))
            << message;
    }
}

INSTANTIATE_TEST_SUITE_P(Cameras, CalibrationLight, testing::Values(0, 1, 2));

TEST(Light, IsJudgedByTheBrightestParts)
{
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(qRgb(30, 40, 20));
    EXPECT_EQ(lightOf(image), Light::TooDark);
    for (int y = 0; y < 5; ++y)
        image.setPixel(0, y, qRgb(10, 60, 10));
    EXPECT_EQ(lightOf(image), Light::Usable) << "5 of 100 pixels are lit";
    image = QImage(40, 40, QImage::Format_RGB32);
    image.fill(qRgb(1, 2, 1));
    for (int x = 0; x < 7; ++x)
        image.setPixel(x, 0, qRgb(0, 150, 0));
    EXPECT_EQ(lightOf(image), Light::TooDark) << "7 of 1600 pixels are bright";
    image.setPixel(7, 0, qRgb(0, 150, 0));
    EXPECT_EQ(lightOf(image), Light::Usable) << "8 of 1600 pixels are bright";
    image.fill(qRgb(251, 100, 100));
    EXPECT_EQ(lightOf(image), Light::TooBright);
    EXPECT_EQ(lightOf(QImage()), Light::Usable) << "nothing to be said";
    EXPECT_EQ(lightOf(100.0), Light::Usable);
    EXPECT_EQ(lightOf(170.0), Light::TooBright) << "255 of a goal of 150";
    EXPECT_EQ(lightOf(5.0), Light::TooDark);
    EXPECT_TRUE(advice(Light::Usable).isEmpty());
}

} // namespace
