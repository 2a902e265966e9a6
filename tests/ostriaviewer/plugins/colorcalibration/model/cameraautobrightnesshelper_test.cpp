// SPDX-License-Identifier: Apache-2.0
// Tests of the brightness worker on a simulated gray patch.
#include "cameraautobrightnesshelper.h"

#include "baseexception.h"
#include "brightnessrun.h"
#include "fullcamera.h"
#include "graypatch.h"
#include "logrecorder.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSemaphore>
#include <QSignalSpy>

#include <gtest/gtest.h>

using ColorCalibration::BrightnessRun;
using ColorCalibration::CameraAutoBrightnessHelper;

namespace {

class CameraAutoBrightnessHelperTest : public testing::Test
{
protected:
    /// The whole run on this thread. \return  how often it said that it has finished
    int run(const QSharedPointer<FakeCamera>& camera)
    {
        CameraAutoBrightnessHelper helper(&m_patch, camera->parameterCollection());
        const QSignalSpy finished(&helper, &CameraAutoBrightnessHelper::AutoBrightnessFinished);
        helper.doWork();
        return finished.count();
    }

    QStringList logTexts() const
    {
        QStringList texts;
        for (const LogEntry& entry : m_log.entries()) {
            EXPECT_EQ(entry.category, "ostria.viewer.plugins.colorCalibration.cameraJustify");
            texts << entry.text;
        }
        return texts;
    }

