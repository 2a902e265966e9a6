// SPDX-License-Identifier: Apache-2.0
// Tests of waiting for images and converting them.
#include "convertingimagecamera.h"

#include "fakecamera.h"
#include "logrecorder.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

using ColorCalibration::ConvertingImageCamera;
using ColorCalibration::Image;

namespace {

class ConvertingImageCameraTest : public testing::Test
{
protected:
    ConvertingImageCameraTest() { m_converting.AttachCamera(m_camera); }

    /// Red of the first pixel; -1 without an image.
    static int red(const Image& image)
    {
        return image.isValid() ? image.cameraImage().readPixel(0, 0).red : -1;
    }

    void nextImageIs(std::uint16_t level)
    {
        m_camera->nextImage = [level] {
            return makeUniformRgb16(8, 8, {level, level, level});
        };
    }

    QSharedPointer<FakeCamera> m_camera = QSharedPointer<FakeCamera>::create();
    ConvertingImageCamera m_converting;
};

TEST_F(ConvertingImageCameraTest, TakesAnImageThatArrivesBeforeTheRequestReturns)
{
    nextImageIs(4711);
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(red(image), 4711);
}

TEST_F(ConvertingImageCameraTest, TakesAnImageFromAnotherThread)
{
    m_camera->delivery = Delivery::OtherThread;
    for (const std::uint16_t level : {std::uint16_t{100}, std::uint16_t{200}, std::uint16_t{300}}) {
        nextImageIs(level);
        Image image;
        ASSERT_TRUE(m_converting.GrabSingle(image, true));
        EXPECT_EQ(red(image), level);
    }
}

TEST_F(ConvertingImageCameraTest, WaitsForALateImage)
{
    Image first;
    ASSERT_TRUE(m_converting.GrabSingle(first, true));
    m_camera->delivery = Delivery::OnRelease;
    nextImageIs(9);
    // Runs inside of the wait.
    QTimer::singleShot(0, [this] { m_camera->releaseImage(); });
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(red(image), 9);
}

TEST_F(ConvertingImageCameraTest, ServesThreadsThatHaveNoEventLoop)
{
    m_camera->delivery = Delivery::OtherThread;
    nextImageIs(77);
    Image image;
    bool grabbed = false;
    std::thread pool([&] { grabbed = m_converting.GrabSingle(image, true); });
    pool.join();
    EXPECT_TRUE(grabbed);
    EXPECT_EQ(red(image), 77);
}

TEST_F(ConvertingImageCameraTest, FirstRequestHasAShorterTimeOut)
{
    Image image;
    for (int i = 0; i < 3; ++i)
        m_converting.GrabSingle(image, true);
    EXPECT_EQ(m_camera->timeouts(), (QVector<int>{200, 5000, 5000}));
}

TEST_F(ConvertingImageCameraTest, AFirstRequestThatFailsWasTheFirstAllTheSame)
{
    m_camera->delivery = Delivery::Refused;
    Image image;
    EXPECT_FALSE(m_converting.GrabSingle(image, true));
    m_camera->delivery = Delivery::AtOnce;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(m_camera->timeouts(), (QVector<int>{200, 5000}));
}

/// Sees the end of the first request's time before the request does.
class FirstTimeOut : public QObject
{
public:
    FirstTimeOut() { QCoreApplication::instance()->installEventFilter(this); }

    bool await() { return m_over.tryAcquire(1, 10000); }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* timer = qobject_cast<QTimer*>(watched);
        if (timer && event->type() == QEvent::Timer && timer->interval() == 200)
            m_over.release();
        return false;
    }

    QSemaphore m_over;
};

TEST_F(ConvertingImageCameraTest, AnImageInTimeCountsAlsoIfItsConversionOutlastsTheTimeOut)
{
    FirstTimeOut timeOut;
    m_camera->delivery = Delivery::OtherThread;
    nextImageIs(42);
    // On the delivering thread, and heard before the request hears of the image.
    QObject::connect(
        &m_converting, &ConvertingImageCamera::imageGrabbed, &m_converting,
        [&timeOut] { EXPECT_TRUE(timeOut.await()); }, Qt::DirectConnection);
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(red(image), 42);
    EXPECT_EQ(m_camera->stops, 0);
}

