// SPDX-License-Identifier: Apache-2.0
// Tests of the image container: shape, ownership and reading.
#include "ostriaimage.h"

#include "slowdecoder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <stdexcept>
#include <thread>
#include <utility>

namespace Ostria {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;

/// A buffer whose first byte has an odd address.
std::shared_ptr<const std::uint8_t> oddCopy(const COstriaImage& image)
{
    const std::shared_ptr<std::uint8_t> memory(new std::uint8_t[image.size() + 1],
                                               std::default_delete<std::uint8_t[]>());
    std::memcpy(memory.get() + 1, image.data(), image.size());
    return {memory, memory.get() + 1};
}

Rgb colorsOf(const PixelReading& reading)
{
    return {reading.red, reading.green, reading.blue};
}

void expectReadingsOfSlowDecoder(const COstriaImage& image)
{
    std::vector<std::uint16_t> row(3 * static_cast<std::size_t>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        image.readRow(0, y, image.width(), row.data());
        for (int x = 0; x < image.width(); ++x) {
            const Rgb expected = slowPixel(image.pixelType(), rowOf(image, y), x, y);
            const PixelReading reading = image.readPixel(x, y);
            ASSERT_EQ(colorsOf(reading), expected) << x << ", " << y;
            ASSERT_EQ(reading.pixelType, static_cast<int>(image.pixelType()));
            ASSERT_EQ(reading.bitDepth, depthOf(image.pixelType()));
            const std::size_t at = 3 * static_cast<std::size_t>(x);
            const Rgb fromRow = {row[at], row[at + 1], row[at + 2]};
            ASSERT_EQ(fromRow, expected) << x << ", " << y;
        }
    }
}

class EveryType : public testing::TestWithParam<PixelType>
{};

class EveryTypeButYuv : public EveryType
{};

INSTANTIATE_TEST_SUITE_P(OstriaImage, EveryType,
                         testing::ValuesIn(typesWhere([](PixelType) { return true; })),
                         testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(OstriaImage, EveryTypeButYuv,
                         testing::ValuesIn(typesWhere([](PixelType type) { return !isYuv(type); })),
                         testing::PrintToStringParamName());

TEST_P(EveryTypeButYuv, ReadsWhatTheSlowDecoderReads)
{
    const int multiple = pixelTypeInfo(GetParam())->widthMultiple;
    for (const int width : {multiple, 5 * multiple, 17 * multiple}) {
        for (const std::size_t padding : {0u, 3u, 8u}) {
            SCOPED_TRACE(testing::Message() << width << " pixels, padding " << padding);
            const COstriaImage image = noiseImage(GetParam(), width, 5, padding);
            expectReadingsOfSlowDecoder(image);
            expectReadingsOfSlowDecoder(
                COstriaImage::attach(oddCopy(image), image.size(), GetParam(), width, 5, padding));
        }
    }
}

TEST_P(EveryType, ReadsAnyRunOfARowAlike)
{
    const int width = 12;
    const COstriaImage image = noiseImage(GetParam(), width, 2, 1);
    for (int x = 0; x <= width; ++x) {
        for (int count = 0; count <= width - x; ++count) {
            std::vector<std::uint16_t> run(3 * static_cast<std::size_t>(count) + 1, 0xABCD);
            image.readRow(x, 1, count, run.data());
            for (int i = 0; i < count; ++i) {
                const std::size_t at = 3 * static_cast<std::size_t>(i);
                const Rgb fromRun = {run[at], run[at + 1], run[at + 2]};
                ASSERT_EQ(fromRun, colorsOf(image.readPixel(x + i, 1))) << x << ", " << count;
            }
            ASSERT_EQ(run.back(), 0xABCD) << "written behind the run";
        }
    }
}

TEST_P(EveryTypeButYuv, ExtremesComeBackAtFullScale)
{
    COstriaImage image(GetParam(), 2, 2);
    EXPECT_EQ(colorsOf(image.readPixel(1, 1)), (Rgb{0, 0, 0}));
    std::memset(image.writableData(), 0xFF, image.size());
    const PixelReading reading = image.readPixel(0, 1);
    const int largest = (1 << depthOf(GetParam())) - 1;
    EXPECT_EQ(std::max({reading.red, reading.green, reading.blue}), largest);
}

TEST_P(EveryType, RefusesToReadOutside)
{
    const COstriaImage image = noiseImage(GetParam(), 4, 3);
    const std::pair<int, int> outside[] = {{-1, 0},      {0, -1},      {4, 0},       {0, 3},
                                           {INT_MAX, 0}, {0, INT_MAX}, {0, INT_MIN}, {INT_MIN, 0}};
    for (const auto& [x, y] : outside)
        EXPECT_THROW(image.readPixel(x, y), std::out_of_range) << x << ", " << y;
}

TEST(OstriaImage, ReadsKnownBytes)
{
    const auto read = [](PixelType type, std::vector<std::uint8_t> bytes, int x) {
        const int width = 8 * static_cast<int>(bytes.size()) / pixelTypeInfo(type)->bitsPerPixel;
        const auto held = std::make_shared<std::vector<std::uint8_t>>(std::move(bytes));
        return colorsOf(COstriaImage::attach({held, held->data()}, held->size(), type, width, 1)
                            .readPixel(x, 0));
    };
    EXPECT_EQ(read(PixelType::Mono12p, {0xBC, 0x3A, 0x12}, 0), (Rgb{0xABC, 0xABC, 0xABC}));
    EXPECT_EQ(read(PixelType::Mono12p, {0xBC, 0x3A, 0x12}, 1), (Rgb{0x123, 0x123, 0x123}));
    EXPECT_EQ(read(PixelType::Mono12Packed, {0xAB, 0x3C, 0x12}, 0), (Rgb{0xABC, 0xABC, 0xABC}));
    EXPECT_EQ(read(PixelType::Mono12Packed, {0xAB, 0x3C, 0x12}, 1), (Rgb{0x123, 0x123, 0x123}));
    EXPECT_EQ(read(PixelType::Mono12, {0xBC, 0xFA}, 0), (Rgb{0xABC, 0xABC, 0xABC}));
    EXPECT_EQ(read(PixelType::BGRa8, {1, 2, 3, 4}, 0), (Rgb{3, 2, 1}));
    EXPECT_EQ(read(PixelType::BayerGB8, {7, 9}, 0), (Rgb{0, 7, 0}));
    EXPECT_EQ(read(PixelType::BayerGB8, {7, 9}, 1), (Rgb{0, 0, 9}));
    // BT.601: luma 16 is black and 235 is white where chroma is 128.
    EXPECT_EQ(read(PixelType::YUV422_8, {16, 128, 235, 128}, 0), (Rgb{0, 0, 0}));
    EXPECT_EQ(read(PixelType::YUV422_8, {16, 128, 235, 128}, 1), (Rgb{255, 255, 255}));
    EXPECT_EQ(read(PixelType::YUV422_8_UYVY, {128, 16, 128, 235}, 1), (Rgb{255, 255, 255}));
}

TEST(OstriaImage, YuvIsThatOfTheStandardWithinItsRounding)
{
    for (const PixelType type : {PixelType::YUV422_8, PixelType::YUV422_8_UYVY}) {
        const COstriaImage image = noiseImage(type, 4096, 4, 3);
        std::vector<std::uint16_t> row(3 * 4096);
        for (int y = 0; y < image.height(); ++y) {
            image.readRow(0, y, image.width(), row.data());
            for (int x = 0; x < image.width(); ++x) {
                const auto exact = slowYuv(type, rowOf(image, y), x);
                const Rgb reading = colorsOf(image.readPixel(x, y));
                for (std::size_t c = 0; c < 3; ++c) {
                    const double inRange = std::min(std::max(exact[c], 0.0), 255.0);
                    ASSERT_NEAR(reading[c], inRange, 1.0) << x << ", " << y;
                    ASSERT_EQ(row[3 * static_cast<std::size_t>(x) + c], reading[c]);
                }
            }
        }
    }
}

TEST(OstriaImage, DefaultHasNoPixels)
{
    COstriaImage image;
    EXPECT_FALSE(image.isValid());
    EXPECT_EQ(image.pixelType(), PixelType::Undefined);
    EXPECT_EQ(image.width(), 0);
    EXPECT_EQ(image.height(), 0);
    EXPECT_EQ(image.stride(), 0u);
    EXPECT_EQ(image.size(), 0u);
    EXPECT_EQ(image.data(), nullptr);
    EXPECT_EQ(image.writableData(), nullptr);
    EXPECT_EQ(messageOf<std::out_of_range>([&] { image.readPixel(0, 0); }),
              "The image has no pixels.");
    std::uint16_t none[1];
    EXPECT_THROW(image.readRow(0, 0, 0, none), std::out_of_range);
}

TEST(OstriaImage, NewImageIsZeroedAndKnowsItsShape)
{
    const COstriaImage image(PixelType::RGB16, 5, 3, 7);
    EXPECT_TRUE(image.isValid());
    EXPECT_EQ(image.pixelType(), PixelType::RGB16);
    EXPECT_EQ(image.width(), 5);
    EXPECT_EQ(image.height(), 3);
    EXPECT_EQ(image.paddingX(), 7u);
    EXPECT_EQ(image.stride(), 37u);
    ASSERT_EQ(image.size(), 111u);
    const std::vector<std::uint8_t> bytes(image.data(), image.data() + image.size());
    EXPECT_THAT(bytes, Each(0));
}

TEST(OstriaImage, RefusesShapesThatCannotBe)
{
    EXPECT_THROW(COstriaImage(PixelType::Undefined, 4, 4), std::invalid_argument);
    EXPECT_THROW(COstriaImage(static_cast<PixelType>(-1), 4, 4), std::invalid_argument);
    EXPECT_THROW(COstriaImage(PixelType::Mono8, 0, 4), std::invalid_argument);
    EXPECT_THROW(COstriaImage(PixelType::Mono8, 4, 0), std::invalid_argument);
    EXPECT_THROW(COstriaImage(PixelType::Mono8, -4, -4), std::invalid_argument);
    EXPECT_THROW(COstriaImage(PixelType::BayerBG8, 5, 4), std::invalid_argument);
    EXPECT_THROW(COstriaImage(PixelType::Mono8, 65536, 32768), std::length_error);
    EXPECT_THROW(COstriaImage(PixelType::RGB16, INT_MAX, INT_MAX), std::length_error);
    EXPECT_THROW(COstriaImage(PixelType::Mono8, 4, 4, SIZE_MAX), std::length_error);
}

TEST(OstriaImage, RefusesRunsThatLeaveTheRow)
{
    const COstriaImage image = noiseImage(PixelType::Mono8, 10, 2);
    std::uint16_t rgb[30];
    EXPECT_EQ(messageOf<std::out_of_range>([&] { image.readRow(4, 1, 7, rgb); }),
              "7 pixels at (4, 1) are not inside an image of 10 x 2 pixels.");
    EXPECT_THROW(image.readRow(0, 2, 1, rgb), std::out_of_range);
    EXPECT_THROW(image.readRow(-1, 0, 1, rgb), std::out_of_range);
    EXPECT_THROW(image.readRow(0, 0, -1, rgb), std::out_of_range);
    EXPECT_THROW(image.readRow(11, 0, 0, rgb), std::out_of_range);
    EXPECT_THROW(image.readRow(1, 0, INT_MAX, rgb), std::out_of_range);
    EXPECT_THROW(image.readRow(INT_MAX, 0, INT_MAX, rgb), std::out_of_range);
    EXPECT_NO_THROW(image.readRow(10, 0, 0, rgb));
}

TEST(OstriaImage, AttachTakesAWholeBufferOrMore)
{
    const auto held = std::make_shared<std::vector<std::uint8_t>>(231000);
    const std::shared_ptr<const std::uint8_t> buffer(held, held->data());
    EXPECT_NO_THROW(COstriaImage::attach(buffer, 230400, PixelType::RGB8, 320, 240));
    EXPECT_NO_THROW(COstriaImage::attach(buffer, 231000, PixelType::RGB8, 320, 240));
    EXPECT_EQ(messageOf<std::invalid_argument>(
                  [&] { COstriaImage::attach(buffer, 100, PixelType::RGB8, 320, 240); }),
              "The buffer has 100 bytes, the image needs 230400.");
    EXPECT_THAT(messageOf<std::invalid_argument>(
                    [&] { COstriaImage::attach(nullptr, 230400, PixelType::RGB8, 320, 240); }),
                HasSubstr("no buffer"));
}

TEST(OstriaImage, AttachNeedsTheLastRowsPaddingToo)
{
    const auto held = std::make_shared<std::vector<std::uint8_t>>(40);
    const std::shared_ptr<const std::uint8_t> buffer(held, held->data());
    EXPECT_THROW(COstriaImage::attach(buffer, 38, PixelType::Mono8, 8, 4, 2),
                 std::invalid_argument);
    EXPECT_NO_THROW(COstriaImage::attach(buffer, 40, PixelType::Mono8, 8, 4, 2));
}

TEST(OstriaImage, AttachedBufferLivesAsLongAsACopy)
{
    auto held = std::make_shared<std::vector<std::uint8_t>>(4, std::uint8_t(9));
    const std::weak_ptr<std::vector<std::uint8_t>> watch = held;
    COstriaImage copy;
    {
        const COstriaImage image =
            COstriaImage::attach({held, held->data()}, 4, PixelType::Mono8, 2, 2);
        EXPECT_EQ(image.data(), held->data());
        copy = image;
    }
    held.reset();
    EXPECT_FALSE(watch.expired());
    EXPECT_EQ(copy.readPixel(1, 1).green, 9);
    copy = COstriaImage();
    EXPECT_TRUE(watch.expired());
}

TEST(OstriaImage, WritingLeavesAttachedBufferAlone)
{
    const auto held = std::make_shared<std::vector<std::uint8_t>>(4, std::uint8_t(9));
    COstriaImage image = COstriaImage::attach({held, held->data()}, 4, PixelType::Mono8, 2, 2);
    image.writableData()[0] = 1;
    EXPECT_THAT(*held, ElementsAre(9, 9, 9, 9));
    EXPECT_EQ(image.readPixel(0, 0).red, 1);
    EXPECT_EQ(image.readPixel(1, 0).red, 9);
    EXPECT_EQ(image.writableData(), image.data()) << "copied once only";
}

TEST(OstriaImage, WritingLeavesAttachedBufferAloneThatOnlyTheImageHolds)
{
    static const std::uint8_t readOnly[] = {9, 9, 9, 9};
    std::shared_ptr<const std::uint8_t> lent(readOnly, [](const std::uint8_t*) {});
    COstriaImage image = COstriaImage::attach(std::move(lent), 4, PixelType::Mono8, 2, 2);
    EXPECT_NE(image.writableData(), readOnly);
    EXPECT_EQ(image.readPixel(1, 1).blue, 9);
}

TEST(OstriaImage, WritingLeavesCopiesAlone)
{
    COstriaImage first = noiseImage(PixelType::Mono8, 3, 3);
    const COstriaImage second = first;
    EXPECT_EQ(first.data(), second.data());
    const int before = second.readPixel(0, 0).red;
    first.writableData()[0] = static_cast<std::uint8_t>(before + 1);
    EXPECT_EQ(second.readPixel(0, 0).red, before);
    EXPECT_EQ(first.readPixel(2, 2).red, second.readPixel(2, 2).red);
}

TEST(OstriaImage, MovedFromImageHasNoPixels)
{
    COstriaImage source = noiseImage(PixelType::Mono8, 3, 3);
    const std::uint8_t* pixels = source.data();
    COstriaImage target = std::move(source);
    EXPECT_EQ(target.data(), pixels);
    EXPECT_FALSE(source.isValid()); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(source.size(), 0u);
    EXPECT_THROW(source.readPixel(0, 0), std::out_of_range);
    source = std::move(target);
    EXPECT_EQ(source.data(), pixels);
    EXPECT_FALSE(target.isValid()); // NOLINT(bugprone-use-after-move)
}

TEST(OstriaImage, CopiesCanBeReadAndWrittenInTheirThreads)
{
    COstriaImage image = noiseImage(PixelType::Mono8, 64, 64);
    const int last = image.readPixel(63, 63).red;
    std::vector<std::thread> threads;
    std::vector<int> seen(4);
    for (std::size_t i = 0; i < seen.size(); ++i) {
        threads.emplace_back([copy = image, i, &seen]() mutable {
            seen[i] = copy.readPixel(63, 63).red;
            copy.writableData()[0] = static_cast<std::uint8_t>(i);
            if (copy.readPixel(0, 0).red != static_cast<int>(i))
                seen[i] = -1;
        });
    }
    image.writableData()[64 * 64 - 1] = static_cast<std::uint8_t>(last + 1);
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_THAT(seen, Each(last));
}

} // namespace
} // namespace Ostria
