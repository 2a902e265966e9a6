// SPDX-License-Identifier: Apache-2.0
// Runs the wizard's order of calls and lets each call to the camera fail once.
#include "modeltest.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <stdexcept>
#include <string>
#include <thread>
#include <tuple>

namespace {

enum class Fault {
    Refusal,         ///< the call throws, the next ones work
    Loss,            ///< the connection breaks during the call
    LossOnItsThread, ///< the same, told by a thread of the camera's
};

class ModelSequence : public ModelTest
{
protected:
    bool calibrate()
    {
        return open() && m_model.StopGrabbing() && m_model.CreateSettingsBackup(false) &&
               m_model.CreateSettingsBackup(true) && loadPreviousSettings() &&
               m_model.SetNeutralSettings() && m_model.ExecuteWhitebalance() &&
               (m_model.ActivateMonoImage(), true) && (m_model.DisableAutoFunctions(), true) &&
               writeExposureAndGainBack() && m_model.StoreDetectedExposureAndGain() &&
               m_model.RestoreSettingsBackup(true) && m_model.RestoreDetectedExposureAndGain() &&
               m_model.ApplyInitialCameraImageAndPatchValues() && m_model.SetNeutralSettings() &&
               m_model.RestoreDetectedExposureAndGain() && m_model.ApplyInitialColorPatchValues() &&
               m_model.ExecuteCalibrationAndApply();
    }

private:
    /// From the file of a previous calibration.
    bool loadPreviousSettings() { return m_model.LoadSettings("Gamma\t0.45\n"); }

