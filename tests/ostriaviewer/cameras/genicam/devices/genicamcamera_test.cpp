// SPDX-License-Identifier: Apache-2.0
// What only a camera behind a cable does.
#include "camerafinder.h"
#include "camerarig.h"
#include "discovery.h"
#include "emulationtest.h"
#include "frameprobe.h"
#include "logrecorder.h"
#include "processcounts.h"
#include "registerstore.h"
#include "servedemulation.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QtEndian>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstring>
#include <future>

using namespace Cameras;
using Emulation::smallModel;
using GenICam::GenicamCamera;

namespace {

class GenicamCameraTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!hasLoopback())
            GTEST_SKIP() << "the system gives no network of its own";
    }

    static auto mode(const HostCameraPtr& camera)
    {
        return camera->parameterCollection()->enumerationParameter(
            QStringLiteral("AcquisitionMode"));
    }
};

/// 73728 bytes an image.
Emulation::CameraModel modelOfSeveralPackets()
{
    Emulation::CameraModel model = smallModel();
    model.sensor.width = 192;
    model.sensor.height = 128;
    return model;
}

/// A served camera with another description.
class Misdescribed final : public Emulation::IServedDevice
{
public:
    Misdescribed(std::shared_ptr<Emulation::IServedDevice> device, std::string description)
        : m_device(std::move(device))
        , m_description(std::move(description))
    {}

    Emulation::ServedIdentity identity() const override { return m_device->identity(); }
    std::string description() const override { return m_description; }
    void setReceiver(Receiver receiver) override { m_device->setReceiver(std::move(receiver)); }
    void stopAcquisition() override { m_device->stopAcquisition(); }
    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        m_device->read(address, data, size);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        m_device->write(address, data, size);
    }

private:
    const std::shared_ptr<Emulation::IServedDevice> m_device;
    const std::string m_description;
};

/// A served camera that says that its images have less bytes than they have.
class Understating final : public Emulation::IServedDevice
{
public:
    Understating(const QSharedPointer<Emulation::EmulatedCamera>& camera, quint64 missing)
        : m_device(Emulation::serveEmulation(camera))
        , m_missing(missing)
    {
        const auto& store = *camera->registers();
        m_address = store.layout().address(store.table()->indexOf(QStringLiteral("PayloadSize")));
    }

    Emulation::ServedIdentity identity() const override { return m_device->identity(); }
    std::string description() const override { return m_device->description(); }
    void setReceiver(Receiver receiver) override { m_device->setReceiver(std::move(receiver)); }
    void stopAcquisition() override { m_device->stopAcquisition(); }
    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        m_device->read(address, data, size);
        if (address == m_address && size == sizeof(quint64))
            qToBigEndian(qFromBigEndian<quint64>(data) - m_missing, data);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        m_device->write(address, data, size);
    }

private:
    const std::shared_ptr<Emulation::IServedDevice> m_device;
    const quint64 m_missing;
    std::uint64_t m_address = 0;
};

struct BrokenDescription
{
    const char* name;
    const char* xml;
    const char* message;
};

class BrokenDescriptionTest : public GenicamCameraTest,
                              public testing::WithParamInterface<BrokenDescription>
{};

} // namespace

TEST_F(GenicamCameraTest, NamesAnAddressAtWhichNobodyAnswers)
{
    const auto camera = GenicamCamera::create(GenICam::cameraAt(QStringLiteral("127.0.0.9")));
    EXPECT_FALSE(camera->open());
    EXPECT_TRUE(camera->lastErrorText().contains(QLatin1String("127.0.0.9")))
        << camera->lastErrorText().toStdString();
    EXPECT_EQ(camera->displayName(), QStringLiteral("127.0.0.9"));
    EXPECT_FALSE(camera->isOpen());
}

