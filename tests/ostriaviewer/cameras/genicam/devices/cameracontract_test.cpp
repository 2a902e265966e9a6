// SPDX-License-Identifier: Apache-2.0
// What holds for every camera of the host: emulated in process, and over GigE Vision.
#include "camerarig.h"
#include "emulationtest.h"
#include "frameprobe.h"
#include "genicamexception.h"

#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <cstring>
#include <future>

using Cameras::HostCameraPtr;
using Cameras::Emulation::FeatureNames;
using Cameras::Emulation::smallModel;
using Core::CameraPoolComponents::ICamera;

namespace {

enum class Backend { InProcess, Network };

class CameraContract : public testing::TestWithParam<Backend>
{
protected:
    void SetUp() override
    {
        if (GetParam() == Backend::Network && !hasLoopback())
            GTEST_SKIP() << "the system gives no network of its own";
        if (GetParam() == Backend::InProcess)
            rig = std::make_unique<ProcessRig>(smallModel());
        else
            rig = std::make_unique<NetworkRig>(smallModel());
        camera = rig->camera();
    }

    void open() { ASSERT_TRUE(camera->open()) << camera->lastErrorText().toStdString(); }

    auto number(const char* name) const
    {
        return camera->parameterCollection()->integerParameter(QString::fromLatin1(name));
    }
    auto real(const char* name) const
    {
        return camera->parameterCollection()->floatParameter(QString::fromLatin1(name));
    }
    auto choice(const char* name) const
    {
        return camera->parameterCollection()->enumerationParameter(QString::fromLatin1(name));
    }
    auto command(const char* name) const
    {
        return camera->parameterCollection()->commandParameter(QString::fromLatin1(name));
    }

    std::unique_ptr<CameraRig> rig;
    HostCameraPtr camera;
};

/// Waits for a signal that comes on any thread.
class LossProbe
{
public:
    explicit LossProbe(const ICamera& camera)
        : m_connection(QObject::connect(&camera, &ICamera::cameraConnectionLost, [this] {
            const std::lock_guard lock(m_mutex);
            ++m_count;
            m_changed.notify_all();
        }))
    {}
    ~LossProbe() { QObject::disconnect(m_connection); }
    LossProbe(const LossProbe&) = delete;
    LossProbe& operator=(const LossProbe&) = delete;

    bool wait()
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, patience, [this] { return m_count > 0; });
    }
    int count()
    {
        const std::lock_guard lock(m_mutex);
        return m_count;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_count = 0;
    QMetaObject::Connection m_connection;
};

} // namespace

TEST_P(CameraContract, ClosedItHasNoFeaturesAndGrabsNothing)
{
    EXPECT_FALSE(camera->isOpen());
    EXPECT_EQ(camera->parameterCollection(), nullptr);
    EXPECT_FALSE(camera->startGrabbing());
    EXPECT_FALSE(camera->grabSingle(1000));
    EXPECT_FALSE(camera->isGrabbing());
    camera->stopGrabbing();
    camera->close();
}

TEST_P(CameraContract, OpensAndTellsItsModel)
{
    open();
    open();
    EXPECT_TRUE(camera->isOpen());
    EXPECT_EQ(camera->modelName(), smallModel().name);
    EXPECT_TRUE(camera->displayName().contains(smallModel().serialNumber));
    EXPECT_EQ(camera->parameterCollection()->sfncVersion(), QVersionNumber(2, 3, 0));
}

TEST_P(CameraContract, ParametersThrowOnceItIsClosed)
{
    open();
    const auto width = number("Width");
    EXPECT_EQ(width->value(), 96);
    camera->close();
    EXPECT_FALSE(camera->isOpen());
    EXPECT_THROW(width->value(), ::GenICam::RuntimeException);
    EXPECT_THROW(width->setValue(32, false), ::GenICam::RuntimeException);
}

TEST_P(CameraContract, KeepsWhatIsWrittenOnItsOwnResolution)
{
    open();
    const auto gain = real("Gain"); // tenths of a decibel
    gain->setValue(3.14);
    EXPECT_DOUBLE_EQ(gain->value(), 3.1);
    const auto width = number("Width");
    width->setValue(48, true);
    EXPECT_EQ(width->value(), 48);
}

TEST_P(CameraContract, RefusesValuesThatItCannotTake)
{
    open();
    EXPECT_THROW(real("Gain")->setValue(1000.0), ::GenICam::RuntimeException);
    EXPECT_THROW(number("Width")->setValue(47, false), ::GenICam::RuntimeException);
    EXPECT_THROW(choice("PixelFormat")->setValue(QStringLiteral("Plaid8")),
                 ::GenICam::RuntimeException);
    EXPECT_DOUBLE_EQ(real("Gain")->value(), 0.0);
    EXPECT_EQ(number("Width")->value(), 96);
}

