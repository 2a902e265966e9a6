// SPDX-License-Identifier: Apache-2.0
// Tests of the table of pixel types.
#include "pixeltype.h"

#include "slowdecoder.h"

#include <gtest/gtest.h>

namespace Ostria {
namespace {

TEST(PixelType, HasTheIdAndNameOfTheNamingConvention)
{
    for (const NamedType& named : allTypes()) {
        EXPECT_EQ(static_cast<std::uint32_t>(named.type), named.id) << named.name;
        EXPECT_STREQ(pixelTypeName(named.type), named.name);
    }
}

TEST(PixelType, MeasuringAndDisplayHaveTheirIds)
{
    EXPECT_EQ(static_cast<int>(PixelType::RGB16), 36700211);
    EXPECT_EQ(static_cast<int>(PixelType::BGRa8), 35651607);
}

TEST(PixelType, BitsPerPixelAreThoseInTheId)
{
    for (const NamedType& named : allTypes()) {
        ASSERT_NE(pixelTypeInfo(named.type), nullptr) << named.name;
        // The convention keeps the size of a pixel in the third byte.
        EXPECT_EQ(pixelTypeInfo(named.type)->bitsPerPixel, (named.id >> 16) & 0xFF) << named.name;
    }
}

TEST(PixelType, DepthIsThatInTheName)
{
    for (const NamedType& named : allTypes())
        EXPECT_EQ(pixelTypeInfo(named.type)->bitDepth, depthOf(named.type)) << named.name;
}

TEST(PixelType, RedSiteIsWhereTheNameSaysIt)
{
    int mosaics = 0;
    for (const NamedType& named : allTypes()) {
        if (!isBayer(named.type))
            continue;
        ++mosaics;
        const PixelTypeInfo* info = pixelTypeInfo(named.type);
        EXPECT_EQ(info->layout, PixelLayout::Bayer);
        EXPECT_EQ(filterAt(named.type, info->redX, info->redY), 'R') << named.name;
        EXPECT_EQ(filterAt(named.type, 1 - info->redX, 1 - info->redY), 'B') << named.name;
    }
    EXPECT_EQ(mosaics, 24);
}

TEST(PixelType, PairsOfPixelsNeedAnEvenWidth)
{
    for (const NamedType& named : allTypes()) {
        const bool twelveBitsPerPixel = ((named.id >> 16) & 0xFF) == 12;
        const bool pairs = isBayer(named.type) || isYuv(named.type) || twelveBitsPerPixel;
        EXPECT_EQ(pixelTypeInfo(named.type)->widthMultiple, pairs ? 2 : 1) << named.name;
    }
}

TEST(PixelType, UnknownValuesHaveNoInfo)
{
    for (const int value : {0, -1, 1, 0x01080002, 0x02180033, 0x7FFFFFFF}) {
        EXPECT_EQ(pixelTypeInfo(static_cast<PixelType>(value)), nullptr) << value;
        EXPECT_STREQ(pixelTypeName(static_cast<PixelType>(value)), "Undefined") << value;
    }
}

} // namespace
} // namespace Ostria