    LogRecorder m_log;
    GrayPatch m_patch;
};

TEST_F(CameraAutoBrightnessHelperTest, BeginsAtTheLowestGainAndDiscardsTheFirstImage)
{
    m_patch.fixedLevel = 150.0;
    EXPECT_EQ(run(newCamera()), 1);
    EXPECT_EQ(m_patch.calls, (QStringList{"gain 0", "measure 1", "measure 1", "exposure 1000"}));
    EXPECT_EQ(logTexts(), QStringList{"Error: 0, OldValue: 1000, NewValue: 1000"});
    EXPECT_EQ(m_log.entries().first().level, 0);
}

TEST_F(CameraAutoBrightnessHelperTest, EndsWithinTheToleranceAfterTheWritesOfThatPass)
{
    // 150 / 137 - 1 is 9.49 percent; 0.8 of it goes onto the exposure time.
    m_patch.fixedLevel = 137.0;
    run(newCamera());
    EXPECT_EQ(m_patch.passes, 2);
    EXPECT_NEAR(m_patch.exposure, 1000.0 * (1.0 + 0.8 * (150.0 / 137.0 - 1.0)), 1e-9);

    // 150 / 166 - 1 is -9.64 percent.
    m_patch.restartWith(166.0);
    run(newCamera());
    EXPECT_EQ(m_patch.passes, 2);
    EXPECT_LT(m_patch.exposure, 1000.0);
}

TEST_F(CameraAutoBrightnessHelperTest, GoesOnJustOutsideOfTheTolerance)
{
    for (const double level : {136.0, 167.0}) {
        m_patch.restartWith(level);
        m_patch.onMeasure = [this] {
            if (m_patch.passes == 3)
                m_patch.fixedLevel = 150.0;
        };
        run(newCamera());
        EXPECT_EQ(m_patch.passes, 3) << level;
    }
}

TEST_F(CameraAutoBrightnessHelperTest, FindsTheExposureTimeWhereTheGoalIsWithinReach)
{
    m_patch.exposure = 500.0;
    run(newCamera());
    const double level = m_patch.exposure * m_patch.levelPerMicrosecond;
    EXPECT_NEAR(level, 150.0, 15.0);
    EXPECT_EQ(m_patch.gain, 0.0) << "gain comes in only at a limit of the exposure time";
}

TEST_F(CameraAutoBrightnessHelperTest, LowersTheGainWhenSomebodyRaisesIt)
{
    m_patch.fixedLevel = 150.0;
    m_patch.onMeasure = [this] {
        m_patch.gain = 2.0;
    };
    run(newCamera());
    EXPECT_EQ(m_patch.calls,
              (QStringList{"gain 0", "measure 1", "measure 1", "gain 0", "exposure 1000"}));
}

TEST_F(CameraAutoBrightnessHelperTest, ABlackImageLeapsToTheLimitAndTheGainFollows)
{
    m_patch.fixedLevel = 0.0;
    EXPECT_EQ(run(newCamera()), 1);
    // ln(150) * 10 * 0.8 is 40.085, above the highest gain of 24.
    EXPECT_EQ(m_patch.calls, (QStringList{"gain 0", "measure 1", "measure 1", "exposure 100000",
                                          "measure 1", "gain 24"}));
    EXPECT_EQ(logTexts(),
              (QStringList{"Error: 119.2, OldValue: 1000, NewValue: 120200",
                           "GainError: 150, OldValue: 0, NewValue: 40.0851 Added: 40.0851"}));
}

TEST_F(CameraAutoBrightnessHelperTest, TheGainMovesByItsLogarithm)
{
    m_patch.fixedLevel = 100.0;
    m_patch.exposure = 99000.0;
    m_patch.onMeasure = [this] {
        if (m_patch.passes == 4)
            m_patch.fixedLevel = 150.0;
    };
    run(newCamera());
    // ln(1.5) * 8
    const QStringList gains = m_patch.calls.filter("gain");
    EXPECT_EQ(gains, (QStringList{"gain 0", "gain 3.24372", "gain 3.24372"}));
    EXPECT_EQ(m_patch.exposure, 100000.0);
}

TEST_F(CameraAutoBrightnessHelperTest, TooMuchLightEndsAtTheLowestGain)
{
    m_patch.fixedLevel = 255.0;
    m_patch.exposure = 12.0;
    run(newCamera());
    EXPECT_EQ(m_patch.exposure, 10.0);
    EXPECT_EQ(m_patch.calls.last(), "gain 0");
}

TEST_F(CameraAutoBrightnessHelperTest, OldCamerasHaveTenStepsADecibel)
{
    m_patch.exposure = 99999.0;
    m_patch.gainMinimum = 1.0;
    m_patch.gain = 1.0;
    const auto camera = oldCamera();
    camera->parameters().addFloat("AutoExposureTimeAbsUpperLimit", 90000.0);
    m_patch.fixedLevel = 120.0;
    m_patch.onMeasure = [this] {
        if (m_patch.passes == 4)
            m_patch.fixedLevel = 150.0;
    };
    run(camera);
    // 1 + ln(150 / 120) * 10 * 0.8 * 10 is 18.85, inside of the raw limits 1 to 24.
    EXPECT_EQ(m_patch.exposure, 90000.0);
    EXPECT_NEAR(m_patch.gain, 1.0 + std::log(1.25) * 80.0, 1e-9);
}

TEST_F(CameraAutoBrightnessHelperTest, OldCamerasGainIsLimitedByTheRawLimits)
{
    m_patch.fixedLevel = 0.0;
    run(oldCamera());
    EXPECT_EQ(m_patch.exposure, 100000.0);
    EXPECT_EQ(m_patch.gain, 24.0);
}

TEST_F(CameraAutoBrightnessHelperTest, AMissingLimitEndsTheRunWithTwoEntries)
{
    struct Case
    {
        QSharedPointer<FakeCamera> camera;
        const char* feature;
    };
    for (const Case& one :
         {Case{newCamera(), "AutoGainLowerLimit"}, Case{newCamera(), "AutoExposureTimeUpperLimit"},
          Case{oldCamera(), "AutoGainRawUpperLimit"},
          Case{oldCamera(), "AutoExposureTimeAbsLowerLimit"}}) {
        const LogRecorder log;
        one.camera->features().remove(one.feature);
        EXPECT_EQ(run(one.camera), 1);
        EXPECT_TRUE(m_patch.calls.isEmpty()) << "nothing is written without limits";
        ASSERT_EQ(log.entries().size(), 2) << one.feature;
        EXPECT_EQ(log.entries().at(0).level, 2);
        EXPECT_EQ(log.entries().at(0).text, "Autoadjust failed.");
        EXPECT_EQ(log.entries().at(1).level, 2);
        EXPECT_EQ(log.entries().at(1).text,
                  QStringLiteral("CameraAutoBrightnessHelper::doWork: %1 does not exist")
                      .arg(QLatin1String(one.feature)));
    }
}

TEST_F(CameraAutoBrightnessHelperTest, ARefusedWriteEndsTheRunWithTwoEntries)
{
    struct Case
    {
        const char* refused;
        std::function<void()> arrange;
        QStringList calls;
    };
    const auto never = [](double) {
        return false;
    };
    // The level is that of a black image: 1000 * (1 + 149 * 0.8) is beyond the limit of 100000, and
    // ln(150) * 10 * 0.8 is beyond that of the gain.
    const Case cases[] = {
        {"exposure time 100000",
         [&] { m_patch.takesExposure = never; },
         {"gain 0", "measure 1", "measure 1", "exposure 100000"}},
        {"gain 24",
         [&] {
             m_patch.takesGain = [](double value) {
                 return value < 24.0;
             };
         },
         {"gain 0", "measure 1", "measure 1", "exposure 100000", "measure 1", "gain 24"}},
    };
    for (const Case& one : cases) {
        const LogRecorder log;
        m_patch.restartWith(0.0);
        one.arrange();
        EXPECT_EQ(run(newCamera()), 1);
        EXPECT_EQ(m_patch.calls, one.calls) << one.refused << ": nothing is written behind it";
        QStringList warnings;
        for (const LogEntry& entry : log.entries())
            if (entry.level == 2)
                warnings << entry.text;
        EXPECT_EQ(warnings,
                  (QStringList{"Autoadjust failed.",
                               QStringLiteral("CameraAutoBrightnessHelper::doWork:The camera does "
                                              "not take the %1.")
                                   .arg(QLatin1String(one.refused))}));
    }
}

// The limits of raw steps are those of the camera; what is written are hundredths of them.
TEST_F(CameraAutoBrightnessHelperTest, AGainBetweenTheLimitsThatIsRefusedEndsTheRun)
{
    const auto camera = oldCamera();
    camera->parameters().addInteger("AutoGainRawUpperLimit", 240);
    m_patch.exposure = 99000.0;
    m_patch.fixedLevel = 75.0;
    m_patch.takesGain = [](double value) {
        return value <= 2.4;
    };
    EXPECT_EQ(run(camera), 1);
    // 75 of 150: ln(2) * 10 * 0.8 * 10 is 55.4518.
    EXPECT_EQ(m_patch.calls.last(), "gain 55.4518");
    EXPECT_EQ(m_patch.calls.filter("gain 55").size(), 1);
    EXPECT_EQ(logTexts().last(),
              "CameraAutoBrightnessHelper::doWork:The camera does not take the gain 55.4518.");
}

TEST_F(CameraAutoBrightnessHelperTest, ExposureTimeGoesOnWhereTheLowestGainIsRefused)
{
    for (const double gain : {0.0, 6.0}) {
        const LogRecorder log;
        m_patch.restartWith(-1.0);
        m_patch.takesGain = [](double) {
            return false;
        };
        m_patch.gain = gain;
        m_patch.exposure = 500.0;
        EXPECT_EQ(run(newCamera()), 1);
        EXPECT_EQ(m_patch.gain, gain);
        // 6 dB are a factor of 1.99526.
        const double factor = gain == 0.0 ? 1.0 : 1.99526;
        EXPECT_NEAR(m_patch.exposure * m_patch.levelPerMicrosecond * factor, 150.0, 15.0);
        for (const LogEntry& entry : log.entries())
            EXPECT_TRUE(entry.text.startsWith("Error: ")) << entry.text.toStdString();
    }
}

// At the start, and again in each pass of the exposure time.
TEST_F(CameraAutoBrightnessHelperTest, ARefusedLowestGainIsAskedForAgainInEachPass)
{
    m_patch.restartWith(150.0);
    int refusals = 1;
    m_patch.takesGain = [&](double) {
        return refusals-- <= 0;
    };
    EXPECT_EQ(run(newCamera()), 1);
    EXPECT_EQ(m_patch.calls,
              (QStringList{"gain 0", "measure 1", "measure 1", "gain 0", "exposure 1000"}));
    EXPECT_EQ(m_patch.gain, 0.0);
}

TEST_F(CameraAutoBrightnessHelperTest, AnExposureTimeThatIsNotToldEndsTheRun)
{
    m_patch.tellsExposure = false;
    EXPECT_EQ(run(newCamera()), 1);
    EXPECT_EQ(m_patch.calls, (QStringList{"gain 0", "measure 1", "measure 1"}));
    EXPECT_EQ(logTexts(), (QStringList{"Autoadjust failed.",
                                       "CameraAutoBrightnessHelper::doWork:The camera does not "
                                       "tell its exposure time."}));
}

TEST_F(CameraAutoBrightnessHelperTest, AListWithoutAGrayPatchEndsTheRun)
{
    for (const int count : {0, 19}) {
        const LogRecorder log;
        m_patch.colorCount = count;
        EXPECT_EQ(run(newCamera()), 1);
        ASSERT_EQ(log.entries().size(), 2);
        EXPECT_EQ(log.entries().at(0).text, "Autoadjust failed.");
        EXPECT_TRUE(log.entries().at(1).text.startsWith("CameraAutoBrightnessHelper::doWork:"));
    }
}

TEST_F(CameraAutoBrightnessHelperTest, ExceptionsOfAnyKindAreCaughtOnTheWorkersThread)
{
    m_patch.onMeasure = [] {
        throw 1;
    };
    const auto camera = newCamera();
    BrightnessRun brightness(&m_patch, camera->parameterCollection());
    QEventLoop loop;
    QObject::connect(brightness.worker(), &CameraAutoBrightnessHelper::AutoBrightnessFinished,
                     &loop, &QEventLoop::quit);
    brightness.start();
    loop.exec();
    EXPECT_EQ(logTexts(),
              (QStringList{"Autoadjust failed.",
                           "CameraAutoBrightnessHelper::doWork: Unspecified exception occurred."}));
}

TEST_F(CameraAutoBrightnessHelperTest, AStopBeforeTheBeginHolds)
{
    const auto camera = newCamera();
    CameraAutoBrightnessHelper helper(&m_patch, camera->parameterCollection());
    const QSignalSpy finished(&helper, &CameraAutoBrightnessHelper::AutoBrightnessFinished);
    helper.stop();
    helper.doWork();
    EXPECT_EQ(finished.count(), 1);
    EXPECT_TRUE(m_patch.calls.isEmpty());
}

TEST_F(CameraAutoBrightnessHelperTest, AStopEndsTheRunBeforeItsNextCall)
{
    const auto camera = newCamera();
    m_patch.fixedLevel = 100.0;
    CameraAutoBrightnessHelper helper(&m_patch, camera->parameterCollection());
    const QSignalSpy finished(&helper, &CameraAutoBrightnessHelper::AutoBrightnessFinished);
    m_patch.onMeasure = [&] {
        if (m_patch.passes == 3)
            helper.stop();
    };
    helper.doWork();
    EXPECT_EQ(m_patch.passes, 3);
    EXPECT_EQ(m_patch.calls.last(), "measure 1") << "nothing is written any more";
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(CameraAutoBrightnessHelperTest, TheEndOfARunStopsItAndWaitsForItsThread)
{
    // A run that would go on for minutes.
    const auto camera = newCamera();
    camera->features().change("AutoExposureTimeUpperLimit",
                              [](FakeFeature& limit) { limit.value = 1e300; });
    m_patch.fixedLevel = 100.0;
    QSemaphore measuring;
    m_patch.onMeasure = [&] {
        measuring.release();
    };
    {
        BrightnessRun brightness(&m_patch, camera->parameterCollection());
        brightness.start();
        measuring.acquire();
    }
    const int passes = m_patch.passes;
    EXPECT_GE(passes, 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_patch.passes, passes);
}

TEST_F(CameraAutoBrightnessHelperTest, ARunThatNeverStartedEnds)
{
    const auto camera = newCamera();
    const BrightnessRun brightness(&m_patch, camera->parameterCollection());
    EXPECT_TRUE(m_patch.calls.isEmpty());
}

} // namespace
