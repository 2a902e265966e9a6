// SPDX-License-Identifier: Apache-2.0
// Cameras that are set to images without color, or to what their sensor has seen.
#include "calibrationsequence.h"
#include "emulatedhost.h"

#include <gtest/gtest.h>

using namespace ColorCalibrate;

namespace {

class PixelFormat : public testing::TestWithParam<int>
{
protected:
    PixelFormat()
        : m_host(supportedModels().at(GetParam()))
    {
        EXPECT_TRUE(m_host.camera().open());
        m_host.setExposure(20000.0);
    }

    /// \return  the message of the error, empty if there was none
    std::string calibrateIn(const QString& format)
    {
        m_host.camera()
            .parameterCollection()
            ->enumerationParameter("PixelFormat")
            ->setValue(format);
        const QString before = m_host.settings();
        m_steps.clear();
        CalibrationSequence sequence(
            m_host.model(), [this](const QString& step) { m_steps.append(step); },
            [] { return false; });
        SequenceOptions options;
        options.adjustExposure = false;
        options.grid = m_host.chartGrid();
        try {
            sequence.run(m_host.pointer(), options);
        } catch (const CommandError& error) {
            EXPECT_EQ(m_host.settings().toStdString(), before.toStdString());
            return error.what();
        }
        return {};
    }

    EmulatedHost m_host;
    QStringList m_steps;
};

class CamerasThatProcessNoRawImages : public PixelFormat
{};

class CamerasThatProcessRawImages : public PixelFormat
{};

} // namespace

TEST_P(PixelFormat, GrayIsRefusedBeforeAnyImage)
{
    EXPECT_EQ(calibrateIn("Mono8"),
              "the camera's images have no color: PixelFormat is Mono8; set it to a color format "
              "such as RGB8");
    EXPECT_FALSE(m_steps.contains("Taking the first image"));
}

TEST_P(CamerasThatProcessNoRawImages, AreNamedTheFormatInWhichNothingShows)
{
    const std::string message = calibrateIn("BayerRG8");
    EXPECT_NE(message.find("are off their targets"), std::string::npos) << message;
    EXPECT_NE(message.find("PixelFormat is BayerRG8"), std::string::npos) << message;
    EXPECT_NE(message.find("such as RGB8"), std::string::npos) << message;
}

TEST_P(CamerasThatProcessRawImages, AreCalibratedInThem)
{
    EXPECT_EQ(calibrateIn("BayerRG8"), "");
}

INSTANTIATE_TEST_SUITE_P(Cameras, PixelFormat, testing::Values(0, 1, 2));
INSTANTIATE_TEST_SUITE_P(Cameras, CamerasThatProcessNoRawImages, testing::Values(1, 2));
INSTANTIATE_TEST_SUITE_P(Cameras, CamerasThatProcessRawImages, testing::Values(0));
