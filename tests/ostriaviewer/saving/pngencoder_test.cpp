// SPDX-License-Identifier: Apache-2.0
// Tests of images as PNG, read back by Qt.
#include "pngencoder.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <random>

using Saving::EncodedPng;
using Saving::encodePng;
using Saving::encodePngQuickly;

namespace {

/// Flat areas, edges, and noise of every strength.
QImage picture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    std::mt19937 generator(7);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int patch = x / 20 + y / 20;
            const int noise = patch % 3 == 0 ? 0 : static_cast<int>(generator() % (patch + 1U));
            image.setPixel(x, y,
                           qRgb((patch * 37 + noise) % 256, (patch * 71 + noise) % 256,
                                (255 - noise + x) % 256));
        }
    return image;
}

QImage decoded(const QByteArray& png)
{
    return QImage::fromData(png, "PNG");
}

qint64 sizeByQt(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG", -1);
    return buffer.size();
}

TEST(EncodePng, ColorsComeBackPixelByPixel)
{
    for (const QSize& size : {QSize(1, 1), QSize(1, 9), QSize(9, 1), QSize(333, 127)}) {
        const QImage image = picture(size.width(), size.height());
        for (const auto encode : {encodePng, encodePngQuickly})
            EXPECT_EQ(decoded(encode(image).bytes).convertToFormat(QImage::Format_RGB32), image)
                << size.width() << " x " << size.height();
    }
}

TEST(EncodePng, PixelsMayBeLentRowsLongerThanTheImage)
{
    const QImage whole = picture(100, 40);
    const QImage part(whole.constBits(), 61, 40, whole.bytesPerLine(), QImage::Format_RGB32);
    EXPECT_EQ(decoded(encodePng(part).bytes).convertToFormat(QImage::Format_RGB32),
              whole.copy(0, 0, 61, 40));
}

TEST(EncodePng, GrayImagesStayGray)
{
    QImage image(37, 5, QImage::Format_Indexed8);
    QVector<QRgb> grays;
    for (int level = 0; level < 256; ++level)
        grays.append(qRgb(level, level, level));
    image.setColorTable(grays);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, static_cast<uint>((x * 7 + y * 50) % 256));
    const QImage back = decoded(encodePng(image).bytes);
    EXPECT_TRUE(back.format() == QImage::Format_Grayscale8 || back.isGrayscale());
    EXPECT_EQ(back.depth(), 8);
    EXPECT_EQ(back.convertToFormat(QImage::Format_RGB32),
              image.convertToFormat(QImage::Format_RGB32));
}

TEST(EncodePng, TablesOfColorsComeBackAsColors)
{
    QImage image(2, 1, QImage::Format_Indexed8);
    image.setColorTable({qRgb(255, 0, 3), qRgb(10, 200, 30)});
    image.setPixel(0, 0, 1);
    image.setPixel(1, 0, 0);
    const QImage back = decoded(encodePng(image).bytes);
    EXPECT_EQ(back.pixel(0, 0), qRgb(10, 200, 30));
    EXPECT_EQ(back.pixel(1, 0), qRgb(255, 0, 3));
}

// The default of Qt, which is zlib's default, is the measure.
TEST(EncodePng, OfACamerasImageIsNotLargerThanWhatQtWrites)
{
    QImage image(600, 400, QImage::Format_RGB32);
    std::mt19937 generator(3);
    std::normal_distribution<double> noise(0.0, 2.0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const int patch = x / 100 + y / 100 * 6;
            const auto channel = [&](int base) {
                return qBound(0, qRound(base + x / 60.0 + noise(generator)), 255);
            };
            image.setPixel(x, y,
                           qRgb(channel(patch * 9), channel(255 - patch * 7), channel(patch * 5)));
        }
    EXPECT_LE(encodePng(image).bytes.size(), sizeByQt(image));
}

TEST(EncodePng, SaysSoWhereThereIsNoRoomForThePixels)
{
    // Fits into memory with its one bit a pixel, but no computer's QImage holds its rows in colors.
    const EncodedPng png = encodePng(QImage(100'000'000, 1, QImage::Format_Mono));
    EXPECT_TRUE(png.bytes.isEmpty());
    EXPECT_EQ(png.problem, "there is not enough memory for the image");
}

TEST(EncodePng, ThereIsNothingOfANullImage)
{
    EXPECT_TRUE(encodePng(QImage()).bytes.isEmpty());
    EXPECT_EQ(encodePng(QImage()).problem, "there is no image");
}

} // namespace
