// SPDX-License-Identifier: Apache-2.0
// Tests of row lengths.
#include "stride.h"

#include "slowdecoder.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <stdexcept>

namespace Ostria {
namespace {

TEST(ComputeStride, IsThePixelsAndThePadding)
{
    EXPECT_EQ(ComputeStride(PixelType::Mono8, 7), 7u);
    EXPECT_EQ(ComputeStride(PixelType::Mono8, 7, 5), 12u);
    EXPECT_EQ(ComputeStride(PixelType::BayerRG12, 1920), 3840u);
    EXPECT_EQ(ComputeStride(PixelType::BayerRG12p, 1920), 2880u);
    EXPECT_EQ(ComputeStride(PixelType::Mono12Packed, 2), 3u);
    EXPECT_EQ(ComputeStride(PixelType::RGB8, 5), 15u);
    EXPECT_EQ(ComputeStride(PixelType::RGB16, 1920), 11520u);
    EXPECT_EQ(ComputeStride(PixelType::BGRa8, 1920), 7680u);
    EXPECT_EQ(ComputeStride(PixelType::YUV422_8, 640), 1280u);
}

TEST(ComputeStride, TakesTheLongestRowThatAnIntCounts)
{
    EXPECT_EQ(ComputeStride(PixelType::Mono8, INT_MAX), static_cast<std::size_t>(INT_MAX));
    EXPECT_EQ(ComputeStride(PixelType::Mono8, 1, INT_MAX - 1), static_cast<std::size_t>(INT_MAX));
}

TEST(ComputeStride, RefusesWhatAnIntCannotCount)
{
    EXPECT_THROW(ComputeStride(PixelType::RGB16, INT_MAX), std::length_error);
    EXPECT_THROW(ComputeStride(PixelType::BGRa8, INT_MAX / 4 + 1), std::length_error);
    EXPECT_THROW(ComputeStride(PixelType::Mono8, 1, INT_MAX), std::length_error);
    EXPECT_THROW(ComputeStride(PixelType::Mono8, 1, SIZE_MAX), std::length_error);
    EXPECT_EQ(messageOf<std::length_error>([] { ComputeStride(PixelType::Mono16, INT_MAX, 3); }),
              "A row of 4294967294 bytes and a padding of 3 bytes are too long.");
}

TEST(ComputeStride, RefusesWidthsThatATypeCannotHave)
{
    for (const int width : {0, -1, INT_MIN})
        EXPECT_THROW(ComputeStride(PixelType::Mono8, width), std::invalid_argument) << width;
    EXPECT_EQ(messageOf<std::invalid_argument>([] { ComputeStride(PixelType::Mono8, -3); }),
              "The width is -3, it must be at least 1.");
    EXPECT_EQ(messageOf<std::invalid_argument>([] { ComputeStride(PixelType::BayerRG8, 641); }),
              "The width is 641, BayerRG8 needs a multiple of 2.");
    for (const NamedType& named : allTypes()) {
        const bool pairs = pixelTypeInfo(named.type)->widthMultiple == 2;
        if (pairs)
            EXPECT_THROW(ComputeStride(named.type, 3), std::invalid_argument) << named.name;
        else
            EXPECT_NO_THROW(ComputeStride(named.type, 3)) << named.name;
    }
}

TEST(ComputeStride, RefusesUnknownTypes)
{
    EXPECT_THROW(ComputeStride(PixelType::Undefined, 4), std::invalid_argument);
    EXPECT_EQ(messageOf<std::invalid_argument>(
                  [] { ComputeStride(static_cast<PixelType>(0x010A0046), 4); }),
              "The pixel type 0x010A0046 is not supported.");
}

TEST(ComputePaddingX, IsWhatTheStrideHasTooMuch)
{
    EXPECT_EQ(ComputePaddingX(11520, PixelType::RGB16, 1920), 0u);
    EXPECT_EQ(ComputePaddingX(16, PixelType::RGB8, 5), 1u);
    for (const NamedType& named : allTypes()) {
        for (const std::size_t padding : {0u, 1u, 13u})
            EXPECT_EQ(ComputePaddingX(ComputeStride(named.type, 6, padding), named.type, 6),
                      padding);
    }
}

TEST(ComputePaddingX, RefusesStridesShorterThanARow)
{
    EXPECT_EQ(messageOf<std::invalid_argument>([] { ComputePaddingX(14, PixelType::RGB8, 5); }),
              "The stride is 14 bytes, a row needs 15.");
    EXPECT_THROW(ComputePaddingX(SIZE_MAX, PixelType::RGB8, 5), std::length_error);
    EXPECT_THROW(ComputePaddingX(10, PixelType::RGB8, 0), std::invalid_argument);
    EXPECT_THROW(ComputePaddingX(10, PixelType::Undefined, 1), std::invalid_argument);
}

TEST(ComputeImageSize, IsStrideTimesHeight)
{
    EXPECT_EQ(ComputeImageSize(11520, 1200), 13824000u);
    EXPECT_EQ(ComputeImageSize(INT_MAX, 1), static_cast<std::size_t>(INT_MAX));
}

TEST(ComputeImageSize, RefusesHeightsBelowOneAndOverflow)
{
    for (const int height : {0, -1, INT_MIN})
        EXPECT_THROW(ComputeImageSize(4, height), std::invalid_argument) << height;
    EXPECT_THROW(ComputeImageSize(INT_MAX, 2), std::length_error);
    EXPECT_THROW(ComputeImageSize(SIZE_MAX, 2), std::length_error);
    EXPECT_EQ(messageOf<std::length_error>([] { ComputeImageSize(65536, 32768); }),
              "32768 rows of 65536 bytes are too many.");
}

} // namespace
} // namespace Ostria