TEST_P(CameraContract, SelectorsChooseWhatIsWritten)
{
    open();
    const auto selector = choice("BalanceRatioSelector");
    const auto ratio = real("BalanceRatio");
    selector->setValue(QStringLiteral("Red"));
    ratio->setValue(2.0);
    selector->setValue(QStringLiteral("Blue"));
    ratio->setValue(3.0);
    selector->setValue(QStringLiteral("Red"));
    EXPECT_DOUBLE_EQ(ratio->value(), 2.0);
    selector->setValue(QStringLiteral("Blue"));
    EXPECT_DOUBLE_EQ(ratio->value(), 3.0);
}

TEST_P(CameraContract, UserSetsBringSettingsBack)
{
    open();
    choice("UserSetSelector")->setValue(QStringLiteral("UserSet1"));
    real("Gain")->setValue(6.0);
    command("UserSetSave")->execute();
    real("Gain")->setValue(1.0);
    command("UserSetLoad")->execute();
    EXPECT_DOUBLE_EQ(real("Gain")->value(), 6.0);
}

TEST_P(CameraContract, FeatureStreamsComeBackExactly)
{
    open();
    real("Gain")->setValue(7.3);
    QString saved;
    const auto parameters = camera->parameterCollection();
    parameters->saveFeatures(saved, QStringLiteral("@CameraDevice"));
    real("Gain")->setValue(0.0);
    QString errors;
    parameters->loadFeatures(saved, errors, QStringLiteral("@CameraDevice"));
    EXPECT_EQ(errors.toStdString(), "");
    EXPECT_DOUBLE_EQ(real("Gain")->value(), 7.3);
}

TEST_P(CameraContract, DeliversOneImageInEachPixelFormat)
{
    open();
    for (const auto& format : choice("PixelFormat")->entries()) {
        choice("PixelFormat")->setValue(format.name);
        FrameProbe probe(camera);
        ASSERT_TRUE(camera->grabSingle()) << camera->lastErrorText().toStdString();
        ASSERT_TRUE(probe.waitFor(1)) << format.name.toStdString();
        const auto result = probe.results().front();
        ASSERT_TRUE(result->GrabSucceeded()) << result->errorText();
        EXPECT_EQ(result->image().width(), 96);
        EXPECT_EQ(result->image().height(), 64);
        EXPECT_EQ(probe.camera(), camera);
    }
}

TEST_P(CameraContract, GrabsUntilItIsStopped)
{
    open();
    const QString mode =
        choice("AcquisitionMode")->isEmpty() ? QString() : choice("AcquisitionMode")->value();
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    EXPECT_TRUE(camera->isGrabbing());
    EXPECT_TRUE(camera->startGrabbing());
    EXPECT_FALSE(camera->grabSingle(1000));
    EXPECT_TRUE(probe.waitFor(5));
    camera->stopGrabbing();
    EXPECT_FALSE(camera->isGrabbing());
    const std::size_t count = probe.count();
    ASSERT_TRUE(camera->grabSingle());
    EXPECT_TRUE(probe.waitFor(count + 1));
    EXPECT_EQ(probe.count(), count + 1);
    if (!mode.isEmpty()) {
        EXPECT_EQ(choice("AcquisitionMode")->value(), mode);
    }
}

TEST_P(CameraContract, LocksItsImageSizeWhileItGrabs)
{
    open();
    const auto width = number("Width");
    EXPECT_TRUE(width->isWritable());
    ASSERT_TRUE(camera->startGrabbing());
    EXPECT_FALSE(width->isWritable());
    EXPECT_THROW(width->setValue(32, false), ::GenICam::RuntimeException);
    camera->stopGrabbing();
    EXPECT_TRUE(width->isWritable());
    width->setValue(32, true);
}

TEST_P(CameraContract, ExposureTimeMayChangeWhileItGrabs)
{
    open();
    ASSERT_TRUE(camera->startGrabbing());
    real("ExposureTime")->setValue(5000.0);
    EXPECT_DOUBLE_EQ(real("ExposureTime")->value(), 5000.0);
    camera->stopGrabbing();
}

TEST_P(CameraContract, StopsFromWithinADelivery)
{
    open();
    std::promise<void> stopped;
    FrameProbe probe(camera, [this, &stopped] {
        camera->stopGrabbing();
        stopped.set_value();
    });
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    ASSERT_EQ(stopped.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready);
    camera->stopGrabbing();
    EXPECT_FALSE(camera->isGrabbing());
    EXPECT_EQ(probe.count(), 1U);
}

TEST_P(CameraContract, ClosingEndsGrabbing)
{
    open();
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(2));
    camera->close();
    EXPECT_FALSE(camera->isGrabbing());
    open();
    EXPECT_TRUE(number("Width")->isWritable());
}

TEST_P(CameraContract, ClosesFromWithinADeliveryAndOpensAtOnce)
{
    open();
    std::promise<void> closed;
    FrameProbe probe(camera, [this, &closed] {
        camera->close();
        closed.set_value();
    });
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_EQ(closed.get_future().wait_for(patience), std::future_status::ready);
    open();
    EXPECT_FALSE(camera->isGrabbing());
    EXPECT_TRUE(number("Width")->isWritable());
}