    /// What the adapters of exposure time and gain do when they begin.
    bool writeExposureAndGainBack()
    {
        double minimum = 0.0;
        double value = 0.0;
        double maximum = 0.0;
        return m_model.GetExposureTimeRange(minimum, value, maximum) &&
               m_model.SetExposureTime(value) && m_model.GetGainRange(minimum, value, maximum) &&
               m_model.SetGain(value);
    }
};

class ModelSequenceTest : public ModelSequence,
                          public testing::WithParamInterface<std::tuple<bool, Fault>>
{
protected:
    ModelSequenceTest()
    {
        if (std::get<bool>(GetParam()))
            use(oldCamera());
    }

    void fail(Fault fault)
    {
        if (fault == Fault::Loss)
            m_camera->loseConnection();
        if (fault == Fault::LossOnItsThread) {
            std::thread camera([this] { m_camera->loseConnection(); });
            camera.join();
        }
        throw std::runtime_error("fault of the test");
    }

    std::string settings()
    {
        QString text;
        m_camera->parameters().saveFeatures(text, "@CameraDevice");
        return text.toStdString();
    }

    /// Lets one call fail. \return  whether there was one with this number
    bool runWithFaultAt(int number, Fault fault)
    {
        int count = 0;
        QSettings().clear();
        for (const char* feature : {"TestImageSelector", "TestPattern"})
            m_camera->features().change(feature, [](FakeFeature& one) { one.value = "Ramp"; });
        const std::string before = settings();
        m_camera->features().beforeCall = [&](const QString&) {
            if (count++ == number)
                fail(fault);
        };
        const bool hasFailed = !calibrate();
        if (hasFailed)
            m_model.RestoreSettingsBackup(false);
        m_model.Close();
        m_camera->features().beforeCall = nullptr;
        // A refused restoring cannot be made good for.
        if (hasFailed && fault == Fault::Refusal) {
            EXPECT_EQ(settings(), before);
        }
        QCoreApplication::processEvents();
        return count > number;
    }

    /// Every entry must be one that is written down for some operation.
    void expectKnownWords()
    {
        static const QStringList messages{"Error: Failed to close camera.",
                                          "Error: Failed to grab image.",
                                          "Error: Load settings to camera failed.",
                                          "Error: Set neutral camera settings failed.",
                                          "Error: Backup of camera settings failed.",
                                          "Error: Restore of camera settings failed.",
                                          "Calibration failed.",
                                          "Whitebalance failed!",
                                          "Failed to restore old grid position."};
        static const QRegularExpression function(
            "^ColorCorrectionModelImpl::\\w+: ?(fault of the test|The camera is closed.*|The "
            "measured colors give no usable \\w+, .*|The camera delivered no image in time, "
            ".*|\\w+ (refuses to be written|cannot be "
            "read))$");
        static const QRegularExpression refusedGain(
            "^The camera (refuses|cannot select|does not tell) Gain[0-2][0-2] of the "
            "color matrix[:;,] .*$");
        for (const LogEntry& entry : m_log.entries())
            EXPECT_TRUE(entry.level == 0 || messages.contains(entry.text) ||
                        function.match(entry.text).hasMatch() ||
                        refusedGain.match(entry.text).hasMatch())
                << entry.text.toStdString();
    }
};

TEST_P(ModelSequenceTest, RunsToItsEndWithoutAFault)
{
    EXPECT_TRUE(calibrate());
    EXPECT_TRUE(m_model.Close());
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_P(ModelSequenceTest, SurvivesAFaultAtEachCall)
{
    const Fault fault = std::get<Fault>(GetParam());
    int number = 0;
    bool reached = true;
    for (; reached; ++number) {
        SCOPED_TRACE(number);
        ASSERT_NO_THROW(reached = runWithFaultAt(number, fault));
        ASSERT_EQ(m_control.handles, 0);
        ASSERT_FALSE(m_camera->open);
        ASSERT_FALSE(m_model.StopGrabbing()) << "the model is closed";
    }
    EXPECT_GT(number, 100) << "the sequence has that many calls at least";
    expectKnownWords();
}

TEST_F(ModelSequence, ARefusalLeavesTheCameraAsItWas)
{
    for (const auto& camera : {oldCamera(), newCamera()})
        for (const char* feature : {"LUTSelector", "BalanceRatioSelector", "DemosaicingMode"}) {
            use(camera);
            ASSERT_TRUE(open());
            QString before;
            m_camera->parameters().saveFeatures(before, "@CameraDevice");
            ASSERT_TRUE(m_model.Close());
            m_camera->features().change(feature, [](FakeFeature& one) { one.refuses = true; });
            EXPECT_FALSE(calibrate()) << feature;
            EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
            ASSERT_TRUE(m_model.Close());
            m_camera->features().change(feature, [](FakeFeature& one) { one.refuses = false; });
            QString after;
            m_camera->parameters().saveFeatures(after, "@CameraDevice");
            EXPECT_EQ(after.toStdString(), before.toStdString()) << feature;
        }
}

TEST_F(ModelSequence, AConnectionLostWhileTheBackupIsWrittenBackLeavesItOwed)
{
    for (const auto& camera : {oldCamera(), newCamera()}) {
        use(camera);
        m_camera->features().change("LUTSelector", [](FakeFeature& one) { one.refuses = true; });
        EXPECT_FALSE(calibrate());
        int losses = 0;
        QObject receiver;
        QObject::connect(&m_model, &ColorCalibration::ColorCorrectionModel::cameraRemoved,
                         &receiver, [&] { ++losses; });
        int writtenBack = 0;
        m_camera->features().beforeCall = [&](const QString& call) {
            if (!call.startsWith("load @CameraDevice"))
                return;
            ++writtenBack;
            m_camera->loseConnection();
            throw std::runtime_error("the line is dead");
        };
        EXPECT_FALSE(m_model.RestoreSettingsBackup(false));
        EXPECT_EQ(writtenBack, 1);
        EXPECT_EQ(losses, 1);
        EXPECT_TRUE(m_model.IsBackupOwed()) << "whoever closes the camera has to tell";
        EXPECT_EQ(logTexts().mid(logTexts().size() - 2),
                  (QStringList{"2 Error: Restore of camera settings failed.",
                               "2 ColorCorrectionModelImpl::RestoreSettingsBackup: the line is "
                               "dead"}));
        m_model.Close();
        EXPECT_EQ(m_control.handles, 0);
        EXPECT_EQ(losses, 1);
    }
}

std::string nameOf(const testing::TestParamInfo<ModelSequenceTest::ParamType>& test)
{
    const std::string generation = std::get<bool>(test.param) ? "Old" : "New";
    switch (std::get<Fault>(test.param)) {
    case Fault::Refusal:
        return generation + "Refusal";
    case Fault::Loss:
        return generation + "Loss";
    default:
        return generation + "LossOnItsThread";
    }
}

INSTANTIATE_TEST_SUITE_P(Cameras, ModelSequenceTest,
                         testing::Combine(testing::Bool(),
                                          testing::Values(Fault::Refusal, Fault::Loss,
                                                          Fault::LossOnItsThread)),
                         nameOf);

} // namespace
