// SPDX-License-Identifier: Apache-2.0
// Pixel types by their ids of the GenICam Pixel Format Naming Convention (PFNC).
#pragma once

#include <cstdint>

namespace Ostria {

/// The pixel types that this layer reads. The values are the 32-bit PFNC ids, so that a camera's
/// PixelFormat value can be cast. Multi-byte channels are little endian.
enum class PixelType : std::int32_t {
    Undefined = 0,
    Mono8 = 0x01080001,
    Mono10 = 0x01100003,
    Mono12 = 0x01100005,
    Mono16 = 0x01100007,
    Mono12p = 0x010C0047,
    Mono12Packed = 0x010C0006,
    BayerGR8 = 0x01080008,
    BayerRG8 = 0x01080009,
    BayerGB8 = 0x0108000A,
    BayerBG8 = 0x0108000B,
    BayerGR10 = 0x0110000C,
    BayerRG10 = 0x0110000D,
    BayerGB10 = 0x0110000E,
    BayerBG10 = 0x0110000F,
    BayerGR12 = 0x01100010,
    BayerRG12 = 0x01100011,
    BayerGB12 = 0x01100012,
    BayerBG12 = 0x01100013,
    BayerGR16 = 0x0110002E,
    BayerRG16 = 0x0110002F,
    BayerGB16 = 0x01100030,
    BayerBG16 = 0x01100031,
    BayerGR12p = 0x010C0057,
    BayerRG12p = 0x010C0059,
    BayerGB12p = 0x010C0055,
    BayerBG12p = 0x010C0053,
    BayerGR12Packed = 0x010C002A,
    BayerRG12Packed = 0x010C002B,
    BayerGB12Packed = 0x010C002C,
    BayerBG12Packed = 0x010C002D,
    RGB8 = 0x02180014,
    BGR8 = 0x02180015,
    BGRa8 = 0x02200017,
    RGB16 = 0x02300033,
    YUV422_8_UYVY = 0x0210001F,
    YUV422_8 = 0x02100032,
};

/// How the channels lie in a row of pixels.
enum class PixelLayout : std::uint8_t {
    Mono,  ///< one channel
    Bayer, ///< one channel a pixel behind a 2x2 colour filter mosaic
    Color, ///< all channels of a pixel side by side
    Yuv422 ///< one luma a pixel, one pair of chroma values for two pixels
};

/// How the samples of one channel lie in memory.
enum class SamplePacking : std::uint8_t {
    Bytes, ///< whole bytes: one up to 8 bits, two (little endian, unused high bits) above
    Lsb12, ///< "12p": three bytes hold two samples, least significant bits first
    GigE12 ///< "12Packed": high byte, low nibbles of both, high byte
};

/// What is to be known of a pixel type to read it.
struct PixelTypeInfo
{
    PixelLayout layout;
    SamplePacking packing;
    int bitsPerPixel;  ///< in memory, 8 to 48
    int bitDepth;      ///< significant bits of a channel: 8, 10, 12 or 16
    int widthMultiple; ///< an image's width is a multiple of it: 1, or 2 where pixels come in pairs
    int redX;          ///< Bayer only: column (0 or 1) of the red site in the mosaic's first cell
    int redY;          ///< Bayer only: row (0 or 1) of the red site in the mosaic's first cell
};

/// Description of a pixel type. Reentrant.
/// \return null if the type is Undefined or not one of the enumeration
const PixelTypeInfo* pixelTypeInfo(PixelType type);

/// The name of a pixel type as the PFNC spells it, "Undefined" for any other value.
const char* pixelTypeName(PixelType type);

} // namespace Ostria
