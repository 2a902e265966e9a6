// SPDX-License-Identifier: Apache-2.0
// A slow and obvious second decoder of pixels, and images of noise to feed both.
#include "slowdecoder.h"

#include <algorithm>
#include <cstring>
#include <random>

namespace Ostria {
namespace {

std::string nameOf(PixelType type)
{
    for (const NamedType& named : allTypes()) {
        if (named.type == type)
            return named.name;
    }
    return {};
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

int bitAt(const std::uint8_t* row, int number)
{
    return (row[number / 8] >> (number % 8)) & 1;
}

} // namespace

const std::vector<NamedType>& allTypes()
{
    // GenICam Pixel Format Values, the list that accompanies the PFNC 2.x document.
    static const std::vector<NamedType> types = {
        {PixelType::Mono8, 0x01080001, "Mono8"},
        {PixelType::Mono10, 0x01100003, "Mono10"},
        {PixelType::Mono12, 0x01100005, "Mono12"},
        {PixelType::Mono16, 0x01100007, "Mono16"},
        {PixelType::Mono12p, 0x010C0047, "Mono12p"},
        {PixelType::Mono12Packed, 0x010C0006, "Mono12Packed"},
        {PixelType::BayerGR8, 0x01080008, "BayerGR8"},
        {PixelType::BayerRG8, 0x01080009, "BayerRG8"},
        {PixelType::BayerGB8, 0x0108000A, "BayerGB8"},
        {PixelType::BayerBG8, 0x0108000B, "BayerBG8"},
        {PixelType::BayerGR10, 0x0110000C, "BayerGR10"},
        {PixelType::BayerRG10, 0x0110000D, "BayerRG10"},
        {PixelType::BayerGB10, 0x0110000E, "BayerGB10"},
        {PixelType::BayerBG10, 0x0110000F, "BayerBG10"},
        {PixelType::BayerGR12, 0x01100010, "BayerGR12"},
        {PixelType::BayerRG12, 0x01100011, "BayerRG12"},
        {PixelType::BayerGB12, 0x01100012, "BayerGB12"},
        {PixelType::BayerBG12, 0x01100013, "BayerBG12"},
        {PixelType::BayerGR16, 0x0110002E, "BayerGR16"},
        {PixelType::BayerRG16, 0x0110002F, "BayerRG16"},
        {PixelType::BayerGB16, 0x01100030, "BayerGB16"},
        {PixelType::BayerBG16, 0x01100031, "BayerBG16"},
        {PixelType::BayerGR12p, 0x010C0057, "BayerGR12p"},
        {PixelType::BayerRG12p, 0x010C0059, "BayerRG12p"},
        {PixelType::BayerGB12p, 0x010C0055, "BayerGB12p"},
        {PixelType::BayerBG12p, 0x010C0053, "BayerBG12p"},
        {PixelType::BayerGR12Packed, 0x010C002A, "BayerGR12Packed"},
        {PixelType::BayerRG12Packed, 0x010C002B, "BayerRG12Packed"},
        {PixelType::BayerGB12Packed, 0x010C002C, "BayerGB12Packed"},
        {PixelType::BayerBG12Packed, 0x010C002D, "BayerBG12Packed"},
        {PixelType::RGB8, 0x02180014, "RGB8"},
        {PixelType::BGR8, 0x02180015, "BGR8"},
        {PixelType::BGRa8, 0x02200017, "BGRa8"},
        {PixelType::RGB16, 0x02300033, "RGB16"},
        {PixelType::YUV422_8_UYVY, 0x0210001F, "YUV422_8_UYVY"},
        {PixelType::YUV422_8, 0x02100032, "YUV422_8"},
    };
    return types;
}

std::vector<PixelType> typesWhere(bool (*wanted)(PixelType))
{
    std::vector<PixelType> types;
    for (const NamedType& named : allTypes()) {
        if (wanted(named.type))
            types.push_back(named.type);
    }
    return types;
}

bool isBayer(PixelType type)
{
    return nameOf(type).compare(0, 5, "Bayer") == 0;
}

bool isYuv(PixelType type)
{
    return nameOf(type).compare(0, 3, "YUV") == 0;
}

int depthOf(PixelType type)
{
    if (isYuv(type))
        return 8;
    const std::string name = nameOf(type);
    return std::stoi(name.substr(name.find_first_of("0123456789")));
}

char filterAt(PixelType type, int x, int y)
{
    const std::string firstRow = nameOf(type).substr(5, 2);
    if (y % 2 == 0)
        return firstRow[static_cast<std::size_t>(x % 2)];
    // Green stands on a diagonal, and the colour that the first row lacks beside it.
    const char missing = firstRow.find('R') == std::string::npos ? 'R' : 'B';
    const bool greenFirst = firstRow[0] != 'G';
    return (x % 2 == 0) == greenFirst ? 'G' : missing;
}

int slowSample(PixelType type, const std::uint8_t* row, int x)
{
    const std::string name = nameOf(type);
    if (endsWith(name, "12p")) {
        int value = 0;
        for (int bit = 0; bit < 12; ++bit)
            value += bitAt(row, 12 * x + bit) << bit;
        return value;
    }
    if (endsWith(name, "Packed")) {
        const std::uint8_t* pair = row + x / 2 * 3;
        return x % 2 == 0 ? pair[0] * 16 + pair[1] % 16 : pair[2] * 16 + pair[1] / 16;
    }
    if (depthOf(type) == 8)
        return row[x];
    return (row[2 * x] + 256 * row[2 * x + 1]) % (1 << depthOf(type));
}

Rgb slowPixel(PixelType type, const std::uint8_t* row, int x, int y)
{
    switch (type) {
    case PixelType::RGB8:
        return {row[3 * x], row[3 * x + 1], row[3 * x + 2]};
    case PixelType::BGR8:
        return {row[3 * x + 2], row[3 * x + 1], row[3 * x]};
    case PixelType::BGRa8:
        return {row[4 * x + 2], row[4 * x + 1], row[4 * x]};
    case PixelType::RGB16:
        return {row[6 * x] + 256 * row[6 * x + 1], row[6 * x + 2] + 256 * row[6 * x + 3],
                row[6 * x + 4] + 256 * row[6 * x + 5]};
    default:
        break;
    }
    const int value = slowSample(type, row, x);
    if (!isBayer(type))
        return {value, value, value};
    const char filter = filterAt(type, x, y);
    return {filter == 'R' ? value : 0, filter == 'G' ? value : 0, filter == 'B' ? value : 0};
}

std::array<double, 3> slowYuv(PixelType type, const std::uint8_t* row, int x)
{
    const std::uint8_t* pair = row + x / 2 * 4;
    const bool lumaFirst = type == PixelType::YUV422_8;
    const int code = pair[(x % 2 == 0 ? 0 : 2) + (lumaFirst ? 0 : 1)];
    const double luma = 255.0 / 219 * (std::max(code, 16) - 16);
    const double cb = 255.0 / 224 * (pair[lumaFirst ? 1 : 0] - 128);
    const double cr = 255.0 / 224 * (pair[lumaFirst ? 3 : 2] - 128);
    return {luma + 1.402 * cr, luma - 0.344136 * cb - 0.714136 * cr, luma + 1.772 * cb};
}

std::vector<std::uint8_t> noise(std::size_t size, unsigned seed)
{
    std::mt19937 random(seed);
    std::vector<std::uint8_t> bytes(size);
    for (std::uint8_t& byte : bytes)
        byte = static_cast<std::uint8_t>(random());
    return bytes;
}

COstriaImage noiseImage(PixelType type, int width, int height, std::size_t paddingX)
{
    COstriaImage image(type, width, height, paddingX);
    const std::vector<std::uint8_t> bytes = noise(image.size());
    std::memcpy(image.writableData(), bytes.data(), bytes.size());
    return image;
}

const std::uint8_t* rowOf(const COstriaImage& image, int y)
{
    return image.data() + image.stride() * static_cast<std::size_t>(y);
}

Rgb rgb16At(const COstriaImage& image, int x, int y)
{
    return slowPixel(PixelType::RGB16, rowOf(image, y), x, y);
}

std::vector<std::uint8_t> rowBytes(const std::uint8_t* data, std::size_t stride, std::size_t row,
                                   int rows)
{
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < rows; ++y, data += stride)
        bytes.insert(bytes.end(), data, data + row);
    return bytes;
}

} // namespace Ostria
