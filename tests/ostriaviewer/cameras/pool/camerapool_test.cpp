// SPDX-License-Identifier: Apache-2.0
// The host's services do with cameras what they promise.
#include "camerahandle.h"
#include "camerapool.h"
#include "emulationtest.h"
#include "frameprobe.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <atomic>
#include <thread>

namespace Cameras {
namespace {

using namespace Plugin::CameraPool;
using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::CameraPtr;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;
using Emulation::EmulatedCamera;
using Plugin::ParameterCollectionPool::IParameterService;

class CameraPoolTest : public Emulation::EmulationTest
{
protected:
    CameraPoolTest()
        : m_first(makeCamera(Emulation::smallModel(Emulation::FeatureNames::FirstGeneration)))
        , m_second(makeCamera(Emulation::smallModel()))
        , m_pool({m_first, m_second})
    {
        m_pool.registerServices(m_registry);
        m_status = m_registry.find<ICameraStatusService>();
        m_control = m_registry.find<ICameraControlService>();
        QObject::connect(m_status.data(), &ICameraStatusService::deviceOpened,
                         [this](const DeviceBaseInfoPtr& device) { m_opened.append(device); });
        QObject::connect(m_status.data(), &ICameraStatusService::cameraConnectionLost,
                         m_status.data(), [this](const CameraInfoPtr& camera) {
                             m_lost.append(camera);
                             m_loop.quit();
                         });
    }

    // Lets the event loop run until a connection is lost.
    void waitForLoss()
    {
        QTimer::singleShot(patience, &m_loop, &QEventLoop::quit);
        if (m_lost.isEmpty())
            m_loop.exec();
    }

