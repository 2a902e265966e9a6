// SPDX-License-Identifier: Apache-2.0
// Tests of frames that there is no memory for.
#include "allocationfailure.h"
#include "convertingimagecamera.h"
#include "fakecamera.h"
#include "logrecorder.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <utility>

using ColorCalibration::ConvertingImageCamera;
using ColorCalibration::Image;

namespace {

constexpr int width = 250;
constexpr int height = 130;

class ConvertingImageCameraMemory : public testing::TestWithParam<std::pair<std::size_t, QString>>
{
protected:
    ConvertingImageCameraMemory() { m_converting.AttachCamera(m_camera); }

    void nextFrameShows(std::uint8_t level)
    {
        m_camera->nextImage = [level] {
            Ostria::COstriaImage mono(Ostria::PixelType::Mono8, width, height);
            std::fill_n(mono.writableData(), width * height, level);
            return mono;
        };
    }

    /// What a camera that is grabbing has as its newest image.
    int newestLevel()
    {
        m_camera->grabbing = true;
        Image image;
        EXPECT_TRUE(m_converting.GrabSingle(image, true));
        return image.isValid() ? image.cameraImage().readPixel(0, 0).red >> 8 : -1;
    }

    QSharedPointer<FakeCamera> m_camera = QSharedPointer<FakeCamera>::create();
    ConvertingImageCamera m_converting;
};

TEST_P(ConvertingImageCameraMemory, AFrameThatHasNoRoomIsLoggedAndDropped)
{
    nextFrameShows(40);
    m_camera->deliver();
    const LogRecorder log;
    const QSignalSpy announced(&m_converting, &ConvertingImageCamera::imageGrabbed);
    nextFrameShows(90);
    {
        const AllocationFailure failure(GetParam().first);
        m_camera->deliver();
        ASSERT_EQ(failure.count(), 1);
    }
    EXPECT_EQ(announced.count(), 0);
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_EQ(log.entries().first().level, 0);
    EXPECT_EQ(log.entries().first().category,
              "ostria.viewer.plugins.colorCalibration.convertingImageCamera");
    EXPECT_EQ(log.entries().first().text, GetParam().second);
    EXPECT_EQ(newestLevel(), 40) << "the frame before stands";

    m_camera->deliver();
    EXPECT_EQ(announced.count(), 1) << "there is room again";
    EXPECT_EQ(newestLevel(), 90);
}

// Three channels of 16 bits for measuring, four of 8 bits for the screen; at this width neither has
// padding.
INSTANTIATE_TEST_SUITE_P(
    Images, ConvertingImageCameraMemory,
    testing::Values(std::make_pair(std::size_t{width} * height * 6,
                                   QStringLiteral("Failed to convert the rgb16 image")),
                    std::make_pair(std::size_t{width} * height * 4,
                                   QStringLiteral("Failed to convert the rgb8 image"))));

} // namespace
