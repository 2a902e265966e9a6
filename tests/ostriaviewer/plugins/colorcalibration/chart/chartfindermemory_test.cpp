// SPDX-License-Identifier: Apache-2.0
// The chart finder's memory beyond the image stays within its bound, whatever the image.
#include "colorcorrectionautochartfinder.h"

#include "heapmeter.h"

#include <gtest/gtest.h>

using namespace ColorCalibration;

namespace {

constexpr std::size_t bound = 16'000'000;

std::size_t peakOfSearch(const QSize& size, QImage::Format format)
{
    QImage image(size, format);
    image.fill(QColor(120, 110, 90));
    ColorCorrectionAutoChartFinder finder;
    HeapMeter::restart();
    finder.findChart(image);
    return HeapMeter::peakBytes();
}

class ChartFinderMemory : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        if (!HeapMeter::isAvailable())
            GTEST_SKIP() << "this C library's heap cannot be counted";
    }
};

} // namespace

TEST_P(ChartFinderMemory, StaysBelow16Megabytes)
{
    const auto format = QImage::Format(GetParam());
    // From cameras' sizes over the tallest that are searched to strips that are not.
    for (const QSize& size :
         {QSize(1920, 1200), QSize(4096, 3000), QSize(640, 640), QSize(1, 1), QSize(100, 343),
          QSize(100, 540), QSize(100, 960), QSize(20000, 20), QSize(20, 20000)})
        EXPECT_LT(peakOfSearch(size, format), bound) << size.width() << "x" << size.height();
}

INSTANTIATE_TEST_SUITE_P(AllFormats, ChartFinderMemory,
                         testing::Range(int(QImage::Format_Mono), int(QImage::NImageFormats)));

TEST(HeapMeter, CountsWhatIsAllocated)
{
    if (!HeapMeter::isAvailable())
        GTEST_SKIP() << "this C library's heap cannot be counted";
    HeapMeter::restart();
    {
        const QImage image(1000, 1000, QImage::Format_RGB32);
        EXPECT_FALSE(image.isNull());
    }
    EXPECT_NEAR(double(HeapMeter::peakBytes()), 4e6, 1e4);
    HeapMeter::restart();
    EXPECT_LT(HeapMeter::peakBytes(), 1000U);
}
