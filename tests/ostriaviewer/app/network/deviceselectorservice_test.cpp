// SPDX-License-Identifier: Apache-2.0
// Plugins that ask the camera that they are told of do not hold up the windows.
#include "genicamexception.h"
#include "iparameterservice.h"
#include "networkviewertest.h"

namespace Viewer {
namespace {

using Core::CameraPoolComponents::DeviceBaseInfoPtr;

/// With a plugin that asks each camera for its gain.
class DeviceSelectorServiceTest : public NetworkViewerTest
{
protected:
    template <class Service, class Signal>
    void askAt(Signal signal)
    {
        const auto service = m_viewer->registry()->find<Service>();
        QObject::connect(service.data(), signal, &m_plugin,
                         [this](const DeviceBaseInfoPtr& device) { ask(device); });
    }

    void ask(const DeviceBaseInfoPtr& device)
    {
        const auto service =
            m_viewer->registry()->find<Plugin::ParameterCollectionPool::IParameterService>();
        const auto parameters = service->parameterCollection(
            device.dynamicCast<Core::CameraPoolComponents::ICameraInfo>());
        ++m_questions;
        m_hasAnswered = false;
        try {
            m_hasAnswered = parameters && parameters->floatParameter("Gain")->value() == 0.0;
        } catch (const GenICam::RuntimeException&) {
            EXPECT_TRUE(parameters);
        }
    }

    QObject m_plugin;
    int m_questions = 0;
    bool m_hasAnswered = false;
};

// Whoever waited for its answer would find it lost.
TEST_F(DeviceSelectorServiceTest, DoesNotWaitForACameraThatIsSelectedAndTellsOfItAgain)
{
    startViewer();
    ASSERT_TRUE(isFound());
    openNetworkCamera();
    const auto camera = window().commands().camera();
    clickCamera(0);
    askAt<Plugin::CameraSelector::IDeviceSelectorService>(
        &Plugin::CameraSelector::IDeviceSelectorService::selectionChanged);
    m_rig.hold();
    clickItem(networkItem());
    EXPECT_EQ(m_questions, 1);
    EXPECT_FALSE(m_hasAnswered);
    EXPECT_TRUE(camera->isOpen());
    m_rig.letGo();
    EXPECT_TRUE(waitUntil([this] { return m_hasAnswered; }));
    EXPECT_EQ(window().commands().camera(), camera);
}

TEST_F(DeviceSelectorServiceTest, DoesNotWaitForACameraThatHasJustBeenOpened)
{
    startViewer();
    ASSERT_TRUE(isFound());
    clickItem(networkItem());
    const auto status = m_viewer->registry()->find<Plugin::CameraPool::ICameraStatusService>();
    QObject::connect(status.data(), &Plugin::CameraPool::IDeviceStatusService::deviceOpened,
                     &m_plugin, [this] { m_rig.hold(); });
    askAt<Plugin::CameraPool::ICameraStatusService>(
        &Plugin::CameraPool::IDeviceStatusService::deviceOpened);
    askAt<Plugin::CameraSelector::IDeviceSelectorService>(
        &Plugin::CameraSelector::IDeviceSelectorService::selectionChanged);
    window().commands().openAction()->trigger();
    EXPECT_EQ(m_questions, 1);
    EXPECT_FALSE(m_hasAnswered);
    EXPECT_TRUE(window().commands().camera()->isOpen());
    m_rig.letGo();
    EXPECT_TRUE(waitUntil([this] { return m_hasAnswered; }));
}

TEST_F(DeviceSelectorServiceTest, TellsOnceOfACameraThatAnswers)
{
    startViewer();
    ASSERT_TRUE(isFound());
    openNetworkCamera();
    clickCamera(0);
    askAt<Plugin::CameraSelector::IDeviceSelectorService>(
        &Plugin::CameraSelector::IDeviceSelectorService::selectionChanged);
    clickItem(networkItem());
    EXPECT_TRUE(m_hasAnswered);
    EXPECT_EQ(m_questions, 1);
}

} // namespace
} // namespace Viewer
