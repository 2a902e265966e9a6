// SPDX-License-Identifier: Apache-2.0
// Tests of the conversion to the measuring and the display format.
#include "imageformatconverter.h"

#include "slowdecoder.h"
#include "stride.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace Ostria {
namespace {

using testing::Each;

COstriaImage converted(const COstriaImage& source, PixelType type, std::size_t paddingX = 0,
                       ImageOrientation orientation = ImageOrientation::TopDown)
{
    CImageFormatConverter converter;
    converter.setOutputPixelFormat(type);
    converter.setOutputPaddingX(paddingX);
    converter.setOutputOrientation(orientation);
    COstriaImage target;
    converter.Convert(target, source);
    return target;
}

/// Pixels without the padding, row by row from the top.
std::vector<std::uint8_t> pixelsOf(const COstriaImage& image)
{
    return rowBytes(image.data(), image.stride(), image.stride() - image.paddingX(),
                    image.height());
}

std::vector<std::uint8_t> upsideDown(const std::vector<std::uint8_t>& pixels, std::size_t row)
{
    std::vector<std::uint8_t> turned;
    for (std::size_t end = pixels.size(); end > 0; end -= row)
        turned.insert(turned.end(), pixels.data() + end - row, pixels.data() + end);
    return turned;
}

class ConvertFrom : public testing::TestWithParam<PixelType>
{};

class ConvertFromAllButMosaics : public ConvertFrom
{};

INSTANTIATE_TEST_SUITE_P(ImageFormatConverter, ConvertFrom,
                         testing::ValuesIn(typesWhere([](PixelType) { return true; })),
                         testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(ImageFormatConverter, ConvertFromAllButMosaics,
                         testing::ValuesIn(typesWhere([](PixelType type) {
                             return !isBayer(type);
                         })),
                         testing::PrintToStringParamName());

TEST_P(ConvertFromAllButMosaics, Rgb16IsTheReadingAlignedToTheTopBit)
{
    const int width = 19 * pixelTypeInfo(GetParam())->widthMultiple;
    const COstriaImage source = noiseImage(GetParam(), width, 70, 3);
    const COstriaImage result = converted(source, PixelType::RGB16);
    ASSERT_EQ(result.pixelType(), PixelType::RGB16);
    ASSERT_EQ(result.width(), width);
    ASSERT_EQ(result.height(), 70);
    const int shift = 16 - depthOf(GetParam());
    for (int y = 0; y < 70; ++y) {
        for (int x = 0; x < width; ++x) {
            const PixelReading read = source.readPixel(x, y);
            const Rgb expected = isYuv(GetParam())
                                     ? Rgb{read.red << 8, read.green << 8, read.blue << 8}
                                     : slowPixel(GetParam(), rowOf(source, y), x, y);
            const Rgb value = rgb16At(result, x, y);
            for (std::size_t c = 0; c < 3; ++c)
                ASSERT_EQ(value[c], isYuv(GetParam()) ? expected[c] : expected[c] << shift)
                    << x << ", " << y;
        }
    }
}

TEST_P(ConvertFrom, DisplayIsTheSameDirectlyAndByWayOfRgb16)
{
    const int width = 13 * std::max(2, pixelTypeInfo(GetParam())->widthMultiple);
    const COstriaImage source = noiseImage(GetParam(), width, 41, 1);
    const COstriaImage measured = converted(source, PixelType::RGB16, 1);
    const COstriaImage direct = converted(source, PixelType::BGRa8);
    EXPECT_EQ(pixelsOf(direct), pixelsOf(converted(measured, PixelType::BGRa8)));
    for (int y = 0; y < 41; ++y) {
        for (int x = 0; x < width; ++x) {
            const Rgb wide = rgb16At(measured, x, y);
            const std::uint8_t* shown = rowOf(direct, y) + std::ptrdiff_t(4) * x;
            const std::array<int, 4> expected = {wide[2] / 256, wide[1] / 256, wide[0] / 256, 255};
            const std::array<int, 4> bytes = {shown[0], shown[1], shown[2], shown[3]};
            ASSERT_EQ(bytes, expected) << x << ", " << y;
        }
    }
}

TEST_P(ConvertFrom, BottomUpIsTopDownUpsideDown)
{
    const int width = 5 * std::max(2, pixelTypeInfo(GetParam())->widthMultiple);
    const COstriaImage source = noiseImage(GetParam(), width, 37);
    for (const PixelType type : {PixelType::RGB16, PixelType::BGRa8}) {
        const COstriaImage down = converted(source, type, 3);
        const COstriaImage up = converted(source, type, 3, ImageOrientation::BottomUp);
        EXPECT_EQ(pixelsOf(up), upsideDown(pixelsOf(down), ComputeStride(type, width)));
    }
}

TEST_P(ConvertFrom, PaddingAndWhatFollowsStayUntouched)
{
    const int width = 6;
    const int height = 35;
    const COstriaImage source = noiseImage(GetParam(), width, height);
    for (const PixelType type : {PixelType::RGB16, PixelType::BGRa8}) {
        const std::vector<std::uint8_t> expected = pixelsOf(converted(source, type));
        for (const std::size_t padding : {1u, 2u, 9u}) {
            CImageFormatConverter converter;
            converter.setOutputPixelFormat(type);
            converter.setOutputPaddingX(padding);
            const std::size_t size = converter.bufferSizeForConversion(width, height);
            // An odd first byte as well as an even one, and some bytes around.
            for (const std::size_t offset : {1u, 2u}) {
                std::vector<std::uint8_t> buffer(size + 4, 0xA5);
                converter.Convert(buffer.data() + offset, size, source);
                const std::size_t row = ComputeStride(type, width);
                EXPECT_EQ(rowBytes(buffer.data() + offset, row + padding, row, height), expected);
                for (std::size_t i = 0; i < buffer.size(); ++i) {
                    const bool inside = i >= offset && i < offset + size;
                    if (!inside || (i - offset) % (row + padding) >= row) {
                        ASSERT_EQ(buffer[i], 0xA5) << "byte " << i;
                    }
                }
            }
        }
    }
}

TEST_P(ConvertFrom, SourceOfAnyAlignmentIsTheSame)
{
    const COstriaImage source = noiseImage(GetParam(), 26, 33, 1);
    const auto held = std::make_shared<std::vector<std::uint8_t>>(source.size() + 1);
    std::memcpy(held->data() + 1, source.data(), source.size());
    const COstriaImage odd =
        COstriaImage::attach({held, held->data() + 1}, source.size(), GetParam(), 26, 33, 1);
    for (const PixelType type : {PixelType::RGB16, PixelType::BGRa8})
        EXPECT_EQ(pixelsOf(converted(odd, type)), pixelsOf(converted(source, type)));
}

TEST(ImageFormatConverter, BeginsWithRgb16WithoutPaddingFromTheTop)
{
    CImageFormatConverter converter;
    EXPECT_EQ(converter.bufferSizeForConversion(1920, 1200), 13824000u);
    const COstriaImage source = noiseImage(PixelType::RGB16, 5, 3);
    COstriaImage target;
    converter.Convert(target, source);
    EXPECT_EQ(target.pixelType(), PixelType::RGB16);
    EXPECT_EQ(target.paddingX(), 0u);
    EXPECT_EQ(pixelsOf(target), pixelsOf(source));
}

TEST(ImageFormatConverter, RatioToFullScaleSurvives)
{
    COstriaImage source(PixelType::Mono12, 1, 1);
    source.writableData()[0] = 0xFF;
    source.writableData()[1] = 0x0F;
    const PixelReading wide = converted(source, PixelType::RGB16).readPixel(0, 0);
    EXPECT_EQ(wide.bitDepth, 16);
    EXPECT_DOUBLE_EQ(wide.red / 65536.0, 4095 / 4096.0);
}

TEST(ImageFormatConverter, Rgb16ToRgb16IsACopy)
{
    const COstriaImage source = noiseImage(PixelType::RGB16, 7, 5, 3);
    EXPECT_EQ(pixelsOf(converted(source, PixelType::RGB16, 1)), pixelsOf(source));
}

TEST(ImageFormatConverter, AlphaOfTheSourceIsDropped)
{
    COstriaImage source(PixelType::BGRa8, 2, 1);
    const std::uint8_t bytes[] = {1, 2, 3, 4, 5, 6, 7, 0};
    std::memcpy(source.writableData(), bytes, sizeof bytes);
    EXPECT_EQ(pixelsOf(converted(source, PixelType::BGRa8)),
              (std::vector<std::uint8_t>{1, 2, 3, 255, 5, 6, 7, 255}));
}

TEST(ImageFormatConverter, YuvOfAWholeFrameIsWhatSinglePixelsRead)
{
    for (const PixelType type : {PixelType::YUV422_8, PixelType::YUV422_8_UYVY}) {
        // Every luma with a raster of chroma pairs, longer than a row is worked on at once.
        COstriaImage source(type, 5120, 16);
        std::uint8_t* byte = source.writableData();
        const std::size_t luma = type == PixelType::YUV422_8 ? 0 : 1;
        for (int i = 0; i < 5120 * 16 / 2; ++i, byte += 4) {
            byte[luma] = static_cast<std::uint8_t>(2 * i);
            byte[luma + 2] = static_cast<std::uint8_t>(2 * i + 1);
            byte[1 - luma] = static_cast<std::uint8_t>(i / 128 % 18 * 15);
            byte[3 - luma] = static_cast<std::uint8_t>(i / 128 / 18 * 15);
        }
        const COstriaImage result = converted(source, PixelType::RGB16);
        for (int y = 0; y < source.height(); ++y) {
            for (int x = 0; x < source.width(); ++x) {
                const PixelReading read = source.readPixel(x, y);
                const Rgb expected = {read.red << 8, read.green << 8, read.blue << 8};
                ASSERT_EQ(rgb16At(result, x, y), expected) << x << ", " << y;
            }
        }
    }
}

TEST(ImageFormatConverter, OneConverterServesFramesOfAnySize)
{
    CImageFormatConverter converter;
    COstriaImage target;
    for (const auto& [width, height] :
         {std::pair(64, 64), std::pair(4, 3), std::pair(128, 99), std::pair(64, 64)}) {
        const COstriaImage source = noiseImage(PixelType::BayerBG12, width, height);
        converter.Convert(target, source);
        EXPECT_EQ(pixelsOf(target), pixelsOf(converted(source, PixelType::RGB16)));
    }
}

TEST(ImageFormatConverter, WritesOverATargetThatNobodyElseSees)
{
    CImageFormatConverter converter;
    COstriaImage target;
    converter.Convert(target, noiseImage(PixelType::BayerRG12, 32, 32));
    const std::uint8_t* pixels = target.data();
    const COstriaImage second = noiseImage(PixelType::BayerGB12, 32, 32);
    converter.Convert(target, second);
    EXPECT_EQ(target.data(), pixels);
    EXPECT_EQ(pixelsOf(target), pixelsOf(converted(second, PixelType::RGB16)));
}

TEST(ImageFormatConverter, LeavesPixelsAloneThatOthersSee)
{
    CImageFormatConverter converter;
    COstriaImage target;
    converter.Convert(target, noiseImage(PixelType::BayerRG12, 32, 32));
    const COstriaImage shared = target;
    const std::vector<std::uint8_t> before = pixelsOf(shared);
    converter.Convert(target, noiseImage(PixelType::BayerGB12, 32, 32));
    EXPECT_EQ(pixelsOf(shared), before);
    EXPECT_NE(target.data(), shared.data());

    const auto held = std::make_shared<std::vector<std::uint8_t>>(6 * 32 * 32, std::uint8_t(3));
    target = COstriaImage::attach({held, held->data()}, held->size(), PixelType::RGB16, 32, 32);
    converter.Convert(target, noiseImage(PixelType::BayerGB12, 32, 32));
    EXPECT_THAT(*held, Each(3));
}

TEST(ImageFormatConverter, ShapeOfAnOldTargetIsReplaced)
{
    CImageFormatConverter converter;
    converter.setOutputPaddingX(2);
    const COstriaImage source = noiseImage(PixelType::RGB8, 8, 4);
    for (COstriaImage target :
         {COstriaImage(PixelType::BGRa8, 8, 4, 2), COstriaImage(PixelType::RGB16, 7, 4, 2),
          COstriaImage(PixelType::RGB16, 8, 5, 2), COstriaImage(PixelType::RGB16, 8, 4, 1)}) {
        converter.Convert(target, source);
        EXPECT_EQ(target.pixelType(), PixelType::RGB16);
        EXPECT_EQ(target.stride(), 50u);
        EXPECT_EQ(target.size(), 200u);
        EXPECT_EQ(pixelsOf(target), pixelsOf(converted(source, PixelType::RGB16)));
    }
}

TEST(ImageFormatConverter, TargetMayBeTheSourceItself)
{
    COstriaImage image = noiseImage(PixelType::RGB16, 9, 40);
    const COstriaImage source = noiseImage(PixelType::RGB16, 9, 40);
    CImageFormatConverter converter;
    converter.setOutputOrientation(ImageOrientation::BottomUp);
    converter.Convert(image, image);
    EXPECT_EQ(pixelsOf(image), upsideDown(pixelsOf(source), source.stride()));
}

} // namespace
} // namespace Ostria
