// SPDX-License-Identifier: Apache-2.0
// The chart finder's memory beyond the image stays within its bound, whatever the image.
#include "boxsmoothing.h"
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

TEST(BoxSmoothingMemory, IsWhatTheContractSays)
{
    if (!HeapMeter::isAvailable())
        GTEST_SKIP() << "this C library's heap cannot be counted";
    const auto peakOf = [](const QSize& size, int radius) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::gray);
        HeapMeter::restart();
        smooth(image, radius);
        return double(HeapMeter::peakBytes());
    };
    // Bytes of the result, of the window's rows, and of the second pass with the sums.
    const double few = 20'000.0;
    EXPECT_NEAR(peakOf(QSize(3000, 1), 1000), 3000.0 * (3 + 24 + 207), few);
    EXPECT_NEAR(peakOf(QSize(3000, 100), 5), 3000.0 * (300 + 24 * 11 + 207), few);
    EXPECT_NEAR(peakOf(QSize(3000, 40), 1000), 3000.0 * (120 + 24 * 40 + 207), few);
}

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
