// SPDX-License-Identifier: Apache-2.0
// Tests of the model's frame: opening, closing, a lost camera, signals.
#include "modeltest.h"

#include <QBuffer>
#include <QEventLoop>
#include <QSignalSpy>
#include <QTimer>

#include <thread>

using ColorCalibration::ColorCorrectionModel;
using ColorCalibration::TrapezoidPoints;

namespace {

using Model = ColorCorrectionModel;

TEST_F(ModelTest, WithoutACameraEveryOperationFailsQuietly)
{
    double a = 1.0;
    double b = 2.0;
    double c = 3.0;
    QImage image;
    QVector<QColor> colors;
    QBuffer settings;
    settings.open(QIODevice::ReadWrite);
    EXPECT_FALSE(m_model.Close());
    EXPECT_FALSE(m_model.GrabImage(image, true));
    EXPECT_TRUE(image.isNull());
    EXPECT_FALSE(m_model.StopGrabbing());
    EXPECT_FALSE(m_model.LoadSettingsFromDevice(&settings));
    EXPECT_FALSE(m_model.AutoAdjustGray80PercentPatch());
    EXPECT_EQ(m_model.GetColorPatchValues(colors, true), 0);
    EXPECT_EQ(m_model.GetColorPatchValues(colors, false), 0);
    EXPECT_EQ(m_model.GetCurrentColorPatchValues(colors), 0);
    EXPECT_EQ(m_model.GetInitialColorPatchValues(colors), 0);
    EXPECT_FALSE(m_model.GetInitialCameraImage(image));
    EXPECT_FALSE(m_model.ApplyInitialColorPatchValues());
    EXPECT_FALSE(m_model.ApplyInitialCameraImageAndPatchValues());
    EXPECT_FALSE(m_model.ExecuteWhitebalance());
    EXPECT_FALSE(m_model.ExecuteCalibrationAndApply());
    EXPECT_FALSE(m_model.GetExposureTimeRange(a, b, c));
    EXPECT_FALSE(m_model.GetGainRange(a, b, c));
    EXPECT_EQ(m_model.GetExposureTime(), -1.0);
    EXPECT_EQ(m_model.GetGain(), -1.0);
    EXPECT_FALSE(m_model.SetExposureTime(5.0));
    EXPECT_FALSE(m_model.SetGain(5.0));
    EXPECT_FALSE(m_model.StoreDetectedExposureAndGain());
    EXPECT_FALSE(m_model.RestoreDetectedExposureAndGain());
    m_model.ActivateMonoImage();
    m_model.DisableAutoFunctions();
    EXPECT_TRUE(colors.isEmpty());
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelTest, WithoutACameraFourOperationsDoNothingAndSucceed)
{
    EXPECT_TRUE(m_model.LoadSettings("Gain\t1"));
    EXPECT_TRUE(m_model.SetNeutralSettings());
    for (const bool initial : {false, true}) {
        EXPECT_TRUE(m_model.CreateSettingsBackup(initial));
        EXPECT_TRUE(m_model.RestoreSettingsBackup(initial));
    }
    EXPECT_TRUE(logTexts().isEmpty());
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ModelTest, WithoutACameraGridAndTargetsWork)
{
    const QSignalSpy changed(&m_model, &Model::GridPositionChanged);
    const TrapezoidPoints outline({1, 2}, {101, 3}, {4, 70}, {105, 75});
    EXPECT_TRUE(m_model.SetGridPosition(outline));
    EXPECT_EQ(m_model.GetGridPosition(), outline);
    EXPECT_EQ(changed.count(), 1);
    QVector<TrapezoidPoints> patches;
    EXPECT_EQ(m_model.GetColorPatchTrapezoids(patches), 24);
    QVector<QColor> targets;
    EXPECT_EQ(m_model.GetTargetColorPatchValues(targets), 24);
    EXPECT_EQ(targets.size(), 24);
}

TEST_F(ModelTest, OpenTakesAClosedCameraAndCloseLeavesItClosed)
{
    EXPECT_TRUE(open());
    EXPECT_TRUE(m_camera->open);
    EXPECT_EQ(m_control.opens, 1);
    EXPECT_EQ(m_control.handles, 1);
    EXPECT_TRUE(m_model.Close());
    EXPECT_FALSE(m_camera->open);
    EXPECT_EQ(m_control.closes, 1);
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelTest, OpenJoinsAnOpenCameraAndCloseLeavesItOpen)
{
    m_camera->open = true;
    m_status.cameraIsOpen = true;
    EXPECT_TRUE(open());
    EXPECT_EQ(m_control.opens, 0);
    EXPECT_EQ(m_control.accesses, 1);
    EXPECT_TRUE(m_model.Close());
    EXPECT_TRUE(m_camera->open);
    EXPECT_EQ(m_control.closes, 0);
    EXPECT_EQ(m_control.handles, 0) << "the exclusive rights are given back";
}

TEST_F(ModelTest, OpenWithoutAStatusServiceOpens)
{
    m_status.cameraIsOpen = true;
    m_model.SetCameraStatusService(nullptr);
    EXPECT_TRUE(open());
    EXPECT_EQ(m_control.opens, 1);
}

TEST_F(ModelTest, ARefusedOpeningFailsQuietly)
{
    m_control.refuses = true;
    for (const bool hostHasIt : {false, true}) {
        m_status.cameraIsOpen = hostHasIt;
        EXPECT_FALSE(open());
        EXPECT_EQ(m_model.OpeningFailure(),
                  hostHasIt ? QStringLiteral("Get exclusive camera access failed")
                            : QStringLiteral("Camera open with exclusive access failed"));
    }
    m_model.SetCameraControlService(nullptr);
    EXPECT_FALSE(open());
    EXPECT_FALSE(m_model.Open(nullptr));
    EXPECT_FALSE(m_model.Close());
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelTest, AnOpeningThatBreaksOffGivesTheCameraBack)
{
    for (const char* feature : {"TestImageSelector", "TestPattern"}) {
        m_camera->features().change(feature, [](FakeFeature& one) { one.refuses = true; });
        EXPECT_FALSE(open());
        EXPECT_EQ(m_control.handles, 0);
        EXPECT_FALSE(m_camera->open) << "it was closed before";
        EXPECT_EQ(m_model.OpeningFailure(),
                  QStringLiteral("%1 refuses to be written").arg(QLatin1String(feature)));
        m_camera->features().change(feature, [](FakeFeature& one) { one.refuses = false; });
    }
    m_camera->withParameters = false;
    EXPECT_FALSE(open());
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_TRUE(logTexts().isEmpty());
    m_camera->withParameters = true;
    EXPECT_TRUE(open()) << "a failure leaves nothing in the way";
    EXPECT_EQ(m_model.OpeningFailure(), QString());
}

TEST_F(ModelTest, AnOpeningOfAnOpenCameraThatBreaksOffLeavesItOpen)
{
    m_camera->open = true;
    m_status.cameraIsOpen = true;
    m_camera->features().change("TestPattern", [](FakeFeature& one) { one.refuses = true; });
    EXPECT_FALSE(open());
    EXPECT_TRUE(m_camera->open);
    EXPECT_EQ(m_control.handles, 0);
}

TEST_F(ModelTest, ASecondOpenIsRefusedAndHarmsNothing)
{
    ASSERT_TRUE(open());
    EXPECT_FALSE(open());
    EXPECT_EQ(m_control.handles, 1);
    EXPECT_EQ(m_model.GetGain(), 3.0);
}

TEST_F(ModelTest, OpenSwitchesTestImagesOff)
{
    ASSERT_TRUE(open());
    EXPECT_EQ(writes(), (QStringList{"TestImageSelector = Off", "TestPattern = Off"}));
}

TEST_F(ModelTest, TestImagesComeBackUnlessTheCameraStaysCalibrated)
{
    const auto entryOf = [this](const char* feature) {
        return m_camera->features().get(feature).value.toString();
    };
    for (const char* feature : {"TestImageSelector", "TestPattern"})
        m_camera->features().change(feature, [](FakeFeature& one) { one.value = "Ramp"; });
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.Close());
    EXPECT_EQ(entryOf("TestImageSelector"), "Ramp");
    EXPECT_EQ(entryOf("TestPattern"), "Ramp");

