// SPDX-License-Identifier: Apache-2.0
// Automatic brightness on the emulated cameras, from every start exposure.
#include "emulatedhost.h"

#include "logging.h"
#include "logrecorder.h"

#include <QEventLoop>

#include <gtest/gtest.h>

#include <atomic>
#include <iomanip>
#include <iostream>

using Cameras::Emulation::Scene;
using Cameras::Emulation::SceneSettings;
using Core::Logging::ELogLevel;

namespace {

/// Counts the passes of the worker, which logs one entry in each.
class PassCounter
{
public:
    PassCounter()
        : m_previous(Core::Logging::installLogSink(
              [this](ELogLevel /*level*/, const QString& /*category*/, const QString& text) {
                  if (text.startsWith(QLatin1String("Error:")) ||
                      text.startsWith(QLatin1String("GainError:")))
                      ++m_passes;
              }))
    {}
    ~PassCounter() { Core::Logging::installLogSink(m_previous); }
    PassCounter(const PassCounter&) = delete;
    PassCounter& operator=(const PassCounter&) = delete;

    int count() const { return m_passes; }

private:
    std::atomic_int m_passes{0};
    Core::Logging::LogSink m_previous;
};

/// Microseconds; from far too dark to far too bright.
constexpr double starts[] = {20.0,    200.0,    2000.0,   10000.0,  40000.0,
                             80000.0, 140000.0, 400000.0, 1000000.0};

/// More images than any run takes that comes to an end.
constexpr int endless = 60;

class AutomaticBrightness : public testing::TestWithParam<int>
{
protected:
    AutomaticBrightness()
        : m_host(supportedModels().at(GetParam()))
    {
        EXPECT_TRUE(m_host.model().Open(m_host.pointer()));
        m_host.model().SetGridPosition(m_host.chartGrid());
        QObject::connect(
            &m_host.model(), &ColorCalibration::ColorCorrectionModel::Gray80PercentHitRateChanged,
            &m_receiver, [this](double rate) { m_hitRate = rate; }, Qt::DirectConnection);
        QImage first; // has 200 ms, whatever comes
        m_host.model().GrabImage(first, false);
    }

    /// Returns when it has said that it has finished.
    void run()
    {
        using Model = ColorCalibration::ColorCorrectionModel;
        QEventLoop loop;
        bool hasFinished = false;
        int images = 0;
        const auto onFinished = [&] {
            hasFinished = true;
            loop.quit();
        };
        const auto onImage = [&] {
            if (++images > endless)
                loop.quit();
        };
        QObject::connect(&m_host.model(), &Model::AutoAdjustGray80PercentPatchFinished, &loop,
                         onFinished, Qt::QueuedConnection);
        QObject::connect(&m_host.model(), &Model::Gray80PercentHitRateChanged, &loop, onImage,
                         Qt::QueuedConnection);
        ASSERT_TRUE(m_host.model().AutoAdjustGray80PercentPatch());
        loop.exec();
        EXPECT_TRUE(hasFinished);
    }

    /// The gray patch of a new image on 0 to 255.
    double level()
    {
        QVector<QColor> colors;
        EXPECT_EQ(m_host.model().GetColorPatchValues(colors, true), 24);
        return m_hitRate * 1.5;
    }

    EmulatedHost m_host;
    QObject m_receiver;
    std::atomic<double> m_hitRate{0.0};
};

TEST_P(AutomaticBrightness, EndsAtItsGoalFromEveryStartExposure)
{
    ASSERT_TRUE(m_host.model().SetNeutralSettings());
    std::cout << m_host.camera().modelName().toStdString() << "\n"
              << "| start | passes | end | level |\n|---|---|---|---|\n";
    for (const double start : starts) {
        m_host.setExposure(start);
        PassCounter passes;
        run();
        const double reached = level();
        std::cout << "| " << start / 1000.0 << " ms | " << passes.count() << " | "
                  << std::setprecision(4) << m_host.model().GetExposureTime() / 1000.0 << " ms | "
                  << reached << " |\n";
        // The error of a pass, 10 percent of the level: 150 / 1.1 to 150 / 0.9.
        EXPECT_GE(reached, 136.0) << start;
        EXPECT_LE(reached, 167.0) << start;
    }
}

/// Cameras whose automatic exposure ends at 100 ms, which is enough for a fifth of the usual light.
class BrightnessInDimLight : public AutomaticBrightness
{
protected:
    BrightnessInDimLight()
    {
        EXPECT_TRUE(m_host.model().CreateSettingsBackup(false));
        m_before = m_host.settings();
        EXPECT_TRUE(m_host.model().SetNeutralSettings());
        m_host.camera()
            .parameterCollection()
            ->floatParameter(
                QStringLiteral("AutoExposureTimeAbsUpperLimit|AutoExposureTimeUpperLimit"))
            ->setValue(100000.0);
        m_host.setExposure(20000.0);
    }

    void dim(double light)
    {
        SceneSettings settings;
        settings.lightLevel = light;
        m_host.camera().setScene(Scene(settings));
    }

