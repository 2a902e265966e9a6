// SPDX-License-Identifier: Apache-2.0
// Faults of an emulated camera at each step of a calibration.
#include "calibrationsequence.h"
#include "command.h"
#include "emulatedhost.h"
#include "settingsguard.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

using namespace ColorCalibrate;
using Cameras::Emulation::EmulatedCamera;

namespace {

constexpr double exposure = 20000.0;

/// Steps that take an image, in the order of the sequence.
const QStringList imageSteps{
    QStringLiteral("Taking the first image"),
    QStringLiteral("Balancing white"),
    QStringLiteral("Taking the image before calibration"),
    QStringLiteral("Measuring the patches"),
    QStringLiteral("Measuring the outcome"),
};

class CalibrationFaults : public testing::TestWithParam<int>
{
protected:
    CalibrationFaults()
        : m_host(reduced(supportedModels().at(GetParam())))
    {
        reopen();
    }

    void reopen()
    {
        ASSERT_TRUE(m_host.camera().open());
        m_host.setExposure(exposure);
    }

    /// Lets a fault happen as soon as a step begins, "again" where it comes a second time.
    QString run(const QString& stepOfFault, const std::function<void()>& fault)
    {
        m_steps.clear();
        CalibrationSequence sequence(
            m_host.model(),
            [&](const QString& step) {
                const QString name = m_steps.contains(step) ? step + " again" : step;
                if (name == stepOfFault && !m_steps.contains(name))
                    fault();
                m_steps.append(name);
            },
            [] { return false; });
        SequenceOptions options;
        options.adjustExposure = m_adjustsExposure;
        options.grid = m_host.chartGrid();
        try {
            sequence.run(m_host.pointer(), options);
        } catch (const CommandError& error) {
            return QString::fromUtf8(error.what());
        }
        // Given back, so that the next run finds it as this one did.
        EXPECT_TRUE(m_host.model().RestoreSettingsBackup(false));
        EXPECT_TRUE(m_host.model().Close());
        return {};
    }

    QStringList allSteps()
    {
        EXPECT_EQ(run({}, [] {}).toStdString(), "");
        EXPECT_TRUE(m_steps.contains("Setting neutral settings again"));
        EXPECT_TRUE(m_steps.contains("Restoring exposure time and gain again"));
        QStringList steps = m_steps;
        steps.removeDuplicates();
        return steps;
    }

    EmulatedHost m_host;
    QStringList m_steps;
    bool m_adjustsExposure = false;
};

/// Those that wait for an image for 5 s; one camera is enough.
class MissingFrames : public CalibrationFaults
{};

} // namespace

TEST_P(MissingFrames, ALostFrameEndsItAtTheStepThatNeedsIt)
{
    const QString before = m_host.settings();
    for (const QString& step : imageSteps) {
        // The first image may be taken twice.
        const int frames = step == imageSteps.first() ? 2 : 1;
        const QString message = run(step, [&] { m_host.camera().faults().loseFrames(frames); });
        EXPECT_TRUE(message.contains(QLatin1String("delivered no image at the step \"") + step))
            << step.toStdString() << ": " << message.toStdString();
        m_host.camera().faults().loseFrames(0);
        EXPECT_EQ(m_host.settings().toStdString(), before.toStdString()) << step.toStdString();
    }
}

TEST_P(MissingFrames, ADamagedFrameIsNoImage)
{
    const QString before = m_host.settings();
    const QString step = QStringLiteral("Measuring the patches");
    const QString message = run(step, [&] { m_host.camera().faults().failFrames(1); });
    EXPECT_TRUE(message.contains(QLatin1String("delivered no image"))) << message.toStdString();
    EXPECT_EQ(m_host.settings().toStdString(), before.toStdString());
}

TEST_P(CalibrationFaults, ALateFrameIsWaitedFor)
{
    using std::chrono::milliseconds;
    for (const QString& step : imageSteps)
        EXPECT_EQ(run(step, [&] { m_host.camera().faults().delayFrames(1, milliseconds(300)); })
                      .toStdString(),
                  "")
            << step.toStdString();
}

TEST_P(MissingFrames, AFrameThatComesTooLateIsNotTakenForAnotherOne)
{
    const QString before = m_host.settings();
    const QString message = run(QStringLiteral("Measuring the patches"), [&] {
        m_host.camera().faults().delayFrames(1, std::chrono::milliseconds(5200));
    });
    EXPECT_TRUE(message.contains(QLatin1String("delivered no image"))) << message.toStdString();
    EXPECT_EQ(m_host.settings().toStdString(), before.toStdString());
}