TEST_F(ConvertingImageCameraTest, UntriggeredRequestsUseTheCamerasOwnTimeOut)
{
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, false));
    EXPECT_EQ(m_camera->timeouts(), QVector<int>{-1});
}

TEST_F(ConvertingImageCameraTest, GivesUpWhenNothingComes)
{
    m_camera->delivery = Delivery::Never;
    Image image;
    EXPECT_FALSE(m_converting.GrabSingle(image, true));
    EXPECT_FALSE(image.isValid());
    EXPECT_EQ(m_camera->stops, 1) << "its image must not answer the next request";
}

TEST_F(ConvertingImageCameraTest, OfTwoImagesInOneWaitTheSecondCounts)
{
    m_camera->delivery = Delivery::Never;
    m_camera->onRequest = [this] {
        for (const std::uint16_t level : {std::uint16_t{7}, std::uint16_t{8}}) {
            nextImageIs(level);
            m_camera->deliver();
        }
    };
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(red(image), 8);
    EXPECT_EQ(m_camera->stops, 0);
}

TEST_F(ConvertingImageCameraTest, FailedFramesAreNoImages)
{
    const QSignalSpy announced(&m_converting, &ConvertingImageCamera::imageGrabbed);
    m_camera->failFrames = true;
    Image image;
    EXPECT_FALSE(m_converting.GrabSingle(image, true));
    m_camera->deliver(nullptr);
    EXPECT_EQ(announced.count(), 0);
    EXPECT_FALSE(image.isValid());
}

TEST_F(ConvertingImageCameraTest, AGoodFrameMayFollowADamagedOne)
{
    m_camera->delivery = Delivery::Never;
    m_camera->onRequest = [this] {
        m_camera->failFrames = true;
        m_camera->deliver();
        m_camera->failFrames = false;
        m_camera->deliver();
    };
    nextImageIs(5);
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(red(image), 5);
}

TEST_F(ConvertingImageCameraTest, ContinuousDeliveryGivesTheNewestImageWithoutARequest)
{
    nextImageIs(1);
    m_camera->deliver();
    nextImageIs(2);
    m_camera->deliver();
    m_camera->grabbing = true;
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(red(image), 2);
    EXPECT_TRUE(m_converting.IsGrabbing());
    EXPECT_EQ(m_camera->grabRequests, 0);
}

TEST_F(ConvertingImageCameraTest, AnImageOnceGivenOutStaysAsItIs)
{
    nextImageIs(1);
    Image image;
    m_converting.GrabSingle(image, true);
    for (const std::uint16_t level : {std::uint16_t{2}, std::uint16_t{3}, std::uint16_t{4}}) {
        nextImageIs(level);
        m_camera->deliver();
    }
    EXPECT_EQ(red(image), 1);
}

TEST_F(ConvertingImageCameraTest, WithoutAHandleGivesAnEmptyImageAtOnce)
{
    EXPECT_EQ(m_converting.DetachCamera(), m_camera);
    EXPECT_TRUE(m_converting.DetachCamera().isNull());
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_FALSE(image.isValid());
    EXPECT_FALSE(m_converting.IsOpen());
    EXPECT_FALSE(m_converting.IsGrabbing());
    EXPECT_TRUE(m_converting.ParameterCollection().isNull());
    m_converting.StopGrabbing();
    EXPECT_EQ(m_camera->stops, 0);
    m_camera->deliver();
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_FALSE(image.isValid()) << "it listens no more";
}

TEST_F(ConvertingImageCameraTest, ALostConnectionIsAsNoCamera)
{
    nextImageIs(3);
    m_camera->deliver();
    m_camera->grabbing = true;
    ASSERT_TRUE(m_converting.IsOpen());
    emit m_camera->cameraConnectionLost();
    Image image;
    EXPECT_FALSE(m_converting.GrabSingle(image, true));
    EXPECT_FALSE(m_converting.IsOpen());
    EXPECT_FALSE(m_converting.IsGrabbing());
    EXPECT_TRUE(m_converting.ParameterCollection().isNull());
    m_converting.StopGrabbing();
    EXPECT_EQ(m_camera->stops, 0);
    EXPECT_EQ(m_converting.DetachCamera(), m_camera) << "the handle must be given back";
}