TEST_P(CameraContract, ClosesAndOpensWhileAReceiverIsStillCalled)
{
    open();
    std::promise<void> isReleased;
    FrameProbe probe(camera, [release = isReleased.get_future().share()] { release.wait(); });
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    camera->close();
    EXPECT_FALSE(camera->isOpen());
    open();
    EXPECT_TRUE(number("Width")->isWritable());
    isReleased.set_value();
}

// On a thread that waits until the camera has done it.
TEST_P(CameraContract, IsClosedByWhoHearsThatItStartsOrStops)
{
    for (const bool hearsOfStart : {true, false}) {
        open();
        const auto connection = QObject::connect(
            camera.data(), &Cameras::HostCamera::stateChanged, camera.data(),
            [this, hearsOfStart] {
                if (camera->isOpen() && camera->isGrabbing() == hearsOfStart)
                    camera->close();
            },
            Qt::DirectConnection);
        auto closed = std::async(std::launch::async, [this] {
            camera->startGrabbing();
            camera->stopGrabbing();
        });
        EXPECT_EQ(closed.wait_for(patience), std::future_status::ready);
        QObject::disconnect(connection);
        EXPECT_FALSE(camera->isOpen());
    }
}

TEST_P(CameraContract, OneHandleGrabsAlone)
{
    open();
    auto handle = camera->takeExclusiveAccess();
    ASSERT_NE(handle, nullptr);
    EXPECT_FALSE(camera->startGrabbing());
    FrameProbe probe(handle);
    ASSERT_TRUE(handle->grabSingle());
    EXPECT_TRUE(probe.waitFor(1));
    handle.clear(); // the delivering thread may hold it a little longer
    EXPECT_TRUE(becomes([this] { return camera->startGrabbing(); }));
    camera->stopGrabbing();
}

TEST_P(CameraContract, SaysThatAnotherProgramHasIt)
{
    rig->takeByAnother();
    EXPECT_FALSE(camera->open());
    EXPECT_EQ(camera->lastErrorText().toStdString(),
              "The camera is being used by another application.");
    EXPECT_FALSE(camera->isOpen());
    rig->giveBack();
    open();
}

TEST_P(CameraContract, AnnouncesOnceThatItIsLostAndComesBack)
{
    open();
    const auto width = number("Width");
    LossProbe loss(*camera);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    rig->vanish();
    ASSERT_TRUE(loss.wait());
    EXPECT_FALSE(camera->isOpen());
    EXPECT_FALSE(camera->isGrabbing());
    EXPECT_THROW(width->value(), ::GenICam::RuntimeException);
    EXPECT_EQ(camera->parameterCollection(), nullptr);
    EXPECT_FALSE(camera->startGrabbing());
    camera->stopGrabbing();
    camera->close();

    rig->comeBack();
    open();
    const std::size_t before = probe.count();
    ASSERT_TRUE(camera->grabSingle());
    EXPECT_TRUE(probe.waitFor(before + 1));
    EXPECT_EQ(loss.count(), 1);
}

INSTANTIATE_TEST_SUITE_P(Backends, CameraContract,
                         testing::Values(Backend::InProcess, Backend::Network),
                         [](const auto& test) {
                             return test.param == Backend::InProcess ? "InProcess" : "Network";
                         });

namespace {

/// A camera as it is after its start, and its first picture.
struct FirstSight
{
    QString settings;
    Ostria::COstriaImage image;
};

FirstSight lookAt(const CameraRig& rig)
{
    FirstSight sight;
    const HostCameraPtr camera = rig.camera();
    EXPECT_TRUE(camera->open());
    QString text;
    camera->parameterCollection()->saveFeatures(text, QStringLiteral("@CameraDevice"));
    sight.settings =
        text.section(QLatin1Char('\n'), 4).remove(QStringLiteral("AcquisitionMode\tContinuous\n"));
    FrameProbe probe(camera);
    EXPECT_TRUE(camera->grabSingle());
    if (probe.waitFor(1))
        sight.image = probe.results().front()->image();
    return sight;
}

/// The noise of a second picture is another one.
FirstSight lookAtUndamaged(const Cameras::Emulation::CameraModel& model)
{
    FirstSight sight;
    EXPECT_TRUE(becomes([&] {
        const NetworkRig network(model);
        sight = lookAt(network);
        return network.client()->statistics().damaged == 0;
    }));
    return sight;
}

} // namespace

TEST(CameraBackends, HaveTheSameSettingsAndTheSamePixels)
{
    if (!hasLoopback())
        GTEST_SKIP() << "the system gives no network of its own";
    for (const FeatureNames names : {FeatureNames::FirstGeneration, FeatureNames::SecondGeneration,
                                     FeatureNames::SecondGenerationMaker}) {
        const FirstSight inProcess = lookAt(ProcessRig(smallModel(names)));
        const FirstSight onNetwork = lookAtUndamaged(smallModel(names));
        EXPECT_EQ(inProcess.settings.toStdString(), onNetwork.settings.toStdString());
        ASSERT_GT(inProcess.image.size(), 0U);
        ASSERT_EQ(inProcess.image.size(), onNetwork.image.size());
        EXPECT_EQ(
            std::memcmp(inProcess.image.data(), onNetwork.image.data(), inProcess.image.size()), 0);
    }
}