TEST_F(GenicamCameraTest, LeavesTheAcquisitionModeAsItWas)
{
    NetworkRig rig(smallModel());
    const HostCameraPtr camera = rig.camera();
    ASSERT_TRUE(camera->open());
    for (const char* entry : {"SingleFrame", "Continuous"}) {
        const QString wanted = QString::fromLatin1(entry);
        mode(camera)->setValue(wanted);
        FrameProbe probe(camera);
        ASSERT_TRUE(camera->grabSingle());
        ASSERT_TRUE(probe.waitFor(1));
        EXPECT_EQ(mode(camera)->value(), wanted);
        ASSERT_TRUE(camera->startGrabbing());
        ASSERT_TRUE(probe.waitFor(3));
        camera->stopGrabbing();
        EXPECT_EQ(mode(camera)->value(), wanted);
    }
}

TEST_F(GenicamCameraTest, PutsTheAcquisitionModeBackWhenNoImageComes)
{
    NetworkRig rig(smallModel());
    const HostCameraPtr camera = rig.camera();
    ASSERT_TRUE(camera->open());
    rig.served().faults().loseFrames(-1);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->grabSingle(100));
    EXPECT_TRUE(becomes([&] { return mode(camera)->value() == QLatin1String("Continuous"); }));
    EXPECT_EQ(probe.count(), 0U);
    rig.served().faults().loseFrames(0);
    ASSERT_TRUE(camera->grabSingle());
    EXPECT_TRUE(probe.waitFor(1));
}

TEST_F(GenicamCameraTest, ShowsWholeImagesAloneWhenHalfOfThePacketsAreLost)
{
    ProcessRig reference(smallModel());
    NetworkRig rig(smallModel());
    for (CameraRig* each : {static_cast<CameraRig*>(&reference), static_cast<CameraRig*>(&rig)}) {
        ASSERT_TRUE(each->camera()->open());
        const auto parameters = each->camera()->parameterCollection();
        parameters->enumerationParameter(QStringLiteral("TestPattern"))
            ->setValue(QStringLiteral("ColorBar"));
    }
    FrameProbe wanted(reference.camera());
    ASSERT_TRUE(reference.camera()->grabSingle());
    ASSERT_TRUE(wanted.waitFor(1));
    const Ostria::COstriaImage whole = wanted.results().front()->image();

    rig.server().losePackets(0.5);
    FrameProbe probe(rig.camera());
    ASSERT_TRUE(rig.camera()->startGrabbing());
    EXPECT_TRUE(becomes([&] {
        const auto statistics = rig.client()->statistics();
        return statistics.damaged > 0 && statistics.delivered + statistics.damaged >= 20;
    }));
    const LogRecorder log;
    rig.camera()->stopGrabbing();
    const auto statistics = rig.client()->statistics();
    EXPECT_GT(statistics.missingPackets, 0U);
    EXPECT_EQ(statistics.delivered, probe.count());
    ASSERT_FALSE(log.entries().isEmpty());
    EXPECT_TRUE(log.entries().first().text.contains(
        QStringLiteral("%1 of %2 images were damaged on their way and left out (")
            .arg(statistics.damaged)
            .arg(statistics.damaged + statistics.overrun + statistics.delivered)))
        << log.entries().first().text.toStdString();
    for (const auto& result : probe.results()) {
        ASSERT_TRUE(result->GrabSucceeded()) << result->errorText();
        ASSERT_EQ(result->image().size(), whole.size());
        EXPECT_EQ(std::memcmp(result->image().data(), whole.data(), whole.size()), 0);
    }
    rig.server().losePackets(0.0);
    const std::size_t before = probe.count();
    ASSERT_TRUE(rig.camera()->grabSingle());
    EXPECT_TRUE(probe.waitFor(before + 1));
}

