// SPDX-License-Identifier: Apache-2.0
// Tests of what the converter refuses.
#include "imageformatconverter.h"

#include "slowdecoder.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <stdexcept>

namespace Ostria {
namespace {

TEST(ConverterErrors, OtherOutputFormatsAreRefused)
{
    CImageFormatConverter converter;
    converter.setOutputPixelFormat(PixelType::BGRa8);
    EXPECT_EQ(
        messageOf<std::invalid_argument>([&] { converter.setOutputPixelFormat(PixelType::RGB8); }),
        "Cannot convert to RGB8, only to RGB16 and BGRa8.");
    EXPECT_THROW(converter.setOutputPixelFormat(PixelType::Undefined), std::invalid_argument);
    EXPECT_THROW(converter.setOutputPixelFormat(static_cast<PixelType>(-1)), std::invalid_argument);
    COstriaImage target;
    converter.Convert(target, noiseImage(PixelType::Mono8, 3, 3));
    EXPECT_EQ(target.pixelType(), PixelType::BGRa8) << "as it was before";
}

TEST(ConverterErrors, SourceWithoutPixelsIsRefused)
{
    CImageFormatConverter converter;
    COstriaImage target = noiseImage(PixelType::Mono8, 3, 3);
    const std::uint8_t* pixels = target.data();
    EXPECT_EQ(messageOf<std::invalid_argument>([&] { converter.Convert(target, COstriaImage()); }),
              "The source image has no pixels.");
    EXPECT_EQ(target.data(), pixels);
    std::uint8_t byte = 0;
    EXPECT_THROW(converter.Convert(&byte, 1, COstriaImage()), std::invalid_argument);
}

TEST(ConverterErrors, MosaicTooSmallIsRefused)
{
    CImageFormatConverter converter;
    COstriaImage target;
    for (const auto& [width, height] : {std::pair(2, 1), std::pair(2, 2), std::pair(2, 100),
                                        std::pair(100, 1), std::pair(100, 2), std::pair(4, 2)})
        EXPECT_THROW(converter.Convert(target, COstriaImage(PixelType::BayerGR8, width, height)),
                     std::invalid_argument)
            << width << " x " << height;
    EXPECT_EQ(messageOf<std::invalid_argument>(
                  [&] { converter.Convert(target, COstriaImage(PixelType::BayerRG12p, 2, 8)); }),
              "A mosaic of 2 x 8 pixels is too small, interpolation needs 4 x 3.");
    EXPECT_FALSE(target.isValid());
}

TEST(ConverterErrors, BufferThatIsNullOrTooShortIsRefused)
{
    CImageFormatConverter converter;
    const COstriaImage source = noiseImage(PixelType::Mono8, 10, 4);
    std::vector<std::uint8_t> buffer(240, 0xA5);
    EXPECT_EQ(
        messageOf<std::invalid_argument>([&] { converter.Convert(buffer.data(), 239, source); }),
        "The buffer has 239 bytes, the image needs 240.");
    EXPECT_EQ(messageOf<std::invalid_argument>([&] { converter.Convert(nullptr, 240, source); }),
              "There is no buffer to convert into.");
    EXPECT_EQ(buffer, std::vector<std::uint8_t>(240, 0xA5));
    EXPECT_NO_THROW(converter.Convert(buffer.data(), 240, source));
    converter.setOutputPaddingX(1);
    EXPECT_THROW(converter.Convert(buffer.data(), 243, source), std::invalid_argument);
}

TEST(ConverterErrors, BufferOverTheSourceIsRefused)
{
    CImageFormatConverter converter;
    const auto held = std::make_shared<std::vector<std::uint8_t>>(24 + 4);
    const COstriaImage source =
        COstriaImage::attach({held, held->data() + 24}, 4, PixelType::Mono8, 2, 2);
    EXPECT_NO_THROW(converter.Convert(held->data(), 24, source));
    EXPECT_EQ(
        messageOf<std::invalid_argument>([&] { converter.Convert(held->data() + 1, 24, source); }),
        "The buffer overlaps the pixels of the source image.");
}

TEST(ConverterErrors, ResultsThatAnIntCannotCountAreRefused)
{
    CImageFormatConverter converter;
    EXPECT_THROW(converter.bufferSizeForConversion(INT_MAX, 1), std::length_error);
    EXPECT_THROW(converter.bufferSizeForConversion(40000, 40000), std::length_error);
    EXPECT_THROW(converter.bufferSizeForConversion(0, 1), std::invalid_argument);
    EXPECT_THROW(converter.bufferSizeForConversion(1, -1), std::invalid_argument);
    COstriaImage target;
    converter.setOutputPaddingX(SIZE_MAX);
    EXPECT_THROW(converter.Convert(target, noiseImage(PixelType::Mono8, 2, 2)), std::length_error);
    converter.setOutputPaddingX(INT_MAX - 12);
    EXPECT_THROW(converter.Convert(target, noiseImage(PixelType::Mono8, 2, 2)), std::length_error);
    EXPECT_FALSE(target.isValid());
}

} // namespace
} // namespace Ostria
