// SPDX-License-Identifier: Apache-2.0
// Tests of the model while its brightness worker runs.
#include "modeltest.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTimer>

#include <functional>

namespace {

using Model = ColorCalibration::ColorCorrectionModel;

/// A camera whose gray patch stands at the goal already, so that a run takes one pass.
class ModelBrightnessTest : public ModelTest
{
protected:
    ModelBrightnessTest()
    {
        ColorCalibration::PatchColors colors = castColors();
        dlib::set_rowm(colors, 19) = 151.0;
        showChart(*m_camera, colors);
        m_camera->delivery = Delivery::OtherThread;
    }
};

TEST_F(ModelBrightnessTest, ARunSaysWhenItHasFinished)
{
    ASSERT_TRUE(open());
    QEventLoop loop;
    QObject::connect(&m_model, &Model::AutoAdjustGray80PercentPatchFinished, &loop,
                     &QEventLoop::quit);
    EXPECT_TRUE(m_model.AutoAdjustGray80PercentPatch());
    loop.exec();
    EXPECT_EQ(m_model.GetGain(), 0.0);
    EXPECT_NEAR(m_model.GetExposureTime(), 1000.0, 10.0);
}

TEST_F(ModelBrightnessTest, TheEndOfARunThatAnotherReplacesIsNotTakenForTheEndOfThatOne)
{
    ASSERT_TRUE(open());
    int ends = 0;
    QEventLoop loop;
    QObject::connect(&m_model, &Model::AutoAdjustGray80PercentPatchFinished, &loop, [&] {
        ++ends;
        loop.quit();
    });
    m_camera->delivery = Delivery::OnRelease;
    EXPECT_TRUE(m_model.AutoAdjustGray80PercentPatch());
    // The first run has ended when the second one begins; its word is under way to this thread.
    EXPECT_TRUE(m_model.AutoAdjustGray80PercentPatch());
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 0) << "the second run waits for its image";
    m_camera->delivery = Delivery::OtherThread;
    m_camera->releaseImage(); // of the first run
    m_camera->releaseImage();
    loop.exec();
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 1);
    for (const QString& text : logTexts())
        EXPECT_FALSE(text.startsWith("2 Autoadjust failed.")) << "it was stopped, not starved";
}