// A byte less, or a packet. For the library a frame is whole that its trailer ends.
TEST_F(GenicamCameraTest, CountsAndLeavesOutImagesThatEndEarly)
{
    for (const std::size_t missing : {std::size_t{1}, std::size_t{9000}}) {
        NetworkRig rig(modelOfSeveralPackets());
        ASSERT_TRUE(rig.camera()->open());
        rig.server().cutImages(missing);
        FrameProbe probe(rig.camera());
        ASSERT_TRUE(rig.camera()->startGrabbing());
        EXPECT_TRUE(becomes([&] { return rig.client()->statistics().endedEarly >= 3; })) << missing;
        EXPECT_EQ(probe.count(), 0U) << missing;
        EXPECT_EQ(rig.client()->statistics().delivered, 0U) << missing;
        rig.server().cutImages(0);
        ASSERT_TRUE(probe.waitFor(1)) << missing;
        EXPECT_TRUE(probe.results().front()->GrabSucceeded());
        EXPECT_EQ(probe.results().front()->image().size(), 73728U);
    }
}

TEST_F(GenicamCameraTest, AsksForAnotherImageWhereTheOnlyOneEndsEarly)
{
    NetworkRig rig(modelOfSeveralPackets());
    ASSERT_TRUE(rig.camera()->open());
    rig.server().cutImages(1);
    FrameProbe probe(rig.camera());
    ASSERT_TRUE(rig.camera()->grabSingle());
    ASSERT_TRUE(becomes([&] { return rig.client()->statistics().endedEarly > 0; }));
    rig.server().cutImages(0);
    ASSERT_TRUE(probe.waitFor(1));
    EXPECT_TRUE(probe.results().front()->GrabSucceeded());
}

// Where they end, the memory ends that was made for them.
TEST_F(GenicamCameraTest, CountsAndLeavesOutImagesThatAreSmallerThanTheySay)
{
    NetworkRig rig(modelOfSeveralPackets());
    rig.vanish();
    const auto served = rig.served().sharedFromThis().staticCast<Emulation::EmulatedCamera>();
    constexpr std::size_t missing = 20000;
    Emulation::GigeServer server(std::make_shared<Understating>(served, missing),
                                 NetworkRig::address());
    server.cutImages(missing);
    ASSERT_TRUE(rig.camera()->open()) << rig.camera()->lastErrorText().toStdString();
    FrameProbe probe(rig.camera());
    ASSERT_TRUE(rig.camera()->startGrabbing());
    EXPECT_TRUE(becomes([&] { return rig.client()->statistics().endedEarly >= 3; }));
    EXPECT_EQ(probe.count(), 0U);
    const LogRecorder log;
    rig.camera()->close();
    ASSERT_TRUE(becomes([&log] { return !log.entries().isEmpty(); }));
    EXPECT_TRUE(log.entries().constFirst().text.contains(
        QStringLiteral(" images were shorter than the camera says and were left out.")))
        << log.entries().constFirst().text.toStdString();
}

// A receiver that does not come back: no larger packet size helps there.
TEST_F(GenicamCameraTest, TellsImagesThatNobodyTookFromDamagedOnes)
{
    NetworkRig rig(smallModel());
    ASSERT_TRUE(rig.camera()->open());
    QObject::connect(rig.camera().data(), &HostCamera::cameraImageGrabbed, [&] {
        EXPECT_TRUE(becomes([&] { return rig.client()->statistics().overrun > 0; }));
    });
    ASSERT_TRUE(rig.camera()->startGrabbing());
    EXPECT_TRUE(becomes([&] { return rig.client()->statistics().delivered > 0; }));
    const LogRecorder log;
    rig.camera()->stopGrabbing();
    const auto statistics = rig.client()->statistics();
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_EQ(log.entries().first().text.toStdString(),
              rig.camera()->displayName().toStdString() + ": " +
                  std::to_string(statistics.overrun) + " of " +
                  std::to_string(statistics.overrun + statistics.delivered) +
                  " images came faster than this computer takes them and were left out. Set a "
                  "lower frame rate or a smaller image.");
    EXPECT_EQ(log.entries().first().level, Core::Logging::Information);
}

