// SPDX-License-Identifier: Apache-2.0
// The live image of an emulated camera, through the model.
#include "livewindow.h"

#include "camerapool.h"
#include "colorcorrectionmodel.h"
#include "emulationtest.h"

#include <QSet>

using namespace Cameras::Emulation;

namespace {

class LiveImageOfAnEmulatedCamera : public EmulationTest
{
protected:
    void SetUp() override
    {
        m_camera = makeCamera(smallModel());
        m_pool = std::make_unique<Cameras::CameraPool>(QList<Cameras::HostCameraPtr>{m_camera});
        m_pool->registerServices(m_registry);
        m_model.SetCameraStatusService(&m_pool->statusService());
        m_control = m_registry.find<Plugin::CameraPool::ICameraControlService>();
        m_model.SetCameraControlService(m_control.data());
        ASSERT_TRUE(m_model.Open(m_camera));
        m_item.setInterval(0);
        m_item.setFrameSize(QSize(160, 120));
        m_window = std::make_unique<LiveWindow>(m_item);
        ASSERT_TRUE(m_window->isReady());
    }

    void TearDown() override
    {
        m_item.stopGrab();
        m_window.reset();
        m_model.Close();
    }

    /// How many colors the window shows.
    int colors()
    {
        QSet<QRgb> different;
        const QImage seen = m_window->seen();
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                different.insert(seen.pixel(x, y));
        return different.size();
    }

    LogRecorder m_log;
    Core::Service::CServiceRegistry m_registry;
    QSharedPointer<EmulatedCamera> m_camera;
    std::unique_ptr<Cameras::CameraPool> m_pool;
    QSharedPointer<Plugin::CameraPool::ICameraControlService> m_control;
    ColorCalibration::ColorCorrectionModel m_model;
    ColorCalibration::QMLOstriaCamera m_item{&m_model};
    std::unique_ptr<LiveWindow> m_window;
};

TEST_F(LiveImageOfAnEmulatedCamera, IsOnTheScreen)
{
    const QSignalSpy images(&m_item, &ColorCalibration::QMLOstriaCamera::imageChanged);
    m_item.startGrab();
    // A scene of 24 patches and their noise; logo, indicator and background have far fewer colors.
    EXPECT_TRUE(eventually([&] { return images.count() >= 5 && colors() > 200; }));
    EXPECT_EQ(m_item.originalSize(), QSize(96, 64));
}

TEST_F(LiveImageOfAnEmulatedCamera, IsTheLogoOnceTheCameraIsLost)
{
    constexpr QRgb white = 0xffffffff;
    constexpr QRgb logoColor = 0xffff00ff;
    const QSignalSpy removed(&m_model, &ColorCalibration::ColorCorrectionModel::cameraRemoved);
    m_item.startGrab();
    ASSERT_TRUE(eventually([&] { return colors() > 200; }));
    m_camera->faults().loseConnectionAfter(1);
    EXPECT_TRUE(m_window->waitForPixel(QPoint(80, 60), logoColor));
    EXPECT_TRUE(m_window->waitForPixel(QPoint(2, 2), white));
    EXPECT_TRUE(eventually([&] { return removed.count() > 0; }));
    EXPECT_EQ(removed.count(), 1);
}

} // namespace
