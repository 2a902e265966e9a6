// SPDX-License-Identifier: Apache-2.0
// Sharing, sizes and buffers of the image value.
#include "image.h"

#include "logrecorder.h"
#include "testimages.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace ColorCalibration;
using Ostria::COstriaImage;

namespace {

const COstriaImage& camera()
{
    static const COstriaImage image = makeUniformRgb16(5, 3, {100, 200, 300});
    return image;
}

void expectMismatchEntry(const LogRecorder& log, const char* text)
{
    const auto entries = log.entries();
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries.at(0).level, 4);
    EXPECT_EQ(entries.at(0).category,
              QStringLiteral("ostria.viewer.plugins.colorCalibration.image.image"));
    EXPECT_EQ(entries.at(0).text, QLatin1String(text));
}

} // namespace

TEST(Image, IsNothingAtFirst)
{
    const Image image;
    EXPECT_EQ(image.width(), 0);
    EXPECT_EQ(image.height(), 0);
    EXPECT_EQ(image.format(), -1);
    EXPECT_EQ(image.stride(), 0);
    EXPECT_FALSE(image.isValid());
    EXPECT_FALSE(image.cameraImage().isValid());
    EXPECT_TRUE(image.toQImage().isNull());
    EXPECT_EQ(Image().writableBuffer(), nullptr);
}

TEST(Image, TakesItsSizeFromTheCameraImage)
{
    const Image image = Image::fromCameraImage(Color32, camera());
    EXPECT_TRUE(image.isValid());
    EXPECT_EQ(image.width(), 5);
    EXPECT_EQ(image.height(), 3);
    EXPECT_EQ(image.cameraImage().readPixel(4, 2).blue, 300);
    EXPECT_FALSE(Image::fromCameraImage(Color32, COstriaImage()).isValid());
    EXPECT_EQ(Image::fromCameraImage(Color32, COstriaImage()).format(), NoImage);
}

TEST(Image, PadsRowsToFourBytes)
{
    EXPECT_EQ(Image::fromCameraImage(Mono8, camera()).stride(), 8);
    EXPECT_EQ(Image::fromCameraImage(Color32, camera()).stride(), 20);
}

TEST(Image, ShowsItsBufferWithoutOwningIt)
{
    Image image = Image::fromCameraImage(Color32, camera());
    uchar* buffer = image.writableBuffer();
    ASSERT_NE(buffer, nullptr);
    const uchar bgra[4] = {30, 20, 10, 255};
    std::copy_n(bgra, 4, buffer + 20 + 4); // row 1, column 1
    const QImage shown = image.toQImage();
    EXPECT_EQ(shown.format(), QImage::Format_RGB32);
    EXPECT_EQ(shown.size(), QSize(5, 3));
    EXPECT_EQ(shown.constBits(), buffer);
    EXPECT_EQ(shown.pixelColor(1, 1), QColor(10, 20, 30));
}

TEST(Image, ShowsMonochromeThroughTheGrayTable)
{
    Image image = Image::fromCameraImage(Mono8, camera());
    uchar* buffer = image.writableBuffer();
    buffer[8 + 4] = 200; // row 1, column 4
    const QImage shown = image.toQImage();
    EXPECT_EQ(shown.format(), QImage::Format_Indexed8);
    EXPECT_EQ(shown.constBits(), buffer);
    EXPECT_EQ(shown.colorTable(), grayColorTable());
    EXPECT_EQ(shown.pixelColor(4, 1), QColor(200, 200, 200));
}

TEST(Image, SharesCameraPixelsAndCopiesItsBufferOnWrite)
{
    Image first = Image::fromCameraImage(Color32, camera());
    first.writableBuffer()[0] = 1;
    Image second = first;
    EXPECT_EQ(second.toQImage().constBits(), first.toQImage().constBits());
    second.writableBuffer()[0] = 2;
    EXPECT_EQ(first.toQImage().constBits()[0], 1);
    EXPECT_EQ(second.toQImage().constBits()[0], 2);
    EXPECT_EQ(first.cameraImage().data(), second.cameraImage().data());
}

