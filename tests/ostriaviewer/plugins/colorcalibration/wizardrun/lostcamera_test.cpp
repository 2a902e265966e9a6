// SPDX-License-Identifier: Apache-2.0
// A camera that is lost while the wizard works with it: told once, and left alone from then on.
#include "wizardrun.h"

#include "genicamexception.h"
#include "logrecorder.h"
#include "registerstore.h"

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

// The command is carried out or not: the answer does not come through.
TEST_F(LostCamera, IsToldWithTheUserSetThatItWasStoringIn)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    bool isVanished = false;
    m_camera->registers()->setWriteHook(
        [&](const Cameras::Emulation::FeatureDefinition& feature, int) {
            if (feature.name != QLatin1String("UserSetSave"))
                return;
            isVanished = true;
            m_camera->registers()->setReachable(false);
            QTimer::singleShot(0, m_dialog.get(), [this] { loseCamera(); });
            throw GenICam::RuntimeException("timeout");
        });
    confirmBoxes([&] { return isVanished; });
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(4));
        item("userSets")->setProperty("currentIndex", 2);
        click("saveButton");
    });
    EXPECT_TRUE(isVanished);
    // The message of the page goes when the loss is known.
    m_told.removeAll("Couldn't store settings in user set: UserSet2");
    EXPECT_EQ(m_told,
              (QStringList{told.first(),
                           told.last() +
                               "\n\nThe connection to the camera was lost while its settings were "
                               "being stored in the user set \"UserSet2\". Whether it holds the "
                               "new settings is not known. Open the camera again and check it, and "
                               "which user set the camera starts with."}));
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
