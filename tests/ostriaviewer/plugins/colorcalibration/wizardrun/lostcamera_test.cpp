// SPDX-License-Identifier: Apache-2.0
// A camera that is lost while the wizard works with it: told once, and left alone from then on.
#include "wizardrun.h"

#include "logrecorder.h"

#include <QAbstractButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTimer>

using ColorCalibration::QmlDataModelInterface;

namespace {

const QStringList told{
    "<p>The camera has been disconnected.<br/>Reconnect the camera to the computer and open it to "
    "continue using the Color Calibrator.</p>",
    "The camera's original settings couldn't be restored. Load them from a user set or a settings "
    "file."};

class LostCamera : public WizardRun
{
protected:
    /// Presses OK in each message box, in the first one when this holds.
    void confirmBoxes(const std::function<bool()>& isTime)
    {
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this, isTime] {
            const auto open = boxes();
            if (open.isEmpty() || (m_told.isEmpty() && !isTime()))
                return;
            EXPECT_EQ(open.size(), 1);
            for (auto* shown : open) {
                m_told << shown->text();
                shown->button(QMessageBox::Ok)->click();
            }
        });
        m_watch.start(0);
    }

    /// Loses the camera as soon as the brightness is being adjusted, and leaves the user before the
    /// message until that has ended.
    void loseWhileAdjusting(const std::function<void()>& adjust)
    {
        adjust();
        ASSERT_FALSE(item("nextButton")->isEnabled());
        m_log = std::make_unique<LogRecorder>();
        loseCamera();
    }

    void expectLeftAlone() const
    {
        ASSERT_TRUE(m_log);
        for (const LogEntry& entry : m_log->entries())
            EXPECT_TRUE(entry.text != "startGrab()" && entry.text != "singleGrab()")
                << qPrintable(entry.text);
        EXPECT_FALSE(m_camera->isExclusive());
    }

    QTimer m_watch;
    QStringList m_told;
    std::unique_ptr<LogRecorder> m_log;
};

TEST_F(LostCamera, IsToldOnceOnTheResults)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    confirmBoxes([] { return true; });
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(3));
        loseCamera();
    });
    EXPECT_EQ(m_told, told);
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_FALSE(m_camera->isExclusive());
}

TEST_F(LostCamera, IsAskedForNoMoreImagesOfTheBrightness)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    QSignalSpy ended(m_data.get(), &QmlDataModelInterface::autoAdjustGray80PercentPatchFinished);
    std::unique_ptr<QSignalSpy> expired;
    confirmBoxes([&] { return expired && expired->count() > 0 && ended.count() > 0; });
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(2));
        auto* timer = m_data->view()->rootObject()->findChild<QObject*>("checkTimer");
        ASSERT_TRUE(timer);
        expired = std::make_unique<QSignalSpy>(timer, SIGNAL(triggered()));
        loseWhileAdjusting([this] { press(Qt::Key_Return); });
        expired->clear();
    });
    EXPECT_EQ(m_told, told);
    expectLeftAlone();
}

TEST_F(LostCamera, IsNotCalibratedAgain)
{
    QSettings().setValue("ColCalPlugin/EnableDemoMode", true);
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    for (const int step : {3, 4}) {
        QSignalSpy ended(m_data.get(),
                         &QmlDataModelInterface::autoAdjustGray80PercentPatchFinished);
        bool isLost = false;
        confirmBoxes([&] { return isLost && ended.count() > 0; });
        run([&] {
            ASSERT_NO_FATAL_FAILURE(goTo(step));
            ended.clear();
            isLost = true;
            loseWhileAdjusting([this] { click("recalibrateButton"); });
        });
        EXPECT_EQ(m_told, told) << step;
        expectLeftAlone();
        m_log.reset();
        m_told.clear();
        m_watch.disconnect();
        ASSERT_NO_FATAL_FAILURE(findCameraAgain());
    }
}

} // namespace
