// SPDX-License-Identifier: Apache-2.0
// Tests of the interpolation of mosaics.
#include "imageformatconverter.h"

#include "slowdecoder.h"

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace Ostria {
namespace {

constexpr PixelType orders[] = {PixelType::BayerRG16, PixelType::BayerGR16, PixelType::BayerGB16,
                                PixelType::BayerBG16};

/// A 16-bit mosaic of which value(filter, x, y) tells the sites.
template <typename Value>
COstriaImage mosaicOf(PixelType type, int width, int height, Value value)
{
    COstriaImage image(type, width, height);
    std::uint8_t* byte = image.writableData();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int sample = value(filterAt(type, x, y), x, y);
            *byte++ = static_cast<std::uint8_t>(sample % 256);
            *byte++ = static_cast<std::uint8_t>(sample / 256);
        }
    }
    return image;
}

COstriaImage toRgb16(const COstriaImage& source)
{
    CImageFormatConverter converter;
    COstriaImage target;
    converter.Convert(target, source);
    return target;
}

/// Sets OpenCV's number of threads as long as it lives.
class ThreadCount
{
public:
    explicit ThreadCount(int count) { cv::setNumThreads(count); }
    ~ThreadCount() { cv::setNumThreads(m_before); }
    ThreadCount(const ThreadCount&) = delete;
    ThreadCount& operator=(const ThreadCount&) = delete;

private:
    int m_before = cv::getNumThreads();
};

/// Bilinear interpolation by its definition: a channel that a site lacks is the rounded mean of
/// the nearest sites that have it. Outermost rows and columns repeat their neighbours.
class SlowMosaic
{
public:
    explicit SlowMosaic(const COstriaImage& image)
        : m_image(image)
    {}

    Rgb at(int x, int y) const
    {
        const int insideX = std::clamp(x, 1, m_image.width() - 2);
        const int insideY = std::clamp(y, 1, m_image.height() - 2);
        return {channel('R', insideX, insideY), channel('G', insideX, insideY),
                channel('B', insideX, insideY)};
    }

private:
    int sample(int x, int y) const
    {
        const int value = slowSample(m_image.pixelType(), rowOf(m_image, y), x);
        return value << (16 - depthOf(m_image.pixelType()));
    }

    int channel(char filter, int x, int y) const
    {
        if (filterAt(m_image.pixelType(), x, y) == filter)
            return sample(x, y);
        int sum = 0;
        int count = 0;
        for (const int distance : {1, 2}) { // squared: sides first, then corners
            for (int dy = -1; count < 4 && dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    if (dx * dx + dy * dy != distance ||
                        filterAt(m_image.pixelType(), x + dx, y + dy) != filter)
                        continue;
                    sum += sample(x + dx, y + dy);
                    ++count;
                }
            }
            if (count > 0)
                break;
        }
        return (sum + count / 2) / count;
    }

    const COstriaImage& m_image;
};

/// The whole frame at once by OpenCV.
std::vector<std::uint8_t> wholeFrame(const COstriaImage& image, int code)
{
    cv::Mat mosaic(image.height(), image.width(), CV_16UC1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            mosaic.at<std::uint16_t>(y, x) =
                static_cast<std::uint16_t>(slowSample(image.pixelType(), rowOf(image, y), x)
                                           << (16 - depthOf(image.pixelType())));
    }
    cv::Mat colors;
    cv::cvtColor(mosaic, colors, code);
    return {colors.data, colors.data + colors.total() * colors.elemSize()};
}

TEST(Demosaic, IsTheDefinitionForEveryMosaicType)
{
    for (const NamedType& named : allTypes()) {
        if (!isBayer(named.type))
            continue;
        for (const auto& [width, height] : {std::pair(4, 3), std::pair(6, 4), std::pair(22, 37)}) {
            const COstriaImage source = noiseImage(named.type, width, height, 5);
            const COstriaImage result = toRgb16(source);
            const SlowMosaic expected(source);
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x)
                    ASSERT_EQ(rgb16At(result, x, y), expected.at(x, y))
                        << named.name << " " << width << " x " << height << ": " << x << ", " << y;
            }
        }
    }
}

