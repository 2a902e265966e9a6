// SPDX-License-Identifier: Apache-2.0
// Automatic brightness on the emulated cameras, from every start exposure.
#include "emulatedhost.h"

#include "logging.h"

#include <QEventLoop>

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <iomanip>
#include <iostream>

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

struct Start
{
    double exposure; ///< microseconds
    int runs;        ///< until the goal is reached
};

/// A first run from above 149 ms stops at the limit of automatic exposure, which its damping leaves
/// it above; the next one starts from there.
const Start starts[] = {{20.0, 1},    {200.0, 1},    {2000.0, 1},   {10000.0, 1},  {40000.0, 1},
                        {80000.0, 1}, {140000.0, 1}, {400000.0, 2}, {1000000.0, 2}};

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

    void run()
    {
        QEventLoop loop;
        QObject::connect(
            &m_host.model(),
            &ColorCalibration::ColorCorrectionModel::AutoAdjustGray80PercentPatchFinished, &loop,
            &QEventLoop::quit, Qt::QueuedConnection);
        ASSERT_TRUE(m_host.model().AutoAdjustGray80PercentPatch());
        loop.exec();
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
              << "| start | passes | runs | end | level |\n|---|---|---|---|---|\n";
    for (const Start& start : starts) {
        m_host.setExposure(start.exposure);
        PassCounter passes;
        int runs = 0;
        double reached = 0.0;
        do {
            run();
            reached = level();
            ++runs;
        } while (runs < start.runs && std::abs(reached / 150.0 - 1.0) > 0.11);
        std::cout << "| " << start.exposure / 1000.0 << " ms | " << passes.count() << " | " << runs
                  << " | " << std::setprecision(4) << m_host.model().GetExposureTime() / 1000.0
                  << " ms | " << reached << " |\n";
        // The error of a pass, 10 percent of the level: 150 / 1.1 to 150 / 0.9.
        EXPECT_GE(reached, 136.0) << start.exposure;
        EXPECT_LE(reached, 167.0) << start.exposure;
        EXPECT_EQ(runs, start.runs) << start.exposure;
    }
}

INSTANTIATE_TEST_SUITE_P(Cameras, AutomaticBrightness, testing::Values(0, 1, 2));

} // namespace