    int m_argumentCount = 1;
    char m_program[5] = "test";
    char* m_arguments = m_program;
    QCoreApplication m_application{m_argumentCount, &m_arguments};
    Core::Service::CServiceRegistry m_registry;
    QSharedPointer<EmulatedCamera> m_first;
    QSharedPointer<EmulatedCamera> m_second;
    CameraPool m_pool;
    QSharedPointer<ICameraStatusService> m_status;
    QSharedPointer<ICameraControlService> m_control;
    QList<DeviceBaseInfoPtr> m_opened;
    QList<CameraInfoPtr> m_lost;
    QEventLoop m_loop;
};

TEST_F(CameraPoolTest, AllServicesStandInTheRegistry)
{
    EXPECT_TRUE(m_registry.find<ICameraEnumerationService>());
    EXPECT_TRUE(m_registry.find<ICameraStatusService>());
    EXPECT_TRUE(m_registry.find<IDeviceStatusService>());
    EXPECT_TRUE(m_registry.find<ICameraControlService>());
    EXPECT_TRUE(m_registry.find<ICameraStreamControlService>());
    EXPECT_TRUE(m_registry.find<IParameterService>());
}

TEST_F(CameraPoolTest, TakesItsServicesAlongAndClosesItsCameras)
{
    Core::Service::CServiceRegistry registry;
    const auto camera = makeCamera(Emulation::smallModel());
    {
        CameraPool pool({camera});
        pool.registerServices(registry);
        ASSERT_TRUE(pool.open(camera));
        EXPECT_EQ(registry.services().size(), 5);
    }
    EXPECT_TRUE(registry.services().isEmpty());
    EXPECT_FALSE(camera->isOpen());
}

TEST_F(CameraPoolTest, ListsCamerasByGroup)
{
    const auto groups = m_registry.find<ICameraEnumerationService>()->deviceGroups();
    ASSERT_EQ(groups.size(), 1);
    EXPECT_FALSE(groups.first().name.isEmpty());
    ASSERT_EQ(groups.first().cameras.size(), 2);
    EXPECT_EQ(groups.first().cameras[0], CameraInfoPtr(m_first));
    EXPECT_EQ(groups.first().cameras[1], CameraInfoPtr(m_second));
    EXPECT_TRUE(groups.first().cameras[1].dynamicCast<Core::CameraPoolComponents::ICamera>());
}

TEST_F(CameraPoolTest, OpeningIsTold)
{
    ASSERT_TRUE(m_pool.open(m_first));
    ASSERT_TRUE(m_pool.open(m_first)); // was open
    ASSERT_EQ(m_opened.size(), 1);
    EXPECT_EQ(m_opened.first(), DeviceBaseInfoPtr(m_first));
    const CameraPtr handle = m_control->openWithExclusiveAccess(m_second);
    ASSERT_TRUE(handle);
    ASSERT_EQ(m_opened.size(), 2);
    EXPECT_EQ(m_opened.last(), DeviceBaseInfoPtr(m_second));
}

TEST_F(CameraPoolTest, FailedOpeningIsNotTold)
{
    m_first->faults().setTakenByAnother(true);
    EXPECT_FALSE(m_pool.open(m_first));
    EXPECT_FALSE(m_control->openWithExclusiveAccess(m_first));
    EXPECT_TRUE(m_opened.isEmpty());
    EXPECT_FALSE(m_first->lastErrorText().isEmpty());
    m_first->faults().setTakenByAnother(false);
    EXPECT_TRUE(m_control->openWithExclusiveAccess(m_first)); // the rights came back
}

TEST_F(CameraPoolTest, StatusFollowsTheCamera)
{
    EXPECT_FALSE(m_status->isCameraOpen(m_first));
    EXPECT_FALSE(m_status->isAcquiringOrRecording(m_first));
    ASSERT_TRUE(m_pool.open(m_first));
    EXPECT_TRUE(m_status->isCameraOpen(m_first));
    ASSERT_TRUE(m_first->startGrabbing());
    EXPECT_TRUE(m_status->isAcquiringOrRecording(m_first));
    EXPECT_FALSE(m_status->isAcquiringOrRecording(m_second));
    m_registry.find<ICameraStreamControlService>()->stopAllAcquisitionsAndRecordings();
    EXPECT_FALSE(m_status->isAcquiringOrRecording(m_first));
    EXPECT_TRUE(m_status->isCameraOpen(m_first));
    m_first->close();
    EXPECT_FALSE(m_status->isCameraOpen(m_first));
}

TEST_F(CameraPoolTest, OnlyOneHasExclusiveAccess)
{
    ASSERT_TRUE(m_pool.open(m_first));
    CameraPtr handle = m_control->getExclusiveAccess(m_first);
    ASSERT_TRUE(handle);
    EXPECT_FALSE(m_control->getExclusiveAccess(m_first));
    EXPECT_FALSE(m_first->lastErrorText().isEmpty());
    EXPECT_TRUE(m_status->isCameraOpen(handle));
    handle.reset();
    EXPECT_TRUE(m_first->isOpen());
    EXPECT_TRUE(m_control->getExclusiveAccess(m_first));
}

TEST_F(CameraPoolTest, AccessToAClosedOrAnOpenCameraIsAskedForInItsWay)
{
    EXPECT_FALSE(m_control->getExclusiveAccess(m_first));
    EXPECT_FALSE(m_first->lastErrorText().isEmpty());
    ASSERT_TRUE(m_pool.open(m_first));
    m_first->clearLastError();
    EXPECT_FALSE(m_control->openWithExclusiveAccess(m_first));
    EXPECT_FALSE(m_first->lastErrorText().isEmpty());
    EXPECT_TRUE(m_first->isOpen());
}

TEST_F(CameraPoolTest, AHandleAnswersForItsCamera)
{
    const CameraPtr handle = m_control->openWithExclusiveAccess(m_first);
    ASSERT_TRUE(handle);
    EXPECT_NE(handle.data(), m_first.data());
    EXPECT_EQ(handle->modelName(), m_first->modelName());
    EXPECT_TRUE(handle->isOpen());
    EXPECT_EQ(handle->parameterCollection(), m_first->parameterCollection());
    FrameProbe probe(handle);
    FrameProbe hostProbe(m_first);
    ASSERT_TRUE(handle->grabSingle());
    ASSERT_TRUE(probe.waitFor(1));
    ASSERT_TRUE(hostProbe.waitFor(1));
    EXPECT_EQ(probe.camera(), CameraInfoPtr(m_first));
    ASSERT_TRUE(handle->grabSingle(60000));
    ASSERT_TRUE(probe.waitFor(2));
    ASSERT_TRUE(handle->startGrabbing());
    EXPECT_TRUE(handle->isGrabbing());
    ASSERT_TRUE(probe.waitFor(4));
    handle->stopGrabbing();
    EXPECT_FALSE(handle->isGrabbing());
    m_control->close(handle);
    EXPECT_FALSE(handle->isOpen());
    EXPECT_FALSE(m_first->isOpen());
}

TEST_F(CameraPoolTest, OthersCannotGrabWhileAHandleLives)
{
    CameraPtr handle = m_control->openWithExclusiveAccess(m_first);
    EXPECT_FALSE(m_first->startGrabbing());
    EXPECT_FALSE(m_first->grabSingle());
    EXPECT_FALSE(m_first->grabSingle(100));
    handle.reset();
    EXPECT_TRUE(m_first->startGrabbing());
}

TEST_F(CameraPoolTest, TheEndOfAHandleEndsWhatItGrabbed)
{
    CameraPtr handle = m_control->openWithExclusiveAccess(m_first);
    ASSERT_TRUE(handle->startGrabbing());
    handle.reset();
    EXPECT_FALSE(m_first->isGrabbing());
    EXPECT_TRUE(m_first->isOpen());
}

TEST_F(CameraPoolTest, TheEndOfAHandleLeavesWhatTheHostGrabs)
{
    ASSERT_TRUE(m_pool.open(m_first));
    ASSERT_TRUE(m_first->startGrabbing());
    CameraPtr handle = m_control->getExclusiveAccess(m_first);
    ASSERT_TRUE(handle);
    EXPECT_TRUE(handle->isGrabbing());
    handle.reset();
    EXPECT_TRUE(m_first->isGrabbing());
}

TEST_F(CameraPoolTest, AHandleMayOutliveThePoolsInterest)
{
    CameraPtr handle = m_control->openWithExclusiveAccess(m_first);
    m_control->close(m_first);
    EXPECT_FALSE(handle->startGrabbing());
    EXPECT_FALSE(handle->parameterCollection());
    EXPECT_FALSE(m_control->openWithExclusiveAccess(m_first)); // its rights still stand
    handle.reset();
    EXPECT_TRUE(m_control->openWithExclusiveAccess(m_first));
}

TEST_F(CameraPoolTest, TheControlServiceClosesOnlyWhatItHasOpened)
{
    ASSERT_TRUE(m_pool.open(m_first));
    CameraPtr handle = m_control->getExclusiveAccess(m_first);
    ASSERT_TRUE(handle);
    m_control->close(m_first);
    m_control->close(handle);
    EXPECT_TRUE(m_first->isOpen()) << "the host's";

    ASSERT_TRUE(m_second->open()); // by nobody's service
    m_control->close(m_second);
    EXPECT_TRUE(m_second->isOpen());
}

TEST_F(CameraPoolTest, ACameraThatTheHostOpensAgainIsTheHosts)
{
    CameraPtr handle = m_control->openWithExclusiveAccess(m_first);
    ASSERT_TRUE(handle);
    m_first->close();
    ASSERT_TRUE(m_pool.open(m_first));
    m_control->close(handle);
    EXPECT_TRUE(m_first->isOpen());
    handle.reset();

    m_first->close();
    handle = m_control->openWithExclusiveAccess(m_first);
    ASSERT_TRUE(handle);
    m_control->close(m_first);
    EXPECT_FALSE(m_first->isOpen()) << "opened by the service again";
}

TEST_F(CameraPoolTest, ALostConnectionIsToldInTheServicesThread)
{
    ASSERT_TRUE(m_pool.open(m_second));
    const CameraPtr handle = m_control->getExclusiveAccess(m_second);
    std::atomic<int> handleLosses = 0;
    QObject::connect(handle.data(), &Core::CameraPoolComponents::ICamera::cameraConnectionLost,
                     [&] { ++handleLosses; });
    std::thread([this] { m_second->loseConnection(); }).join();
    EXPECT_EQ(handleLosses, 1);
    EXPECT_TRUE(m_lost.isEmpty()); // not on the other thread
    waitForLoss();
    ASSERT_EQ(m_lost.size(), 1);
    EXPECT_EQ(m_lost.first(), CameraInfoPtr(m_second));
    EXPECT_FALSE(handle->isOpen());
}

TEST_F(CameraPoolTest, ParametersAreThereWhileTheCameraIsOpen)
{
    const auto service = m_registry.find<IParameterService>();
    EXPECT_FALSE(service->parameterCollection(m_first));
    ASSERT_TRUE(m_pool.open(m_first));
    const auto features = service->parameterCollection(m_first);
    ASSERT_TRUE(features);
    EXPECT_EQ(features->integerParameter(QStringLiteral("DeviceColorPipelineVersion"))->value(), 1);
    m_first->close();
    EXPECT_FALSE(service->parameterCollection(m_first));
}

TEST_F(CameraPoolTest, ARecordedCameraIsBusyUntilItsRecorderSaysThatItHasEnded)
{
    int asked = 0;
    m_pool.recordings()->begin(m_first.data(), [&asked] { ++asked; });
    EXPECT_TRUE(m_status->isAcquiringOrRecording(m_first));
    EXPECT_FALSE(m_status->isAcquiringOrRecording(m_second));
    m_registry.find<ICameraStreamControlService>()->stopAllAcquisitionsAndRecordings();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(m_status->isAcquiringOrRecording(m_first));
    m_pool.recordings()->end(m_first.data());
    EXPECT_FALSE(m_status->isAcquiringOrRecording(m_first));
}

TEST_F(CameraPoolTest, ARecordingMayEndWhenItIsAskedTo)
{
    m_pool.recordings()->begin(m_first.data(),
                               [this] { m_pool.recordings()->end(m_first.data()); });
    m_registry.find<ICameraStreamControlService>()->stopAllAcquisitionsAndRecordings();
    EXPECT_FALSE(m_status->isAcquiringOrRecording(m_first));
}

TEST_F(CameraPoolTest, CamerasTellOfEachChangeOfTheirState)
{
    QStringList told;
    const auto note = [&] {
        told.append(!m_first->isOpen()      ? QStringLiteral("closed")
                    : m_first->isGrabbing() ? QStringLiteral("grabbing")
                                            : QStringLiteral("open"));
    };
    QObject::connect(m_first.data(), &HostCamera::stateChanged, note);
    m_pool.open(m_first);
    m_pool.open(m_first);
    m_first->startGrabbing();
    m_first->stopGrabbing();
    m_first->stopGrabbing();
    m_first->close();
    m_first->close();
    EXPECT_EQ(told, (QStringList{QStringLiteral("open"), QStringLiteral("grabbing"),
                                 QStringLiteral("open"), QStringLiteral("closed")}));
}

TEST_F(CameraPoolTest, NullCamerasAreRefused)
{
    EXPECT_FALSE(m_status->isCameraOpen({}));
    EXPECT_FALSE(m_status->isAcquiringOrRecording({}));
    EXPECT_FALSE(m_control->getExclusiveAccess({}));
    EXPECT_FALSE(m_control->openWithExclusiveAccess({}));
    m_control->close({});
    EXPECT_FALSE(m_registry.find<IParameterService>()->parameterCollection({}));
}

} // namespace
} // namespace Cameras