TEST_F(GenicamCameraTest, EndsWhatWasUnderWayWhenItComesBack)
{
    NetworkRig rig(smallModel());
    const HostCameraPtr camera = rig.camera();
    ASSERT_TRUE(camera->open());
    const QString single = QStringLiteral("SingleFrame");
    mode(camera)->setValue(single);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    ASSERT_NE(mode(camera)->value(), single);
    rig.vanish();
    EXPECT_TRUE(becomes([&] { return !camera->isOpen(); }));
    rig.comeBack();
    const LogRecorder log;
    ASSERT_TRUE(becomes([&] { return camera->open(); }));
    EXPECT_EQ(mode(camera)->value(), single);
    EXPECT_TRUE(log.entries().isEmpty()) << log.entries().first().text.toStdString();
}

TEST_F(GenicamCameraTest, HasNoFeaturesAnyMoreWhenItsLossIsTold)
{
    NetworkRig rig(smallModel());
    const HostCameraPtr camera = rig.camera();
    ASSERT_TRUE(camera->open());
    const auto gain = camera->parameterCollection()->floatParameter(QStringLiteral("Gain"));
    ASSERT_TRUE(gain->isAvailable());
    std::promise<bool> isAvailable;
    QObject::connect(rig.client().data(), &HostCamera::cameraConnectionLost,
                     [&] { isAvailable.set_value(gain->isAvailable()); });
    rig.vanish();
    EXPECT_FALSE(isAvailable.get_future().get());
}

TEST_F(GenicamCameraTest, TellsAtItsEndWhatItCouldNotPutBack)
{
    const LogRecorder log;
    QString told;
    {
        NetworkRig rig(smallModel());
        const HostCameraPtr camera = rig.camera();
        ASSERT_TRUE(camera->open());
        mode(camera)->setValue(QStringLiteral("SingleFrame"));
        FrameProbe probe(camera);
        ASSERT_TRUE(camera->startGrabbing());
        ASSERT_TRUE(probe.waitFor(1));
        rig.vanish();
        EXPECT_TRUE(becomes([&] { return !camera->parameterCollection(); }));
        told = QStringLiteral("%1: The acquisition mode could not be put back; set AcquisitionMode "
                              "to \"SingleFrame\".")
                   .arg(camera->displayName());
    }
    EXPECT_TRUE(becomes([&] {
        const auto entries = log.entries();
        return std::any_of(entries.begin(), entries.end(),
                           [&](const LogEntry& entry) { return entry.text == told; });
    }));
}

TEST_F(GenicamCameraTest, TellsOnceWhatItCouldNotPutBackWhereItIsClosedBeforeItsLossIsNoticed)
{
    const LogRecorder log;
    std::atomic<bool> isGone = false;
    {
        NetworkRig rig(smallModel());
        const HostCameraPtr camera = rig.camera();
        QObject::connect(
            camera.data(), &QObject::destroyed, camera.data(), [&isGone] { isGone = true; },
            Qt::DirectConnection);
        ASSERT_TRUE(camera->open());
        mode(camera)->setValue(QStringLiteral("SingleFrame"));
        FrameProbe probe(camera);
        ASSERT_TRUE(camera->startGrabbing());
        ASSERT_TRUE(probe.waitFor(1));
        rig.vanish();
        camera->close();
    }
    ASSERT_TRUE(becomes([&isGone] { return isGone.load(); }));
    const auto entries = log.entries();
    EXPECT_EQ(std::count_if(entries.begin(), entries.end(),
                            [](const LogEntry& entry) {
                                return entry.text.contains(
                                    QLatin1String("set AcquisitionMode to \"SingleFrame\""));
                            }),
              1);
}

// The served camera sends packets of 9000 bytes at most.
TEST_F(GenicamCameraTest, TellsThatTheCameraDoesNotTakeThePacketSize)
{
    NetworkRig rig(smallModel());
    GenICam::TransportSettings settings;
    settings.packetSize = 12000;
    const auto camera = GenicamCamera::create(
        GenICam::cameraAt(QString::fromLatin1(NetworkRig::address())), settings);
    const LogRecorder log;
    ASSERT_TRUE(rig.camera()->open()) << rig.camera()->lastErrorText().toStdString();
    rig.camera()->close();
    EXPECT_TRUE(log.entries().isEmpty()) << "9000 is what it takes";
    ASSERT_TRUE(camera->open()) << camera->lastErrorText().toStdString();
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_EQ(log.entries().first().text.toStdString(),
              "127.0.0.1: the camera does not take packets of 12000 bytes, as the settings want "
              "them; it uses packets of 9000 bytes.");
}