TEST(Demosaic, StripsAreTheWholeFrameBitForBit)
{
    const int codes[] = {cv::COLOR_BayerRGGB2RGB, cv::COLOR_BayerGRBG2RGB, cv::COLOR_BayerGBRG2RGB,
                         cv::COLOR_BayerBGGR2RGB};
    for (const int threads : {1, 2, 3, 7}) {
        const ThreadCount limited(threads);
        for (const int height : {3, 4, 15, 16, 17, 31, 32, 33, 34, 47, 48, 49, 50, 127, 240}) {
            for (std::size_t order = 0; order < std::size(orders); ++order) {
                const COstriaImage source = noiseImage(orders[order], 8, height);
                const COstriaImage result = toRgb16(source);
                ASSERT_EQ(rowBytes(result.data(), result.stride(), result.stride(), height),
                          wholeFrame(source, codes[order]))
                    << threads << " threads, " << height << " rows";
            }
        }
    }
}

TEST(Demosaic, StripsOfALargeFrameAreTheWholeFrame)
{
    for (const int threads : {1, 2}) {
        const ThreadCount limited(threads);
        for (const PixelType type : {PixelType::BayerRG12, PixelType::BayerRG12p}) {
            const COstriaImage source = noiseImage(type, 1026, 801);
            const COstriaImage result = toRgb16(source);
            const auto expected = wholeFrame(source, cv::COLOR_BayerRGGB2RGB);
            ASSERT_EQ(result.size(), expected.size());
            EXPECT_EQ(std::memcmp(result.data(), expected.data(), expected.size()), 0);
        }
    }
}

TEST(Demosaic, UniformColorStaysExact)
{
    for (const PixelType type : orders) {
        const COstriaImage result = toRgb16(mosaicOf(type, 10, 9, [](char filter, int, int) {
            return filter == 'R' ? 60000 : filter == 'G' ? 12345 : 1;
        }));
        for (int y = 0; y < 9; ++y) {
            for (int x = 0; x < 10; ++x)
                ASSERT_EQ(rgb16At(result, x, y), (Rgb{60000, 12345, 1})) << x << ", " << y;
        }
    }
}

TEST(Demosaic, LinearRampsStayExactInside)
{
    const auto red = [](int x, int y) {
        return 1000 + 40 * x + 80 * y;
    };
    const auto green = [](int x, int y) {
        return 50000 - 120 * x + 20 * y;
    };
    const auto blue = [](int x, int y) {
        return 30000 + 60 * x - 200 * y;
    };
    for (const PixelType type : orders) {
        const COstriaImage result = toRgb16(mosaicOf(type, 64, 70, [&](char filter, int x, int y) {
            return filter == 'R' ? red(x, y) : filter == 'G' ? green(x, y) : blue(x, y);
        }));
        for (int y = 1; y < 69; ++y) {
            for (int x = 1; x < 63; ++x)
                ASSERT_EQ(rgb16At(result, x, y), (Rgb{red(x, y), green(x, y), blue(x, y)}))
                    << x << ", " << y;
        }
    }
}

TEST(Demosaic, SingleSiteSpreadsInItsOwnChannel)
{
    // Parts of 4000 that a site gives to itself, the sites beside it and those at its corners.
    const std::array<int, 3> redOrBlue = {4000, 2000, 1000};
    const std::array<int, 3> green = {4000, 1000, 0};
    for (const PixelType type : orders) {
        for (const auto& [siteX, siteY] :
             {std::pair(4, 4), std::pair(5, 4), std::pair(4, 5), std::pair(5, 5)}) {
            const COstriaImage result =
                toRgb16(mosaicOf(type, 10, 10, [x0 = siteX, y0 = siteY](char, int x, int y) {
                    return x == x0 && y == y0 ? 4000 : 0;
                }));
            const char filter = filterAt(type, siteX, siteY);
            const auto& parts = filter == 'G' ? green : redOrBlue;
            const std::size_t channel = filter == 'R' ? 0 : filter == 'G' ? 1 : 2;
            for (int y = 0; y < 10; ++y) {
                for (int x = 0; x < 10; ++x) {
                    const auto dx = static_cast<std::size_t>(std::abs(x - siteX));
                    const auto dy = static_cast<std::size_t>(std::abs(y - siteY));
                    Rgb expected = {0, 0, 0};
                    if (dx <= 1 && dy <= 1)
                        expected[channel] = parts[dx + dy];
                    ASSERT_EQ(rgb16At(result, x, y), expected) << x << ", " << y;
                }
            }
        }
    }
}

} // namespace
} // namespace Ostria
