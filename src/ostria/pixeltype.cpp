// SPDX-License-Identifier: Apache-2.0
// Table of the pixel types that this layer reads.
#include "pixeltype.h"

#include <algorithm>
#include <iterator>

namespace Ostria {
namespace {

struct Entry
{
    PixelType type;
    const char* name;
    PixelTypeInfo info;
};

constexpr PixelTypeInfo mono(int depth)
{
    return {PixelLayout::Mono, SamplePacking::Bytes, depth > 8 ? 16 : 8, depth, 1, 0, 0};
}

constexpr PixelTypeInfo monoPacked(SamplePacking packing)
{
    return {PixelLayout::Mono, packing, 12, 12, 2, 0, 0};
}

constexpr PixelTypeInfo bayer(int depth, int redX, int redY)
{
    return {PixelLayout::Bayer, SamplePacking::Bytes, depth > 8 ? 16 : 8, depth, 2, redX, redY};
}

constexpr PixelTypeInfo bayerPacked(SamplePacking packing, int redX, int redY)
{
    return {PixelLayout::Bayer, packing, 12, 12, 2, redX, redY};
}

constexpr PixelTypeInfo color(int bitsPerPixel, int depth)
{
    return {PixelLayout::Color, SamplePacking::Bytes, bitsPerPixel, depth, 1, 0, 0};
}

constexpr PixelTypeInfo yuv422()
{
    return {PixelLayout::Yuv422, SamplePacking::Bytes, 16, 8, 2, 0, 0};
}

constexpr SamplePacking lsb = SamplePacking::Lsb12;
constexpr SamplePacking gigE = SamplePacking::GigE12;

constexpr Entry entries[] = {
    {PixelType::Mono8, "Mono8", mono(8)},
    {PixelType::Mono10, "Mono10", mono(10)},
    {PixelType::Mono12, "Mono12", mono(12)},
    {PixelType::Mono16, "Mono16", mono(16)},
    {PixelType::Mono12p, "Mono12p", monoPacked(lsb)},
    {PixelType::Mono12Packed, "Mono12Packed", monoPacked(gigE)},
    {PixelType::BayerGR8, "BayerGR8", bayer(8, 1, 0)},
    {PixelType::BayerRG8, "BayerRG8", bayer(8, 0, 0)},
    {PixelType::BayerGB8, "BayerGB8", bayer(8, 0, 1)},
    {PixelType::BayerBG8, "BayerBG8", bayer(8, 1, 1)},
    {PixelType::BayerGR10, "BayerGR10", bayer(10, 1, 0)},
    {PixelType::BayerRG10, "BayerRG10", bayer(10, 0, 0)},
    {PixelType::BayerGB10, "BayerGB10", bayer(10, 0, 1)},
    {PixelType::BayerBG10, "BayerBG10", bayer(10, 1, 1)},
    {PixelType::BayerGR12, "BayerGR12", bayer(12, 1, 0)},
    {PixelType::BayerRG12, "BayerRG12", bayer(12, 0, 0)},
    {PixelType::BayerGB12, "BayerGB12", bayer(12, 0, 1)},
    {PixelType::BayerBG12, "BayerBG12", bayer(12, 1, 1)},
    {PixelType::BayerGR16, "BayerGR16", bayer(16, 1, 0)},
    {PixelType::BayerRG16, "BayerRG16", bayer(16, 0, 0)},
    {PixelType::BayerGB16, "BayerGB16", bayer(16, 0, 1)},
    {PixelType::BayerBG16, "BayerBG16", bayer(16, 1, 1)},
    {PixelType::BayerGR12p, "BayerGR12p", bayerPacked(lsb, 1, 0)},
    {PixelType::BayerRG12p, "BayerRG12p", bayerPacked(lsb, 0, 0)},
    {PixelType::BayerGB12p, "BayerGB12p", bayerPacked(lsb, 0, 1)},
    {PixelType::BayerBG12p, "BayerBG12p", bayerPacked(lsb, 1, 1)},
    {PixelType::BayerGR12Packed, "BayerGR12Packed", bayerPacked(gigE, 1, 0)},
    {PixelType::BayerRG12Packed, "BayerRG12Packed", bayerPacked(gigE, 0, 0)},
    {PixelType::BayerGB12Packed, "BayerGB12Packed", bayerPacked(gigE, 0, 1)},
    {PixelType::BayerBG12Packed, "BayerBG12Packed", bayerPacked(gigE, 1, 1)},
    {PixelType::RGB8, "RGB8", color(24, 8)},
    {PixelType::BGR8, "BGR8", color(24, 8)},
    {PixelType::BGRa8, "BGRa8", color(32, 8)},
    {PixelType::RGB16, "RGB16", color(48, 16)},
    {PixelType::YUV422_8_UYVY, "YUV422_8_UYVY", yuv422()},
    {PixelType::YUV422_8, "YUV422_8", yuv422()},
};

const Entry* find(PixelType type)
{
    const auto* found = std::find_if(std::begin(entries), std::end(entries),
                                     [type](const Entry& entry) { return entry.type == type; });
    return found == std::end(entries) ? nullptr : found;
}

} // namespace

const PixelTypeInfo* pixelTypeInfo(PixelType type)
{
    const Entry* entry = find(type);
    return entry ? &entry->info : nullptr;
}

const char* pixelTypeName(PixelType type)
{
    const Entry* entry = find(type);
    return entry ? entry->name : "Undefined";
}

} // namespace Ostria