TEST_F(GenicamCameraTest, GivesUpACameraThatDoesNotAnswerAnAccess)
{
    NetworkRig rig(smallModel());
    const HostCameraPtr camera = rig.camera();
    ASSERT_TRUE(camera->open());
    const auto gain = camera->parameterCollection()->floatParameter(QStringLiteral("Gain"));
    rig.vanish();
    EXPECT_FALSE(gain->trySetValue(3.0));
    EXPECT_TRUE(becomes([&] { return !camera->isOpen(); }));
}

// Threads end a little later than what they were for.
TEST_F(GenicamCameraTest, OpensAndClosesManyTimesAndLeavesNeitherThreadsNorFilesBehind)
{
    NetworkRig rig(smallModel());
    const HostCameraPtr camera = rig.camera();
    constexpr int warmUp = 5; // the library keeps what it has once had
    int threadsBefore = 0;
    int filesBefore = 0;
    for (int round = -warmUp; round < 100; ++round) {
        if (round == 0) {
            threadsBefore = threadCount();
            filesBefore = openFileCount();
        }
        ASSERT_TRUE(camera->open()) << round << ": " << camera->lastErrorText().toStdString();
        FrameProbe probe(camera);
        ASSERT_TRUE(camera->grabSingle());
        ASSERT_TRUE(probe.waitFor(1)) << round;
        camera->close();
        ASSERT_FALSE(camera->isOpen());
    }
    EXPECT_TRUE(becomes([&] { return threadCount() <= threadsBefore; }))
        << threadCount() << " and " << threadsBefore;
    EXPECT_TRUE(becomes([&] { return openFileCount() <= filesBefore; }))
        << openFileCount() << " and " << filesBefore;
}

// The library asks again after half a second each.
TEST_F(GenicamCameraTest, IsNotItsOwnRivalWhereTheCameraHearsLateThatItIsGivenBack)
{
    NetworkRig rig(smallModel());
    const HostCameraPtr camera = rig.camera();
    ASSERT_TRUE(camera->open());
    rig.server().loseReleases(2);
    camera->close();
    EXPECT_TRUE(camera->open()) << camera->lastErrorText().toStdString();
}

TEST_F(GenicamCameraTest, WorksWithoutFeaturesThatOthersHave)
{
    NetworkRig rig(smallModel(), {QStringLiteral("AcquisitionMode"), QStringLiteral("Gain")});
    const HostCameraPtr camera = rig.camera();
    ASSERT_TRUE(camera->open());
    EXPECT_TRUE(camera->parameterCollection()->floatParameter(QStringLiteral("Gain"))->isEmpty());
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->grabSingle());
    ASSERT_TRUE(probe.waitFor(1));
    EXPECT_TRUE(probe.results().front()->GrabSucceeded());
}

TEST_F(GenicamCameraTest, NamesTheFeatureThatItCannotGrabWithout)
{
    for (const char* feature : {"PayloadSize", "AcquisitionStart"}) {
        NetworkRig rig(smallModel(), {QString::fromLatin1(feature)});
        const HostCameraPtr camera = rig.camera();
        ASSERT_TRUE(camera->open());
        EXPECT_FALSE(camera->grabSingle());
        EXPECT_TRUE(camera->lastErrorText().contains(QLatin1String(feature)))
            << camera->lastErrorText().toStdString();
        EXPECT_FALSE(camera->isGrabbing());
    }
}