TEST_F(ConvertingImageCameraTest, ALossDuringTheWaitEndsItAtOnce)
{
    Image image;
    ASSERT_TRUE(m_converting.GrabSingle(image, true));
    m_camera->delivery = Delivery::Never;
    m_camera->onRequest = [this] {
        std::thread camera([this] { m_camera->loseConnection(); });
        camera.join();
    };
    // A wait to its end of 5 s would let this one through.
    QTimer guard;
    guard.setSingleShot(true);
    const QSignalSpy waitedToItsEnd(&guard, &QTimer::timeout);
    guard.start(3000);
    EXPECT_FALSE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(waitedToItsEnd.count(), 0);
    EXPECT_FALSE(m_converting.IsOpen());
}

TEST_F(ConvertingImageCameraTest, MayBeDeletedFromInsideOfItsOwnWait)
{
    auto* shortLived = new ConvertingImageCamera;
    const auto camera = QSharedPointer<FakeCamera>::create();
    camera->delivery = Delivery::Never;
    shortLived->AttachCamera(camera);
    QTimer::singleShot(0, [shortLived] { delete shortLived; });
    Image image;
    EXPECT_FALSE(shortLived->GrabSingle(image, true));
}

TEST_F(ConvertingImageCameraTest, MeasuresSixteenBitsAndShowsTheHighByte)
{
    m_camera->nextImage = [] {
        return makeRgb16(3, 2, [](int x, int y) {
            return Rgb16{static_cast<std::uint16_t>(0x1234 + x), 0xabcd,
                         static_cast<std::uint16_t>(0xff00 + y)};
        });
    };
    Image image;
    ASSERT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(image.cameraImage().pixelType(), Ostria::PixelType::RGB16);
    const Ostria::PixelReading reading = image.cameraImage().readPixel(2, 1);
    EXPECT_EQ(reading.bitDepth, 16);
    EXPECT_EQ(reading.red, 0x1236);
    EXPECT_EQ(reading.green, 0xabcd);
    EXPECT_EQ(reading.blue, 0xff01);
    EXPECT_EQ(image.toQImage().pixel(2, 1) & 0xffffffu, 0x12abffu);
}

TEST_F(ConvertingImageCameraTest, EightBitsAreShiftedToSixteen)
{
    m_camera->nextImage = [] {
        Ostria::COstriaImage mono(Ostria::PixelType::Mono8, 2, 1);
        mono.writableData()[1] = 0x5a;
        return mono;
    };
    Image image;
    ASSERT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(image.cameraImage().readPixel(1, 0).green, 0x5a00);
    EXPECT_EQ(image.toQImage().pixel(1, 0) & 0xffffffu, 0x5a5a5au);
}

TEST_F(ConvertingImageCameraTest, FramesOfChangingSizesAreAllTaken)
{
    for (const int width : {1, 7, 640, 3}) {
        m_camera->nextImage = [width] {
            return makeUniformRgb16(width, 5, {1, 2, 3});
        };
        Image image;
        ASSERT_TRUE(m_converting.GrabSingle(image, true));
        EXPECT_EQ(image.width(), width);
        EXPECT_EQ(image.stride() % 4, 0);
    }
}

TEST_F(ConvertingImageCameraTest, AFrameThatCannotBeConvertedIsLoggedAndDropped)
{
    nextImageIs(6);
    m_camera->deliver();
    const LogRecorder log;
    const QSignalSpy announced(&m_converting, &ConvertingImageCamera::imageGrabbed);
    m_camera->nextImage = [] {
        // One row is too few for a colour filter mosaic.
        return Ostria::COstriaImage(Ostria::PixelType::BayerRG8, 2, 1);
    };
    m_camera->deliver();
    EXPECT_EQ(announced.count(), 0);
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_EQ(log.entries().first().level, 0);
    EXPECT_EQ(log.entries().first().category,
              "ostria.viewer.plugins.colorCalibration.convertingImageCamera");
    EXPECT_EQ(log.entries().first().text, "Failed to convert the rgb16 image");
    m_camera->grabbing = true;
    Image image;
    EXPECT_TRUE(m_converting.GrabSingle(image, true));
    EXPECT_EQ(red(image), 6) << "the frame before stands";
}

} // namespace
