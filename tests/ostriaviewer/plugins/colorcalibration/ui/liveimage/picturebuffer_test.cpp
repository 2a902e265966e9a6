// SPDX-License-Identifier: Apache-2.0
// Tests of the memory behind the live image.
#include "picturebuffer.h"

#include <QVideoFrame>

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <thread>

using ColorCalibration::PictureBuffer;

namespace {

QImage filled(QRgb color, const QSize& size = QSize(8, 4))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

QRgb firstPixel(const uchar* bytes)
{
    QRgb pixel = 0;
    std::memcpy(&pixel, bytes, sizeof pixel);
    return pixel;
}

TEST(PictureBuffer, BeginsBlack)
{
    PictureBuffer buffer(QSize(8, 4));
    EXPECT_FALSE(buffer.hasPicture());
    EXPECT_EQ(buffer.picture(), filled(0xff000000));
    EXPECT_EQ(buffer.handleType(), QAbstractVideoBuffer::NoHandle);
    EXPECT_EQ(buffer.mapMode(), QAbstractVideoBuffer::NotMapped);
    buffer.setPicture(filled(0xff112233));
    EXPECT_TRUE(buffer.hasPicture());
}

TEST(PictureBuffer, LendsRowsWithoutPadding)
{
    PictureBuffer buffer(QSize(8, 4));
    int bytes = 0;
    int stride = 0;
    ASSERT_NE(buffer.map(QAbstractVideoBuffer::ReadOnly, &bytes, &stride), nullptr);
    EXPECT_EQ(bytes, 8 * 4 * 4);
    EXPECT_EQ(stride, 8 * 4);
    EXPECT_EQ(buffer.mapMode(), QAbstractVideoBuffer::ReadOnly);
    buffer.unmap();
    EXPECT_EQ(buffer.mapMode(), QAbstractVideoBuffer::NotMapped);
}

TEST(PictureBuffer, KeepsTheReadersPictureWhileTheNextOneIsSet)
{
    PictureBuffer buffer(QSize(8, 4));
    buffer.setPicture(filled(0xff112233));
    const uchar* reader = buffer.map(QAbstractVideoBuffer::ReadOnly, nullptr, nullptr);
    buffer.setPicture(filled(0xff445566));
    buffer.setPicture(filled(0xff778899));
    EXPECT_EQ(firstPixel(reader), 0xff112233);
    buffer.unmap();
    reader = buffer.map(QAbstractVideoBuffer::ReadOnly, nullptr, nullptr);
    EXPECT_EQ(firstPixel(reader), 0xff778899);
    buffer.unmap();
}

TEST(PictureBuffer, RefusesWritersAndASecondReader)
{
    PictureBuffer buffer(QSize(8, 4));
    EXPECT_EQ(buffer.map(QAbstractVideoBuffer::WriteOnly, nullptr, nullptr), nullptr);
    EXPECT_EQ(buffer.map(QAbstractVideoBuffer::ReadWrite, nullptr, nullptr), nullptr);
    EXPECT_EQ(buffer.map(QAbstractVideoBuffer::NotMapped, nullptr, nullptr), nullptr);
    ASSERT_NE(buffer.map(QAbstractVideoBuffer::ReadOnly, nullptr, nullptr), nullptr);
    EXPECT_EQ(buffer.map(QAbstractVideoBuffer::ReadOnly, nullptr, nullptr), nullptr);
    buffer.unmap();
}

TEST(PictureBuffer, LendsNothingWithoutASize)
{
    PictureBuffer buffer(QSize(0, 4));
    EXPECT_EQ(buffer.map(QAbstractVideoBuffer::ReadOnly, nullptr, nullptr), nullptr);
}

TEST(PictureBuffer, GivesEveryReaderOfItsFrameAWholePicture)
{
    const QSize size(64, 48);
    auto* const buffer = new PictureBuffer(size); // the frame's
    QVideoFrame frame(buffer, size, QVideoFrame::Format_ARGB32);
    std::atomic_bool done{false};
    std::thread writer([&] {
        for (int i = 0; i < 2000; ++i)
            buffer->setPicture(filled(0xff000000u + i, size));
        done = true;
    });
    int torn = 0;
    int read = 0;
    while (!done || read == 0) {
        ASSERT_TRUE(frame.map(QAbstractVideoBuffer::ReadOnly));
        const QRgb first = firstPixel(frame.bits());
        for (int i = 0; i < frame.mappedBytes(); i += 4)
            torn += firstPixel(frame.bits() + i) != first ? 1 : 0;
        frame.unmap();
        ++read;
    }
    writer.join();
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(buffer->picture().pixel(0, 0), 0xff000000u + 1999);
}

} // namespace