TEST(Image, OfAnotherSharesItsCameraPixelsInANewFormat)
{
    const LogRecorder log;
    Image color = Image::fromCameraImage(Color32, camera());
    color.writableBuffer()[0] = 9;
    const Image mono(color, Mono8);
    EXPECT_TRUE(mono.isValid());
    EXPECT_EQ(mono.width(), 5);
    EXPECT_EQ(mono.height(), 3);
    EXPECT_EQ(mono.format(), Mono8);
    EXPECT_EQ(mono.cameraImage().data(), color.cameraImage().data());
    EXPECT_EQ(mono.toQImage().constBits()[0], 0);
    EXPECT_TRUE(log.entries().isEmpty());
}

TEST(Image, WithoutFormatHasNoSizeAndNoBuffer)
{
    const LogRecorder log;
    Image none(Image::fromCameraImage(Color32, camera()), NoImage);
    EXPECT_FALSE(none.isValid());
    EXPECT_EQ(none.format(), NoImage);
    EXPECT_EQ(none.width(), 0);
    EXPECT_EQ(none.stride(), 0);
    EXPECT_EQ(none.writableBuffer(), nullptr);
    EXPECT_TRUE(none.toQImage().isNull());
    EXPECT_TRUE(none.cameraImage().isValid());
    const Image explicitNone(5, 3, NoImage, camera());
    EXPECT_FALSE(explicitNone.isValid());
    EXPECT_TRUE(log.entries().isEmpty());
}

TEST(Image, LogsASizeThatIsNotTheCameraImages)
{
    const LogRecorder log;
    const Image image(4, 3, Color32, camera());
    expectMismatchEntry(log, "Image dimensions are not matching!");
    EXPECT_EQ(image.width(), 4);
    EXPECT_TRUE(image.isValid());
    EXPECT_EQ(image.toQImage().size(), QSize(4, 3));
}

TEST(Image, OfAnotherLogsASizeThatIsNotTheCameraImages)
{
    Image wrong;
    {
        const LogRecorder ignored;
        wrong = Image(5, 9, Color32, camera());
    }
    const LogRecorder log;
    const Image image(wrong, Mono8);
    expectMismatchEntry(log, "Image dimensions are not matching.");
    EXPECT_EQ(image.height(), 9);
}

TEST(Image, WithoutCameraPixelsKeepsItsSizeButHasNoBuffer)
{
    const LogRecorder log;
    Image image(7, 6, Color32, COstriaImage());
    EXPECT_FALSE(image.isValid());
    EXPECT_EQ(image.width(), 7);
    EXPECT_EQ(image.stride(), 0);
    EXPECT_EQ(image.writableBuffer(), nullptr);
    EXPECT_TRUE(log.entries().isEmpty());
}

TEST(Image, StandsSizesThatCannotBe)
{
    const LogRecorder log;
    for (const auto& [width, height] :
         {std::pair{-1, 3}, {5, -1}, {0, 0}, {2000000000, 3}, {5, 2000000000}}) {
        Image image(width, height, Color32, camera());
        EXPECT_EQ(image.writableBuffer(), nullptr) << width << " x " << height;
        EXPECT_TRUE(image.toQImage().isNull()) << width << " x " << height;
    }
    EXPECT_EQ(log.entries().size(), 5);
}

TEST(Image, GrayTableRisesFromBlackToWhite)
{
    const QVector<QRgb>& table = grayColorTable();
    ASSERT_EQ(table.size(), 256);
    for (int level = 0; level < 256; ++level)
        EXPECT_EQ(table.at(level), qRgb(level, level, level));
}

TEST(Image, GrayTableIsOneForAllThreads)
{
    std::vector<const QVector<QRgb>*> seen(8);
    std::vector<std::thread> threads;
    for (auto& table : seen)
        threads.emplace_back([&table] { table = &grayColorTable(); });
    for (std::thread& thread : threads)
        thread.join();
    for (const auto* table : seen)
        EXPECT_EQ(table, &grayColorTable());
}