    /// \return  what the log says of failures
    QStringList failuresOfRun()
    {
        const LogRecorder log;
        run();
        QStringList failures;
        for (const LogEntry& entry : log.entries())
            if (entry.level >= Core::Logging::Warning)
                failures.append(entry.text);
        return failures;
    }

    void expectRestored()
    {
        EXPECT_TRUE(m_host.model().RestoreSettingsBackup(false));
        EXPECT_EQ(m_host.settings().toStdString(), m_before.toStdString());
    }

    QString m_before;
};

TEST_P(BrightnessInDimLight, IsBroughtToTheGoalByGainOrEndsWhereTheGainIsRefused)
{
    for (const double light : {0.15, 0.03}) {
        dim(light);
        const QStringList failures = failuresOfRun();
        EXPECT_EQ(m_host.model().GetExposureTime(), 100000.0) << light;
        if (m_host.isOldGeneration()) {
            // What is written are hundredths of the raw steps, and the camera has 240 of these.
            ASSERT_EQ(failures.size(), 3) << light;
            EXPECT_TRUE(failures.at(0).endsWith(QLatin1String("is above the maximum 240.")))
                << failures.at(0).toStdString();
            EXPECT_EQ(failures.at(1), QStringLiteral("Autoadjust failed."));
            EXPECT_TRUE(failures.at(2).startsWith(QLatin1String(
                "CameraAutoBrightnessHelper::doWork:The camera does not take the gain ")))
                << failures.at(2).toStdString();
            EXPECT_EQ(m_host.model().GetGain(), 0.0) << light;
            // 20 ms give 150 in full light.
            EXPECT_NEAR(level(), 150.0 * 5.0 * light, 10.0) << light;
        } else {
            EXPECT_EQ(failures, QStringList()) << light;
            EXPECT_NEAR(level(), 150.0, 17.0) << light;
        }
    }
    expectRestored();
}

TEST_P(BrightnessInDimLight, InTheDarkEndsAtTheLimits)
{
    dim(0.0);
    const QStringList failures = failuresOfRun();
    EXPECT_EQ(m_host.model().GetExposureTime(), 100000.0);
    EXPECT_EQ(failures.isEmpty(), !m_host.isOldGeneration());
    EXPECT_EQ(m_host.model().GetGain(), m_host.isOldGeneration() ? 0.0 : 24.0);
    expectRestored();
}

TEST_P(BrightnessInDimLight, EndsWhereTheExposureTimeIsRefused)
{
    const QString exposure = m_host.isOldGeneration() ? QStringLiteral("ExposureTimeAbs")
                                                      : QStringLiteral("ExposureTime");
    dim(0.15);
    m_host.camera().refuseWrites(exposure);
    const QStringList failures = failuresOfRun();
    ASSERT_EQ(failures.size(), 3);
    EXPECT_TRUE(failures.at(0).contains(exposure)) << failures.at(0).toStdString();
    EXPECT_TRUE(
        failures.at(2).contains(QLatin1String("The camera does not take the exposure time ")))
        << failures.at(2).toStdString();
    m_host.camera().refuseWrites(exposure, -1);
    expectRestored();
}

// A tenth of a decibel above the lowest gain, which is refused: at the start, and in the pass that
// sets the exposure time to its limit. What the exposure time lacks then needs the gain.
TEST_P(BrightnessInDimLight, GoesToTheLimitOfExposureWhereTheGainIsRefused)
{
    const QString gain =
        m_host.isOldGeneration() ? QStringLiteral("GainRaw") : QStringLiteral("Gain");
    dim(0.15);
    for (const int writesBefore : {0, 1}) {
        SCOPED_TRACE(writesBefore);
        m_host.setExposure(20000.0);
        ASSERT_TRUE(m_host.model().SetGain(0.1));
        m_host.camera().refuseWrites(gain, writesBefore);
        const QStringList failures = failuresOfRun();
        EXPECT_EQ(m_host.model().GetExposureTime(), 100000.0);
        ASSERT_GE(failures.size(), 3);
        EXPECT_TRUE(failures.first().contains(gain)) << failures.first().toStdString();
        EXPECT_TRUE(failures.last().contains(QLatin1String("The camera does not take the gain ")))
            << failures.last().toStdString();
        m_host.camera().refuseWrites(gain, -1);
    }
    expectRestored();
}

TEST_P(BrightnessInDimLight, ReachesTheGoalByExposureTimeWhereTheGainIsRefused)
{
    dim(0.5);
    ASSERT_TRUE(m_host.model().SetGain(0.1));
    m_host.camera().refuseWrites(m_host.isOldGeneration() ? QStringLiteral("GainRaw")
                                                          : QStringLiteral("Gain"));
    failuresOfRun();
    EXPECT_NEAR(level(), 150.0, 17.0);
    EXPECT_EQ(m_host.model().GetGain(), 0.1);
    m_host.camera().refuseWrites(
        m_host.isOldGeneration() ? QStringLiteral("GainRaw") : QStringLiteral("Gain"), -1);
    expectRestored();
}

INSTANTIATE_TEST_SUITE_P(Cameras, AutomaticBrightness, testing::Values(0, 1, 2));
INSTANTIATE_TEST_SUITE_P(Cameras, BrightnessInDimLight, testing::Values(0, 1, 2));

} // namespace
