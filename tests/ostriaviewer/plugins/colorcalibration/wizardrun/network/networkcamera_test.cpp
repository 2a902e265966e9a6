// SPDX-License-Identifier: Apache-2.0
// The wizard on a camera that it reaches through GigE Vision.
#include "camerarig.h"
#include "eventloopmeter.h"
#include "wizardrun.h"

#include <QAbstractButton>
#include <QTimer>

#include <optional>

namespace {

class NetworkWizard : public WizardRun
{
protected:
    void SetUp() override
    {
        if (!hasLoopback())
            GTEST_SKIP() << "the system gives no network of its own";
        m_rig = std::make_unique<NetworkRig>(fastModel(FeatureNames::SecondGeneration));
        open(m_rig->camera());
    }

    /// Presses OK in each message box.
    void confirmBoxes()
    {
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] {
            for (auto* shown : boxes()) {
                m_told << shown->text();
                shown->button(QMessageBox::Ok)->click();
            }
        });
        m_watch.start(0);
    }

    void vanish()
    {
        m_isCameraLost = true;
        m_rig->vanish();
    }

    std::unique_ptr<NetworkRig> m_rig;
    QTimer m_watch;
    QStringList m_told;
};

TEST_F(NetworkWizard, CalibratesTheCamera)
{
    const double red = value("BalanceRatio", "BalanceRatioSelector", "Red");
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(4));
        click("nextButton");
    });
    const auto computed = m_model.LastCalibration();
    constexpr double step = 0.002; // the camera's own
    EXPECT_GT(std::abs(computed.whiteBalance[0] - red), 0.01);
    EXPECT_NEAR(value("BalanceRatio", "BalanceRatioSelector", "Red"), computed.whiteBalance[0],
                step);
    EXPECT_NEAR(gain(0, 1), computed.colorMatrix(0, 1), step);
    EXPECT_NEAR(gain(2, 1), computed.colorMatrix(2, 1), step);
    EXPECT_NEAR(value("Gamma"), computed.gamma, step);
}

/// What the wizard asks of the camera just then is waited for until the loss is noticed, 6 s at
/// most.
constexpr qint64 heldUpMs = 6000;

class NetworkWizardOnStep : public NetworkWizard, public testing::WithParamInterface<int>
{};

TEST_P(NetworkWizardOnStep, CancelledLeavesTheCameraAsItWas)
{
    const QStringList before = settings();
    ASSERT_GT(before.size(), 50);
    bool hasChanged = false;
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(GetParam()));
        hasChanged = settings() != before;
        click("cancelButton");
        if (GetParam() > 1)
            confirm();
    });
    EXPECT_EQ(hasChanged, GetParam() > 1);
    EXPECT_EQ(settings(), before);
}

TEST_P(NetworkWizardOnStep, TellsOnceThatTheCameraIsLost)
{
    confirmBoxes();
    std::optional<EventLoopMeter> meter;
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(GetParam()));
        vanish();
        meter.emplace();
    });
    ASSERT_TRUE(meter);
    const qint64 longestMs = meter->longestMs();
    RecordProperty("longestMs", static_cast<int>(longestMs));
    EXPECT_LT(longestMs, heldUpMs);
    ASSERT_FALSE(m_told.isEmpty());
    EXPECT_TRUE(m_told[0].contains("The camera has been disconnected.")) << qPrintable(m_told[0]);
    EXPECT_EQ(m_told.filter("original settings couldn't be restored").size(), GetParam() > 1);
    EXPECT_EQ(m_told.size(), GetParam() > 1 ? 2 : 1);
}

INSTANTIATE_TEST_SUITE_P(Steps, NetworkWizardOnStep, testing::Range(1, 5));

} // namespace
