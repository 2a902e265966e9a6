// SPDX-License-Identifier: Apache-2.0
// A camera that has fallen silent is not waited for. It answers again only when it is told to, and
// would be given up if somebody waited for that.
#include "camerarig.h"
#include "emulationtest.h"
#include "frameprobe.h"
#include "genicamexception.h"
#include "logrecorder.h"
#include "patience.h"

#include <QCoreApplication>

using namespace Cameras;
using Emulation::smallModel;

namespace {

/// On the thread of the application object.
class SilentCamera : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!hasLoopback())
            GTEST_SKIP() << "the system gives no network of its own";
        serve({});
    }

    // Else the delivery that is under way would do so, perhaps when the server has gone.
    void TearDown() override
    {
        if (camera)
            camera->close();
    }

    void serve(const QStringList& missingFeatures)
    {
        TearDown();
        rig.reset();
        rig = std::make_unique<NetworkRig>(smallModel(), missingFeatures);
        camera = rig->camera();
        ASSERT_TRUE(camera->open()) << camera->lastErrorText().toStdString();
    }

    /// As the camera itself sees it.
    auto mode() const
    {
        return rig->served().parameterCollection()->enumerationParameter(
            QStringLiteral("AcquisitionMode"));
    }

    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
    std::unique_ptr<NetworkRig> rig;
    HostCameraPtr camera;
    const QString single = QStringLiteral("SingleFrame");
};

} // namespace

TEST_F(SilentCamera, IsStoppedLaterAndDeliversNothingMeanwhile)
{
    mode()->setValue(single);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(2));
    rig->hold();
    camera->stopGrabbing();
    const std::size_t count = probe.count();
    EXPECT_FALSE(camera->isGrabbing());
    EXPECT_TRUE(rig->served().isGrabbing());
    EXPECT_TRUE(camera->isOpen());
    rig->letGo();
    EXPECT_TRUE(becomes([this] { return mode()->value() == single; }));
    EXPECT_FALSE(rig->served().isGrabbing());
    EXPECT_EQ(probe.count(), count);
    EXPECT_EQ(rig->client()->statistics().overrun, 0U) << "sent when nobody wanted it any more";
    ASSERT_TRUE(camera->startGrabbing());
    EXPECT_TRUE(probe.waitFor(count + 1));
}

TEST_F(SilentCamera, IsStartedLater)
{
    FrameProbe probe(camera);
    rig->hold();
    ASSERT_TRUE(camera->startGrabbing());
    EXPECT_TRUE(camera->isGrabbing());
    EXPECT_TRUE(camera->startGrabbing());
    EXPECT_FALSE(camera->grabSingle(1000));
    EXPECT_EQ(probe.count(), 0U);
    rig->letGo();
    EXPECT_TRUE(probe.waitFor(2));
    EXPECT_TRUE(camera->isOpen());
}

TEST_F(SilentCamera, TakesItsPictureLater)
{
    FrameProbe probe(camera);
    rig->hold();
    ASSERT_TRUE(camera->grabSingle());
    EXPECT_EQ(probe.count(), 0U);
    rig->letGo();
    EXPECT_TRUE(probe.waitFor(1));
    EXPECT_TRUE(camera->isOpen());
}

TEST_F(SilentCamera, SendsNothingIfItIsStoppedBeforeItHasStarted)
{
    FrameProbe probe(camera);
    rig->hold();
    ASSERT_TRUE(camera->startGrabbing());
    camera->stopGrabbing();
    EXPECT_FALSE(camera->isGrabbing());
    rig->letGo();
    ASSERT_TRUE(camera->grabSingle(60000));
    EXPECT_TRUE(probe.waitFor(1));
    EXPECT_TRUE(becomes([this] { return !rig->served().isGrabbing(); }));
    EXPECT_EQ(probe.count(), 1U);
}

