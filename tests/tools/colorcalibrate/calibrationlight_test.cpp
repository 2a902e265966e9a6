// SPDX-License-Identifier: Apache-2.0
// Calibrating in too much light and too little, and charts that are not wholly in the picture.
#include "calibrationsequence.h"
#include "command.h"
#include "emulatedhost.h"
#include "exposuresearch.h"

#include <gtest/gtest.h>

using namespace ColorCalibrate;
using Cameras::Emulation::Scene;
using Cameras::Emulation::SceneSettings;

namespace {

/// One run of the sequence on the second camera, which has this exposure time before.
class LitCamera
{
public:
    LitCamera(double exposure, const SceneSettings& scene)
        : m_host(supportedModels().at(1), optionsOf(scene))
    {
        EXPECT_TRUE(m_host.camera().open());
        m_host.setExposure(exposure);
        m_before = m_host.settings();
    }

    /// \return  the message of the error, empty if there was none
    std::string run(bool adjustExposure)
    {
        CalibrationSequence sequence(
            m_host.model(), [](const QString&) {}, [] { return false; });
        SequenceOptions options;
        options.adjustExposure = adjustExposure;
        try {
            sequence.run(m_host.pointer(), options);
        } catch (const CommandError& error) {
            EXPECT_EQ(m_host.settings().toStdString(), m_before.toStdString());
            return error.what();
        }
        return {};
    }

    double exposure() { return m_host.model().GetExposureTime(); }
    double gain() { return m_host.model().GetGain(); }

private:
    static Cameras::Emulation::EmulationOptions optionsOf(const SceneSettings& scene)
    {
        Cameras::Emulation::EmulationOptions options;
        options.scene = Scene(scene);
        return options;
    }

    EmulatedHost m_host;
    QString m_before;
};

bool contains(const std::string& message, const char* words)
{
    return message.find(words) != std::string::npos;
}

TEST(CalibrationLight, AnyStartExposureComesToTheSameEnd)
{
    for (const double start : {100.0, 60000.0, 160000.0, 250000.0, 600000.0}) {
        LitCamera camera(start, SceneSettings());
        EXPECT_EQ(camera.run(true), "") << start;
        // The gray patch stands at its goal at some 20 ms; automatic brightness stops 10 percent
        // beside it.
        EXPECT_NEAR(camera.exposure(), 20000.0, 3000.0) << start;
    }
}

TEST(CalibrationLight, KeptExposureAndGainStay)
{
    LitCamera camera(17321.0, SceneSettings());
    EXPECT_EQ(camera.run(false), "");
    EXPECT_EQ(camera.exposure(), 17321.0);
    EXPECT_EQ(camera.gain(), 0.0);
}

TEST(CalibrationLight, OverExposureIsCalledSo)
{
    const std::string message = LitCamera(300000.0, SceneSettings()).run(false);
    EXPECT_TRUE(contains(message, "over-exposed")) << message;
    EXPECT_TRUE(contains(message, "shorten the exposure time")) << message;
}

TEST(CalibrationLight, DarknessIsCalledSo)
{
    SceneSettings dark;
    dark.lightLevel = 0.0;
    for (const bool adjustExposure : {false, true}) {
        const std::string message = LitCamera(20000.0, dark).run(adjustExposure);
        EXPECT_TRUE(contains(message, "too dark")) << message;
        EXPECT_TRUE(contains(message, "give more light")) << message;
    }
}

TEST(CalibrationLight, AChartThatIsHalfInThePictureIsNotCalibratedOn)
{
    SceneSettings half;
    half.chartCenterX = 0.98;
    const std::string message = LitCamera(20000.0, half).run(false);
    EXPECT_TRUE(contains(message, "the whole of it must be in the image") ||
                contains(message, "is the grid on the chart"))
        << message;
}

TEST(CalibrationLight, IsJudgedByTheBrightestParts)
{
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(qRgb(30, 40, 20));
    EXPECT_EQ(lightOf(image), Light::TooDark);
    for (int y = 0; y < 5; ++y)
        image.setPixel(0, y, qRgb(10, 60, 10));
    EXPECT_EQ(lightOf(image), Light::Usable) << "5 of 100 pixels are lit";
    image.fill(qRgb(251, 100, 100));
    EXPECT_EQ(lightOf(image), Light::TooBright);
    EXPECT_EQ(lightOf(QImage()), Light::Usable) << "nothing to be said";
    EXPECT_EQ(lightOf(100.0), Light::Usable);
    EXPECT_EQ(lightOf(170.0), Light::TooBright) << "255 of a goal of 150";
    EXPECT_EQ(lightOf(5.0), Light::TooDark);
    EXPECT_TRUE(advice(Light::Usable).isEmpty());
}

} // namespace