    m_camera->features().change("TestPattern", [](FakeFeature& one) { one.refuses = true; });
    EXPECT_FALSE(open());
    EXPECT_EQ(entryOf("TestImageSelector"), "Ramp") << "an opening that breaks off";
    m_camera->features().change("TestPattern", [](FakeFeature& one) { one.refuses = false; });

    const auto calibrate = [this] {
        return open() && m_model.CreateSettingsBackup(false) &&
               m_model.ApplyInitialColorPatchValues() && m_model.ExecuteCalibrationAndApply();
    };
    ASSERT_TRUE(calibrate());
    ASSERT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_EQ(entryOf("TestPattern"), "Off") << "the wizard goes on from here";
    ASSERT_TRUE(m_model.Close());
    EXPECT_EQ(entryOf("TestPattern"), "Ramp");

    ASSERT_TRUE(calibrate());
    ASSERT_TRUE(m_model.Close());
    EXPECT_EQ(entryOf("TestPattern"), "Off") << "a calibrated camera is there to be used";
}

TEST_F(ModelTest, AnOpeningDuringWhichTheConnectionBreaksFails)
{
    // When the camera has been looked at already, and by a thread of its own.
    m_camera->features().beforeCall = [this](const QString& call) {
        if (call != "version")
            return;
        std::thread camera([this] { m_camera->loseConnection(); });
        camera.join();
    };
    EXPECT_FALSE(open());
    m_camera->features().beforeCall = nullptr;
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_TRUE(open()) << "it may come back";
}