TEST_P(BrokenDescriptionTest, IsRefusedWithAReason)
{
    NetworkRig rig(smallModel());
    rig.vanish();
    QTemporaryDir folder;
    Emulation::EmulationOptions options;
    options.settingsFolder = folder.path();
    options.hasTransport = true;
    const auto served = Emulation::EmulatedCamera::create(smallModel(), options);
    ASSERT_TRUE(served->open());
    const Emulation::GigeServer server(
        std::make_shared<Misdescribed>(Emulation::serveEmulation(served), GetParam().xml),
        NetworkRig::address());
    const LogRecorder log;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(rig.camera()->open());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(rig.camera()->lastErrorText().toStdString(), GetParam().message);
    const QString faulty =
        QStringLiteral("The description of the camera \"127.0.0.1\" is faulty: ");
    for (const LogEntry& entry : log.entries())
        EXPECT_TRUE(entry.text.startsWith(faulty)) << entry.text.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, BrokenDescriptionTest,
    testing::Values(
        BrokenDescription{"CutOff", "<RegisterDescription><Category",
                          "The camera's description cannot be used: line 1: Premature end of "
                          "document."},
        BrokenDescription{"NoDescription", "<html></html>",
                          "The description of the camera \"127.0.0.1\" cannot be used (Invalid "
                          "Genicam data)."},
        BrokenDescription{"NoXml", "hello",
                          "The description of the camera \"127.0.0.1\" cannot be used (Invalid "
                          "Genicam data)."},
        BrokenDescription{"NoTree", "<RegisterDescription></RegisterDescription>",
                          "The camera's description cannot be used: it has no feature tree."}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(GenicamCameraTest, RefusesARegisterThatTheCameraDoesNotHave)
{
    NetworkRig rig(smallModel());
    rig.vanish();
    std::string xml = rig.served().description();
    const std::string place = "<FloatReg Name=\"Gain_Register\">";
    const std::size_t at = xml.find("<Address>", xml.find(place)) + std::strlen("<Address>");
    xml.replace(at, xml.find('<', at) - at, "0x7ffff0");
    const Emulation::GigeServer server(
        std::make_shared<Misdescribed>(
            Emulation::serveEmulation(
                rig.served().sharedFromThis().staticCast<Emulation::EmulatedCamera>()),
            xml),
        NetworkRig::address());
    ASSERT_TRUE(rig.camera()->open()) << rig.camera()->lastErrorText().toStdString();
    const auto gain = rig.camera()->parameterCollection()->floatParameter(QStringLiteral("Gain"));
    try {
        gain->value();
        FAIL() << "there is no such register";
    } catch (const std::exception& error) {
        EXPECT_NE(std::string(error.what()).find("Gain"), std::string::npos) << error.what();
    }
    EXPECT_TRUE(rig.camera()->isOpen());
}

TEST_F(GenicamCameraTest, IsFoundByItsNamesOnTheInterfacesThatAreAllowed)
{
    NetworkRig rig(smallModel());
    GenICam::TransportSettings settings;
    EXPECT_TRUE(GenICam::findNetworkCameras(settings, std::chrono::milliseconds(50)).isEmpty());
    settings.interfaces = QStringList{QStringLiteral("lo")};
    const auto cameras = GenICam::findNetworkCameras(settings);
    ASSERT_EQ(cameras.size(), 1);
    EXPECT_EQ(cameras.front().id, QString::fromLatin1(NetworkRig::address()));
    EXPECT_EQ(cameras.front().modelName, smallModel().name);
    EXPECT_EQ(cameras.front().serialNumber, smallModel().serialNumber);
}

TEST_F(GenicamCameraTest, IsFoundWhileTheProgramGoesOn)
{
    int count = 0;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    QCoreApplication application(count, arguments);
    NetworkRig rig(smallModel());
    GenICam::TransportSettings settings;
    settings.interfaces = QStringList{QStringLiteral("lo")};
    GenICam::CameraFinder finder;
    QVector<GenICam::CameraIdentity> cameras;
    QEventLoop loop;
    QObject::connect(&finder, &GenICam::CameraFinder::found, &loop, [&](const auto& found) {
        cameras = found;
        loop.quit();
    });
    finder.start(settings);
    EXPECT_TRUE(cameras.isEmpty());
    loop.exec();
    ASSERT_FALSE(cameras.isEmpty());
    EXPECT_EQ(cameras.front().modelName, smallModel().name);
}
