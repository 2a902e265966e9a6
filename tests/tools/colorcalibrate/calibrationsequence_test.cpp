// SPDX-License-Identifier: Apache-2.0
// Tests of the sequence with a camera that does what the test wants.
#include "calibrationsequence.h"
#include "command.h"
#include "fakecameraservices.h"
#include "logging.h"
#include "logrecorder.h"
#include "measuredcamera.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

using namespace ColorCalibrate;

namespace {

/// A camera that looks at the chart, whatever its settings are.
class CalibrationSequenceTest : public testing::Test
{
protected:
    CalibrationSequenceTest()
    {
        m_camera->open = false;
        m_camera->features().remove(QStringLiteral("Width")); // no grid to be kept in settings
        showChart(*m_camera, castColors());
        m_model.SetCameraStatusService(&m_status);
        m_model.SetCameraControlService(&m_control);
        m_options.grid = ColorCalibration::TrapezoidPoints({12, 8}, {108, 8}, {12, 72}, {108, 72});
    }

    /// \return  what it failed with
    std::string run()
    {
        CalibrationSequence sequence(
            m_model, [this](const QString& step) { m_steps.append(step); }, [] { return false; },
            [this](const QString& warning) { m_warnings.append(warning); });
        try {
            sequence.run(m_camera, m_options);
        } catch (const CommandError& error) {
            return error.what();
        }
        return {};
    }

    FakeStatusService m_status;
    FakeControlService m_control;
    QSharedPointer<FakeCamera> m_camera = newCamera();
    ColorCalibration::ColorCorrectionModel m_model;
    SequenceOptions m_options;
    QStringList m_steps;
    QStringList m_warnings;
};

TEST_F(CalibrationSequenceTest, AnImageThatFailsIsToldWithTheCamerasReason)
{
    m_camera->features().beforeCall = [](const QString& call) {
        if (call == QLatin1String("grab"))
            throw std::runtime_error("the trigger line is dead");
    };
    EXPECT_EQ(run(),
              "the camera delivered no image at the step \"Taking the first image\"; check its "
              "cable, trigger and exposure time, and try again (the trigger line is dead)");
    EXPECT_FALSE(m_camera->open);
}

// What the sink before the sequence has told, as that of the program does.
TEST_F(CalibrationSequenceTest, WhatACameraSaysOfItselfIsToldOnceAndFailsNothing)
{
    const LogRecorder log;
    m_options.adjustExposure = false;
    m_camera->features().beforeCall = [](const QString& call) {
        if (call.startsWith(QLatin1String("load ")))
            createLogEntry(Core::Logging::Warning,
                           Core::Logging::getCatId(QStringLiteral("Cameras")),
                           QStringLiteral("a setting stays changed"));
    };
    run();
    EXPECT_TRUE(m_steps.contains(QStringLiteral("Restoring the settings before calibration")));
    EXPECT_EQ(m_warnings, QStringList());
    EXPECT_FALSE(log.entries().isEmpty());
    for (const LogEntry& entry : log.entries())
        EXPECT_EQ(entry.text, QStringLiteral("a setting stays changed"));
}

TEST_F(CalibrationSequenceTest, AConnectionLostAtTheWriteBackEndsWithWhatHasFailedBefore)
{
    m_camera->features().change(QStringLiteral("LUTSelector"),
                                [](FakeFeature& one) { one.refuses = true; });
    int writtenBack = 0;
    m_camera->features().beforeCall = [&](const QString& call) {
        if (!call.startsWith(QLatin1String("load ")))
            return;
        ++writtenBack;
        m_camera->loseConnection();
        throw std::runtime_error("the line is dead");
    };
    EXPECT_EQ(run(), "unable to set neutral settings (LUTSelector refuses to be written)");
    EXPECT_EQ(writtenBack, 1);
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_FALSE(m_model.StopGrabbing()) << "the model is closed";
}

TEST_F(CalibrationSequenceTest, ExposureTimeAndGainAreWrittenBackBeforeTheyAreAdjusted)
{
    run();
    const QStringList writes = m_camera->features().writes();
    const int automatic =
        writes.indexOf(QStringLiteral("try GainAuto = Off"),
                       writes.indexOf(QStringLiteral("try PixelFormat = Mono12")));
    // Then the worker begins, at the lowest gain.
    EXPECT_EQ(writes.mid(automatic + 1, 3),
              QStringList({QStringLiteral("ExposureTime = 1000"), QStringLiteral("Gain = 3"),
                           QStringLiteral("Gain = 0")}))
        << writes.join(QLatin1String("; ")).toStdString();
}

TEST_F(CalibrationSequenceTest, WhatCannotBeWrittenBackEndsItWhereItIsToBeAdjusted)
{
    const std::pair<const char*, const char*> features[] = {
        {"ExposureTime", "no initial parameters (min, max, value) for exposure time available"},
        {"Gain", "no initial parameters (min, max, value) for gain value available"}};
    for (const auto& [feature, words] : features) {
        m_camera->features().change(QLatin1String(feature),
                                    [](FakeFeature& one) { one.writable = false; });
        m_options.adjustExposure = true;
        EXPECT_EQ(run(), words);
        m_options.adjustExposure = false;
        m_steps.clear();
        run();
        EXPECT_TRUE(m_steps.contains(QStringLiteral("Calibrating")))
            << feature << " is kept, so nobody needs to write it";
        m_model.Close();
        m_camera->features().change(QLatin1String(feature),
                                    [](FakeFeature& one) { one.writable = true; });
    }
}

TEST_F(CalibrationSequenceTest, AutomaticBrightnessBeginsAgainUntilARunMovesNothing)
{
    // As dark at the limits, to which the first run goes. The second stays there.
    showChart(*m_camera, 0.4 * castColors());
    EXPECT_NE(run().find("could not be brought nearer by exposure time and gain"),
              std::string::npos);
    EXPECT_EQ(m_steps.count(QStringLiteral("Adjusting brightness")), 2);
}

TEST_F(CalibrationSequenceTest, BrightnessHasTwoMinutes)
{
    EXPECT_EQ(SequenceOptions().longestBrightnessRun, std::chrono::seconds(120));
}

TEST_F(CalibrationSequenceTest, ABrightnessRunThatComesToNoEndIsEnded)
{
    // The gray patch stays far too dark, and no limit is ever reached.
    for (const char* limit : {"AutoExposureTimeUpperLimit", "AutoGainUpperLimit"})
        m_camera->features().change(QLatin1String(limit),
                                    [](FakeFeature& feature) { feature.value = 1e300; });
    m_camera->features().change(QStringLiteral("ExposureTime"),
                                [](FakeFeature& feature) { feature.maximum = 1e300; });
    m_options.longestBrightnessRun = std::chrono::milliseconds(50);
    EXPECT_EQ(run(), "the automatic brightness could not be started, or came to no end; does the "
                     "camera's image follow its exposure time and gain?");
    EXPECT_EQ(m_steps.last().toStdString(), "Adjusting brightness");
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_FALSE(m_camera->open);
    const QStringList writes = m_camera->features().writes();
    EXPECT_TRUE(writes.last().startsWith(QLatin1String("load @CameraDevice")))
        << "nothing is written behind what was restored: " << writes.last().toStdString();
}

} // namespace
