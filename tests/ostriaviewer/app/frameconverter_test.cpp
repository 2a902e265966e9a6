// SPDX-License-Identifier: Apache-2.0
// Frames become pictures, the newest counts, and nothing comes late.
#include "framebuffers.h"
#include "frameconverter.h"

#include <QTest>

#include <memory>

#include <gtest/gtest.h>

namespace Viewer {
namespace {

using Ostria::CGrabResult;
using Ostria::COstriaImage;
using Ostria::PixelType;

/// A picture of one color; the number is the frame's.
Ostria::CGrabResultPtr frame(std::uint64_t number, std::uint8_t red = 10, std::uint8_t green = 20,
                             std::uint8_t blue = 30)
{
    COstriaImage image(PixelType::RGB8, 8, 4);
    std::uint8_t* pixels = image.writableData();
    for (int pixel = 0; pixel < 8 * 4; ++pixel) {
        pixels[3 * pixel] = red;
        pixels[3 * pixel + 1] = green;
        pixels[3 * pixel + 2] = blue;
    }
    return std::make_shared<CGrabResult>(image, number);
}

class FrameConverterTest : public testing::Test
{
protected:
    FrameConverterTest()
    {
        QObject::connect(&m_converter, &FrameConverter::frameReady,
                         [this](const LiveFrame& ready) { m_frames.append(ready); });
    }

    bool waitFor(std::uint64_t number)
    {
        return QTest::qWaitFor(
            [=] { return !m_frames.isEmpty() && m_frames.constLast().number == number; }, 60000);
    }

    QList<LiveFrame> m_frames;
    FrameConverter m_converter;
};

TEST_F(FrameConverterTest, ConvertsColorsAndSize)
{
    m_converter.openInlet()(frame(1));
    ASSERT_TRUE(waitFor(1));
    const QImage picture = m_frames.constLast().picture;
    EXPECT_EQ(picture.size(), QSize(8, 4));
    EXPECT_EQ(picture.pixelColor(7, 3), QColor(10, 20, 30));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(10, 20, 30));
}

TEST_F(FrameConverterTest, HandsOverTheLastOfManyFrames)
{
    const auto inlet = m_converter.openInlet();
    for (std::uint64_t number = 1; number <= 1000; ++number)
        inlet(frame(number));
    ASSERT_TRUE(waitFor(1000));
    EXPECT_LT(m_frames.size(), 1000);
    for (int index = 1; index < m_frames.size(); ++index)
        EXPECT_LT(m_frames[index - 1].number, m_frames[index].number);
}

TEST_F(FrameConverterTest, TellsWhyAFrameFailed)
{
    m_converter.openInlet()(std::make_shared<CGrabResult>("incomplete", 3));
    ASSERT_TRUE(waitFor(3));
    EXPECT_TRUE(m_frames.constLast().picture.isNull());
    EXPECT_EQ(m_frames.constLast().error, "incomplete");
}

TEST_F(FrameConverterTest, TellsWhyAFrameCannotBeConverted)
{
    // A mosaic needs three rows to be interpolated.
    m_converter.openInlet()(
        std::make_shared<CGrabResult>(COstriaImage(PixelType::BayerRG8, 8, 2), 4));
    ASSERT_TRUE(waitFor(4));
    EXPECT_TRUE(m_frames.constLast().picture.isNull());
    EXPECT_EQ(m_frames.constLast().error,
              "It cannot be shown (A mosaic of 8 x 2 pixels is too small, interpolation needs 4 x "
              "3). Choose another pixel format or another image size.");
}

TEST_F(FrameConverterTest, LeavesOutWhatComesThroughAnEarlierInlet)
{
    const auto earlier = m_converter.openInlet();
    earlier(frame(1));
    const auto present = m_converter.openInlet();
    earlier(frame(2));
    present(frame(3));
    ASSERT_TRUE(waitFor(3));
    EXPECT_EQ(m_frames.size(), 1);
}

TEST_F(FrameConverterTest, KeepsAPictureThatSomebodyHoldsWhileFramesGoOn)
{
    const auto inlet = m_converter.openInlet();
    inlet(frame(1, 255, 0, 0));
    ASSERT_TRUE(waitFor(1));
    const QImage held = m_frames.constLast().picture;
    for (std::uint64_t number = 2; number < 12; ++number) {
        m_frames.clear();
        inlet(frame(number, 0, 255, 0));
        ASSERT_TRUE(waitFor(number));
    }
    EXPECT_EQ(held.pixelColor(0, 0), QColor(255, 0, 0));
}

TEST_F(FrameConverterTest, ConvertsNothingWhileItIsPausedAndTheNewestAfterwards)
{
    m_converter.setPaused(true);
    const auto inlet = m_converter.openInlet();
    inlet(frame(1));
    // Another converter has long been done with the same frame.
    FrameConverter other;
    bool isOtherDone = false;
    QObject::connect(&other, &FrameConverter::frameReady,
                     [&](const LiveFrame& ready) { isOtherDone = ready.number == 2; });
    const auto otherInlet = other.openInlet();
    otherInlet(frame(1));
    otherInlet(frame(2));
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOtherDone; }, 60000));
    EXPECT_TRUE(m_frames.isEmpty());
    inlet(frame(3));
    m_converter.setPaused(false);
    ASSERT_TRUE(waitFor(3));
    EXPECT_EQ(m_frames.size(), 1);
}

TEST_F(FrameConverterTest, MayEndWhileItIsPaused)
{
    m_converter.setPaused(true);
    m_converter.openInlet()(frame(1));
}

TEST(FrameConverter, MayEndBeforeItsInlets)
{
    FrameConverter::Inlet inlet;
    {
        FrameConverter converter;
        inlet = converter.openInlet();
    }
    inlet(frame(1));
}

TEST(FrameBuffers, UseMemoryAgainThatNobodySees)
{
    FrameBuffers buffers;
    auto image = buffers.take();
    *image = COstriaImage(PixelType::BGRa8, 8, 4);
    const std::uint8_t* memory = image->data();
    QImage picture = buffers.toPicture(std::move(image));
    EXPECT_EQ(picture.constBits(), memory);
    EXPECT_NE(buffers.take()->data(), memory) << "the picture is still seen";
    picture = QImage();
    EXPECT_EQ(buffers.take()->data(), memory);
}

TEST(FrameBuffers, MayEndBeforeTheirPictures)
{
    QImage picture;
    {
        FrameBuffers buffers;
        auto image = buffers.take();
        *image = COstriaImage(PixelType::BGRa8, 8, 4);
        picture = buffers.toPicture(std::move(image));
    }
    EXPECT_EQ(picture.pixelColor(7, 3).blue(), 0);
}

} // namespace
} // namespace Viewer