TEST_P(CalibrationFaults, ALostConnectionIsToldAtEveryStep)
{
    for (const QString& step : allSteps()) {
        const QString message = run(step, [&] { m_host.camera().loseConnection(); });
        EXPECT_EQ(message.toStdString(), "the camera has been disconnected") << step.toStdString();
        EXPECT_FALSE(m_host.camera().isOpen()) << step.toStdString();
        m_host.camera().reconnect();
        reopen();
    }
}

TEST_P(CalibrationFaults, WithoutAFaultTheExposureStaysWhereItIsToBeKept)
{
    const auto keptExposure = [&] {
        return m_host.camera()
            .parameterCollection()
            ->floatParameter(QStringLiteral("ExposureTimeAbs|ExposureTime"))
            ->value();
    };
    double calibrated = 0.0;
    EXPECT_EQ(run(QStringLiteral("Collecting the results"), [&] { calibrated = keptExposure(); })
                  .toStdString(),
              "");
    EXPECT_EQ(calibrated, exposure);
}

TEST_P(CalibrationFaults, AConnectionLostInAnyPassOfTheBrightnessWorkerIsTold)
{
    m_adjustsExposure = true;
    // The image that the worker discards, and that of its second pass.
    for (const int images : {1, 3}) {
        m_host.setExposure(exposure / 4.0); // several passes from its goal
        int losses = 0;
        QObject receiver;
        QObject::connect(&m_host.model(), &ColorCalibration::ColorCorrectionModel::cameraRemoved,
                         &receiver, [&] { ++losses; });
        const QString message = run(QStringLiteral("Adjusting brightness"),
                                    [&] { m_host.camera().faults().loseConnectionAfter(images); });
        EXPECT_EQ(message.toStdString(), "the camera has been disconnected") << images;
        EXPECT_EQ(m_steps.last().toStdString(), "Adjusting brightness") << images;
        EXPECT_LE(losses, 1) << images;
        EXPECT_FALSE(m_host.model().StopGrabbing()) << "the model has been closed";
        EXPECT_FALSE(m_host.camera().isOpen()) << images;
        m_host.camera().reconnect();
        reopen();
    }
}

TEST_P(CalibrationFaults, ATestImageThatStaysOnIsNamedAndTheCameraGivenBack)
{
    const QString feature = m_host.isOldGeneration() ? QStringLiteral("TestImageSelector")
                                                     : QStringLiteral("TestPattern");
    const auto image = m_host.camera().parameterCollection()->enumerationParameter(feature);
    image->setValue(image->entries().last().name);
    const QString before = m_host.settings();
    m_host.camera().refuseWrites(feature);
    const QString message = run({}, [] {});
    EXPECT_TRUE(message.startsWith(
        QLatin1String("the camera could not be opened for calibration: ") + feature))
        << message.toStdString();
    EXPECT_EQ(m_steps.last().toStdString(), "Opening the camera");
    m_host.camera().refuseWrites(feature, -1);
    EXPECT_EQ(m_host.settings().toStdString(), before.toStdString());
    EXPECT_TRUE(m_host.camera().takeExclusiveAccess());
}

TEST_P(CalibrationFaults, ARefusedWriteLeavesTheSettingsOrSaysThatTheyAreNot)
{
    const bool isOld = m_host.isOldGeneration();
    const QString before = m_host.settings();
    const QStringList steps = allSteps();
    for (const QString& feature :
         {isOld ? QStringLiteral("BlackLevelRaw") : QStringLiteral("BlackLevel"),
          QStringLiteral("Gamma"), QStringLiteral("ColorTransformationValue"),
          isOld ? QStringLiteral("BalanceRatioAbs") : QStringLiteral("BalanceRatio")})
        for (const QString& step : steps) {
            m_host.camera().close();
            reopen();
            ASSERT_EQ(m_host.settings().toStdString(), before.toStdString());
            SettingsGuard guard(m_host.pointer());
            m_host.camera().refuseWrites(feature, -1);
            const QString message = run(step, [&] { m_host.camera().refuseWrites(feature); });
            const bool isAsBefore = m_host.settings() == before;
            const QString remark = guard.restore();
            const std::string where = (feature + QLatin1String(" at ") + step).toStdString();
            // Steps behind the last write of the feature are not hurt.
            if (message.isEmpty()) {
                EXPECT_EQ(remark.contains(QLatin1String("as they were")), isAsBefore) << where;
            } else {
                EXPECT_TRUE(isAsBefore || remark.contains(QLatin1String("COULD NOT BE RESTORED")))
                    << where << ": " << message.toStdString() << remark.toStdString();
            }
            m_host.camera().refuseWrites(feature, -1);
            EXPECT_TRUE(guard.restore().contains(QLatin1String("as they were"))) << where;
        }
}

INSTANTIATE_TEST_SUITE_P(Cameras, CalibrationFaults, testing::Values(0, 1, 2));
INSTANTIATE_TEST_SUITE_P(Cameras, MissingFrames, testing::Values(0));