TEST_F(SilentCamera, SaysLaterThatItCannotStart)
{
    serve({QStringLiteral("AcquisitionStart")});
    const LogRecorder log;
    rig->hold();
    ASSERT_TRUE(camera->startGrabbing());
    EXPECT_TRUE(log.entries().isEmpty());
    rig->letGo();
    EXPECT_TRUE(becomes([&log] { return !log.entries().isEmpty(); }));
    EXPECT_TRUE(log.entries().constFirst().text.contains(QLatin1String("AcquisitionStart")))
        << log.entries().constFirst().text.toStdString();
    EXPECT_FALSE(camera->isGrabbing());
    EXPECT_TRUE(camera->lastErrorText().isEmpty()) << "nobody is to take it for a later failure";
}

TEST_F(SilentCamera, IsGivenBackAsItWasBeforeAStartThatCameTooEarly)
{
    mode()->setValue(single);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    const LogRecorder log;
    rig->hold();
    camera->stopGrabbing();
    ASSERT_TRUE(camera->startGrabbing());
    camera->close();
    rig->letGo();
    EXPECT_TRUE(becomes([this] { return mode()->value() == single; }));
    EXPECT_FALSE(rig->served().isGrabbing());
    ASSERT_TRUE(camera->open()) << "all is done by then";
    EXPECT_TRUE(log.entries().isEmpty()) << log.entries().first().text.toStdString();
}

TEST_F(SilentCamera, IsGivenBackAsItWasBeforeAStartThatItNeverHeardOf)
{
    mode()->setValue(single);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    rig->vanish();
    camera->stopGrabbing();
    camera->startGrabbing();
    EXPECT_TRUE(becomes([this] { return camera->parameterCollection() == nullptr; }));
    rig->comeBack();
    ASSERT_TRUE(becomes([this] { return camera->open(); }));
    EXPECT_EQ(mode()->value(), single);
}

TEST_F(SilentCamera, IsClosedAtOnceAndGivenBackAsItWasLater)
{
    mode()->setValue(single);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    const auto width = camera->parameterCollection()->integerParameter(QStringLiteral("Width"));
    rig->hold();
    camera->close();
    EXPECT_FALSE(camera->isOpen());
    EXPECT_EQ(camera->parameterCollection(), nullptr);
    EXPECT_THROW(width->value(), ::GenICam::RuntimeException);
    EXPECT_FALSE(width->isAvailable());
    rig->letGo();
    EXPECT_TRUE(becomes([this] { return mode()->value() == single; }));
    EXPECT_FALSE(rig->served().isGrabbing());
    EXPECT_TRUE(camera->open()) << camera->lastErrorText().toStdString();
}

TEST_F(SilentCamera, IsGivenBackAsItWasWhereNobodyNoticedItsLossBeforeItWasClosed)
{
    mode()->setValue(single);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    rig->vanish();
    camera->close();
    rig->comeBack();
    ASSERT_TRUE(becomes([this] { return camera->open(); }));
    EXPECT_EQ(mode()->value(), single);
}

TEST_F(SilentCamera, IsOpenedAgainAtOnceThoughSomebodyHasLostPatienceWithIt)
{
    rig->hold();
    const auto gain = camera->parameterCollection()->floatParameter(QStringLiteral("Gain"));
    {
        const Cameras::GenICam::Patience little(std::chrono::milliseconds(10));
        EXPECT_THROW(gain->value(), ::GenICam::RuntimeException);
    }
    camera->close();
    rig->letGo();
    EXPECT_TRUE(camera->open()) << camera->lastErrorText().toStdString();
}

TEST_F(SilentCamera, IsNotOpenedByAWishThatWasGivenUp)
{
    camera->close();
    rig->hold();
    EXPECT_FALSE(camera->open());
    EXPECT_EQ(camera->lastErrorText().toStdString(), "The camera \"127.0.0.1\" does not answer.");
    rig->letGo();
    EXPECT_FALSE(camera->isOpen());
    EXPECT_TRUE(becomes([this] { return camera->open(); }));
    EXPECT_DOUBLE_EQ(camera->parameterCollection()->floatParameter(QStringLiteral("Gain"))->value(),
                     0.0);
}
