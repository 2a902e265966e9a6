// SPDX-License-Identifier: Apache-2.0
// Faults happen when they were asked for, and can be recovered from.
#include "emulationtest.h"
#include "frameprobe.h"
#include "genicamexception.h"

#include <future>

namespace Cameras::Emulation {
namespace {

class FaultsTest : public EmulationTest
{
protected:
    FaultsTest()
        : m_camera(openCamera(smallModel()))
    {
        exposure()->setValue(20.0);
        QObject::connect(m_camera.data(), &EmulatedCamera::cameraConnectionLost, [this] {
            if (m_losses++ == 0)
                m_lost.set_value();
        });
    }
    Core::ParameterCollection::FloatParameterPtr exposure()
    {
        return m_camera->parameterCollection()->floatParameter(QStringLiteral("ExposureTime"));
    }
    bool waitForLoss()
    {
        return m_lost.get_future().wait_for(patience) == std::future_status::ready;
    }

    QSharedPointer<EmulatedCamera> m_camera;
    std::promise<void> m_lost;
    std::atomic<int> m_losses = 0;
};

TEST_F(FaultsTest, LostFramesAreMissingInTheCount)
{
    m_camera->faults().loseFrames(2);
    FrameProbe probe(m_camera);
    ASSERT_TRUE(m_camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(2));
    m_camera->stopGrabbing();
    EXPECT_EQ(probe.results()[0]->frameNumber(), 2U);
    EXPECT_EQ(probe.results()[1]->frameNumber(), 3U);
}

TEST_F(FaultsTest, AFailedFrameSaysWhy)
{
    m_camera->faults().failFrames(1);
    FrameProbe probe(m_camera);
    ASSERT_TRUE(m_camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(2));
    EXPECT_FALSE(probe.results()[0]->GrabSucceeded());
    EXPECT_FALSE(probe.results()[0]->errorText().empty());
    EXPECT_TRUE(probe.results()[1]->GrabSucceeded());
}

TEST_F(FaultsTest, AFaultOfAllFramesCanBeEnded)
{
    m_camera->faults().failFrames(-1);
    FrameProbe probe(m_camera);
    ASSERT_TRUE(m_camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(5));
    for (const auto& result : probe.results())
        EXPECT_FALSE(result->GrabSucceeded());
    m_camera->faults().failFrames(0);
    ASSERT_TRUE(probe.waitFor(probe.count() + 3));
    EXPECT_TRUE(probe.results().back()->GrabSucceeded());
}

TEST_F(FaultsTest, ALateFrameComesAtLast)
{
    m_camera->faults().delayFrames(1, std::chrono::milliseconds(20));
    FrameProbe probe(m_camera);
    ASSERT_TRUE(m_camera->grabSingle());
    ASSERT_TRUE(probe.waitFor(1));
    EXPECT_TRUE(probe.results()[0]->GrabSucceeded());
}

TEST_F(FaultsTest, TheConnectionBreaksAfterSoManyFrames)
{
    m_camera->faults().loseConnectionAfter(3);
    FrameProbe probe(m_camera);
    const auto parameter = exposure();
    ASSERT_TRUE(m_camera->startGrabbing());
    ASSERT_TRUE(waitForLoss());
    EXPECT_EQ(probe.count(), 3U);
    EXPECT_FALSE(m_camera->isOpen());
    EXPECT_FALSE(m_camera->isGrabbing());
    EXPECT_FALSE(m_camera->startGrabbing());
    EXPECT_EQ(m_camera->parameterCollection(), nullptr);
    EXPECT_THROW(parameter->value(), ::GenICam::RuntimeException);
    m_camera->close();
    EXPECT_EQ(m_losses, 1);
}

TEST_F(FaultsTest, ALostCameraOpensAgainWhenItIsReconnected)
{
    m_camera->loseConnection();
    m_camera->loseConnection();
    EXPECT_EQ(m_losses, 1);
    EXPECT_FALSE(m_camera->open());
    EXPECT_FALSE(m_camera->lastErrorText().isEmpty());
    m_camera->clearLastError();
    EXPECT_TRUE(m_camera->lastErrorText().isEmpty());
    m_camera->reconnect();
    ASSERT_TRUE(m_camera->open());
    FrameProbe probe(m_camera);
    ASSERT_TRUE(m_camera->grabSingle());
    EXPECT_TRUE(probe.waitFor(1));
}

TEST_F(FaultsTest, AClosedCameraIsLostSilently)
{
    m_camera->close();
    m_camera->loseConnection();
    EXPECT_EQ(m_losses, 0);
    EXPECT_FALSE(m_camera->open());
}

TEST_F(FaultsTest, ACameraThatSomebodyElseHasDoesNotOpen)
{
    m_camera->close();
    m_camera->faults().setTakenByAnother(true);
    EXPECT_FALSE(m_camera->open());
    EXPECT_FALSE(m_camera->isOpen());
    EXPECT_FALSE(m_camera->lastErrorText().isEmpty());
    m_camera->faults().setTakenByAnother(false);
    EXPECT_TRUE(m_camera->open());
}

} // namespace
} // namespace Cameras::Emulation