TEST_F(ModelBrightnessTest, TheEndOfARunThatIsStoppedIsTold)
{
    ASSERT_TRUE(open());
    const QSignalSpy finished(&m_model, &Model::AutoAdjustGray80PercentPatchFinished);
    m_camera->delivery = Delivery::OnRelease;
    ASSERT_TRUE(m_model.AutoAdjustGray80PercentPatch());
    m_camera->releaseImage();
    ASSERT_TRUE(m_model.SetNeutralSettings());
    QCoreApplication::processEvents();
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(ModelBrightnessTest, CloseEndsARunThatWaitsForAnImage)
{
    ASSERT_TRUE(open());
    QSemaphore requested;
    m_camera->delivery = Delivery::Never;
    m_camera->onRequest = [&] {
        requested.release();
    };
    EXPECT_TRUE(m_model.AutoAdjustGray80PercentPatch());
    requested.acquire();
    EXPECT_TRUE(m_model.Close());
    EXPECT_EQ(m_control.handles, 0);
    EXPECT_FALSE(m_camera->open);
}

TEST_F(ModelBrightnessTest, ALossDuringARunEndsIt)
{
    ASSERT_TRUE(open());
    m_camera->delivery = Delivery::Never;
    m_camera->onRequest = [this] {
        m_camera->loseConnection();
    };
    QEventLoop loop;
    QObject::connect(&m_model, &Model::AutoAdjustGray80PercentPatchFinished, &loop,
                     &QEventLoop::quit);
    EXPECT_TRUE(m_model.AutoAdjustGray80PercentPatch());
    loop.exec();
    EXPECT_EQ(logTexts().first(), "2 Autoadjust failed.");
    EXPECT_TRUE(m_model.Close());
}

/// A worker that waits for an image which comes when the test says so.
class ModelStoppedRunTest : public ModelBrightnessTest
{
protected:
    /// Opens, keeps the settings, and returns when the worker has asked for its image.
    void startRun()
    {
        // An image of the run before may still be in the making.
        m_camera->releaseImage();
        m_camera->joinDeliveries();
        m_camera->onRequest = nullptr;
        m_camera->delivery = Delivery::AtOnce;
        m_requested.acquire(m_requested.available());
        ASSERT_TRUE(open());
        // The patch is too dark, so that the worker would raise the exposure time.
        showChart(*m_camera, castColors());
        ASSERT_TRUE(m_model.CreateSettingsBackup(false));
        ASSERT_TRUE(m_model.StoreDetectedExposureAndGain());
        ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
        m_camera->delivery = Delivery::OnRelease;
        m_camera->onRequest = [this] {
            m_requested.release();
        };
        ASSERT_TRUE(m_model.AutoAdjustGray80PercentPatch());
        m_requested.acquire();
        m_camera->features().forget();
        // One more than the worker may ask for until it is stopped.
        m_camera->releaseImage();
        m_camera->releaseImage();
    }

    QSemaphore m_requested;
};

TEST_F(ModelStoppedRunTest, RestoringABackupEndsTheRunSoThatItWritesNothingBehind)
{
    startRun();
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    const QStringList restored = writes();
    ASSERT_FALSE(restored.isEmpty());
    EXPECT_TRUE(restored.last().startsWith("load @CameraDevice")) << restored.last().toStdString();
    const int requests = m_camera->grabRequests;
    EXPECT_TRUE(m_model.Close());
    EXPECT_EQ(writes(), restored);
    EXPECT_EQ(m_camera->grabRequests, requests);
}

TEST_F(ModelStoppedRunTest, SettingsThatAreWrittenEndTheRun)
{
    // Those that take an image for themselves find one at once.
    const QVector<std::function<bool()>> operations{
        [this] { return m_model.SetNeutralSettings(); },
        [this] { return m_model.LoadSettings("Gamma\t3\n"); },
        [this] {
            m_camera->delivery = Delivery::AtOnce;
            return m_model.ExecuteWhitebalance();
        },
        [this] { return m_model.ExecuteCalibrationAndApply(); },
        [this] { return m_model.StoreDetectedExposureAndGain(); },
        [this] { return m_model.RestoreDetectedExposureAndGain(); },
    };
    for (const auto& operation : operations) {
        startRun();
        EXPECT_TRUE(operation());
        const int requests = m_camera->grabRequests;
        const QStringList written = writes();
        EXPECT_TRUE(m_model.Close());
        EXPECT_EQ(m_camera->grabRequests, requests);
        EXPECT_EQ(writes(), written);
    }
}

TEST_F(ModelBrightnessTest, CloseFromInsideOfAnOperationsWaitEndsARunToo)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.AutoAdjustGray80PercentPatch());
    m_camera->delivery = Delivery::Never;
    bool closed = false;
    // The operation holds the model while it waits, and the worker waits for the model.
    QTimer::singleShot(0, [&] { closed = m_model.Close(); });
    m_model.ApplyInitialCameraImageAndPatchValues();
    if (!closed) // the wait has ended before the timer's turn
        QCoreApplication::processEvents();
    EXPECT_TRUE(closed);
    EXPECT_EQ(m_control.handles, 0);
}

TEST_F(ModelBrightnessTest, ANewRunMayBeStartedFromInsideOfAnOperationsWait)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.AutoAdjustGray80PercentPatch());
    m_camera->delivery = Delivery::Never;
    bool started = false;
    QTimer::singleShot(0, [&] {
        started = m_model.AutoAdjustGray80PercentPatch();
        EXPECT_TRUE(m_model.Close());
    });
    m_model.ApplyInitialCameraImageAndPatchValues();
    QCoreApplication::processEvents();
    EXPECT_TRUE(started);
}

} // namespace