TEST_F(ModelTest, CanBeOpenedAndClosedManyTimes)
{
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(open());
        ASSERT_TRUE(m_model.Close());
    }
    EXPECT_EQ(m_control.handles, 0);
}

TEST_F(ModelTest, TheEndOfTheModelClosesTheCamera)
{
    {
        ColorCorrectionModel shortLived;
        shortLived.SetCameraControlService(&m_control);
        ASSERT_TRUE(shortLived.Open(m_camera));
    }
    EXPECT_FALSE(m_camera->open);
    EXPECT_EQ(m_control.handles, 0);
}

TEST_F(ModelTest, MayHaveAParentThatGoesFirst)
{
    auto* parent = new QObject;
    new ColorCorrectionModel(parent);
    delete parent;
}

TEST_F(ModelTest, ACloseThatFailsIsLoggedAndStillLetsGo)
{
    ASSERT_TRUE(open());
    m_control.throwsOnClose = true;
    EXPECT_FALSE(m_model.Close());
    EXPECT_EQ(logTexts(), (QStringList{"2 Error: Failed to close camera.",
                                       "2 ColorCorrectionModelImpl::Close: close failed"}));
    EXPECT_EQ(m_control.handles, 0);
    m_control.throwsOnClose = false;
    EXPECT_TRUE(open());
}

TEST_F(ModelTest, ALostCameraIsReportedOnceAndFailsQuietlyFromThenOn)
{
    ASSERT_TRUE(open());
    const QSignalSpy removed(&m_model, &Model::cameraRemoved);
    ASSERT_TRUE(m_model.StoreDetectedExposureAndGain());
    m_camera->loseConnection();
    emit m_camera->cameraConnectionLost();
    EXPECT_EQ(removed.count(), 1);
    QImage image;
    QVector<QColor> colors;
    EXPECT_FALSE(m_model.GrabImage(image, true));
    EXPECT_EQ(m_model.GetColorPatchValues(colors, true), 0);
    EXPECT_FALSE(m_model.ExecuteWhitebalance());
    EXPECT_FALSE(m_model.ExecuteCalibrationAndApply());
    EXPECT_FALSE(m_model.RestoreDetectedExposureAndGain());
    EXPECT_FALSE(m_model.AutoAdjustGray80PercentPatch());
    EXPECT_EQ(m_model.GetGain(), -1.0);
    EXPECT_TRUE(m_model.Close());
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelTest, ANewOpeningForgetsTheLoss)
{
    ASSERT_TRUE(open());
    const QSignalSpy removed(&m_model, &Model::cameraRemoved);
    m_camera->loseConnection();
    ASSERT_TRUE(m_model.Close());
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetGain(), 3.0);
    m_camera->loseConnection();
    EXPECT_EQ(removed.count(), 2);
}

