// SPDX-License-Identifier: Apache-2.0
// Plugins that ask the camera that they are told of do not hold up the windows.
#include "genicamexception.h"
#include "iparameterservice.h"
#include "networkviewertest.h"

#include <algorithm>

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

class CalibratorsQuestion : public NetworkViewerTest
{
protected:
    bool isCommandShown()
    {
        const QList<QAction*> tools = child<QMenu>("toolsMenu")->actions();
        return std::any_of(tools.begin(), tools.end(), [](const QAction* action) {
            return action->text() == "Color Calibrator" && action->isVisible();
        });
    }

    QStringList questionsThatFailed()
    {
        QStringList texts;
        const MessageLogModel& messages = m_viewer->messages();
        for (int row = 0; row < messages.rowCount(); ++row)
            if (messages.message(row).text.contains("isCameraSupported"))
                texts.append(messages.message(row).text);
        return texts;
    }
};

TEST_F(CalibratorsQuestion, IsAnsweredInTheEndAndItsFailuresAreToldOnce)
{
    startViewer(CALIBRATOR_FOLDER);
    ASSERT_TRUE(isFound());
    openNetworkCamera();
    ASSERT_TRUE(waitUntil([this] { return isCommandShown(); }));
    const auto camera = window().commands().camera();
    clickCamera(0);
    ASSERT_FALSE(isCommandShown());
    const auto selector =
        m_viewer->registry()->find<Plugin::CameraSelector::IDeviceSelectorService>();
    int questions = 0;
    QObject::connect(selector.data(),
                     &Plugin::CameraSelector::IDeviceSelectorService::selectionChanged, &window(),
                     [&questions] { ++questions; });
    m_rig.hold();
    clickItem(networkItem());
    ASSERT_TRUE(waitUntil([&] { return questions == 2; }));
    EXPECT_FALSE(isCommandShown());
    m_rig.letGo();
    EXPECT_TRUE(waitUntil([this] { return isCommandShown(); }));
    const QStringList failures = questionsThatFailed();
    ASSERT_EQ(failures.size(), 1) << qPrintable(failures.join('\n'));
    EXPECT_TRUE(
        failures.constFirst().contains(camera->displayName() + ": DeviceColorPipelineVersion: "))
        << qPrintable(failures.constFirst());
}

} // namespace
} // namespace Viewer