TEST_F(ModelTest, ALossThatIsReportedAfterTheCloseIsNoNews)
{
    ASSERT_TRUE(open());
    const QSignalSpy removed(&m_model, &Model::cameraRemoved);
    std::thread camera([this] { m_camera->loseConnection(); });
    camera.join();
    ASSERT_TRUE(m_model.Close());
    QCoreApplication::processEvents();
    EXPECT_EQ(removed.count(), 0);
}

TEST_F(ModelTest, ChangesOfExposureAndGainAreReported)
{
    ASSERT_TRUE(open());
    const QSignalSpy exposure(&m_model, &Model::ExposureTimeValueChanged);
    const QSignalSpy gain(&m_model, &Model::GainValueChanged);
    m_camera->parameters().addFloat("Gain", 4.5);
    m_camera->parameters().emitChanged("Gain");
    m_camera->parameters().addFloat("ExposureTime", 1234.5);
    m_camera->parameters().emitChanged("ExposureTime");
    ASSERT_EQ(gain.count(), 1);
    EXPECT_EQ(gain.first().first().toDouble(), 4.5);
    ASSERT_EQ(exposure.count(), 1);
    EXPECT_EQ(exposure.first().first().toDouble(), 1234.5);
    ASSERT_TRUE(m_model.Close());
    m_camera->parameters().emitChanged("Gain");
    EXPECT_EQ(gain.count(), 1);
}

TEST_F(ModelTest, RawGainIsReportedTimesAHundredAndReadDividedByIt)
{
    use(oldCamera());
    ASSERT_TRUE(open());
    const QSignalSpy gain(&m_model, &Model::GainValueChanged);
    m_camera->parameters().emitChanged("GainRaw");
    ASSERT_EQ(gain.count(), 1);
    EXPECT_EQ(gain.first().first().toDouble(), 30000.0);
    EXPECT_EQ(m_model.GetGain(), 3.0);
}

TEST_F(ModelTest, AChangeThatCannotBeReadIsNotReported)
{
    ASSERT_TRUE(open());
    const QSignalSpy gain(&m_model, &Model::GainValueChanged);
    m_camera->features().change("Gain", [](FakeFeature& one) { one.readable = false; });
    m_camera->parameters().emitChanged("Gain");
    EXPECT_EQ(gain.count(), 0);
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelTest, AFailedOpeningLeavesTheHostsLiveImageRunning)
{
    m_camera->open = true;
    m_camera->grabbing = true;
    m_status.cameraIsOpen = true;
    m_control.refuses = true;
    EXPECT_FALSE(open());
    EXPECT_TRUE(m_camera->grabbing);
    EXPECT_EQ(m_camera->stops, 0);
    m_control.refuses = false;
    m_camera->withParameters = false;
    EXPECT_FALSE(open());
    EXPECT_TRUE(m_camera->grabbing);
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_TRUE(m_camera->open);
}

TEST_F(ModelTest, CloseFromInsideOfAWaitEndsTheWait)
{
    ASSERT_TRUE(open());
    m_camera->delivery = Delivery::Never;
    QTimer::singleShot(0, [this] { EXPECT_TRUE(m_model.Close()); });
    QImage image;
    EXPECT_FALSE(m_model.GrabImage(image, true));
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelTest, CloseFromInsideOfAnOperationEndsTheOperation)
{
    ASSERT_TRUE(open());
    QVector<QColor> colors;
    ASSERT_EQ(m_model.GetColorPatchValues(colors, true), 24);
    m_camera->delivery = Delivery::Never;
    QTimer::singleShot(0, [this] { EXPECT_TRUE(m_model.Close()); });
    EXPECT_FALSE(m_model.ExecuteWhitebalance());
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Whitebalance failed!",
                           "2 ColorCorrectionModelImpl::ExecuteWhitebalance:The camera is "
                           "closed."}));
}

} // namespace
