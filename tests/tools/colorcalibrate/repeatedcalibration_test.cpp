// SPDX-License-Identifier: Apache-2.0
// Opening, calibrating and closing a camera again and again leaves nothing behind.
#include "calibrationsequence.h"
#include "emulatedhost.h"
#include "processcounts.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <cstddef>

using namespace ColorCalibrate;

namespace {

#if defined(OSTRIA_ADDRESS_SANITIZER) || defined(OSTRIA_THREAD_SANITIZER)
constexpr bool isHeapCounted = false; // malloc is replaced
#else
constexpr bool isHeapCounted = true;
#endif

std::size_t heap()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void calibrateOnce(EmulatedHost& host)
{
    ASSERT_TRUE(host.camera().open());
    host.setExposure(2000.0);
    CalibrationSequence sequence(
        host.model(), [](const QString&) {}, [] { return false; });
    SequenceOptions options;
    options.adjustExposure = false;
    options.grid = host.chartGrid();
    ASSERT_NO_THROW(sequence.run(host.pointer(), options));
    ASSERT_TRUE(host.model().Close());
    host.camera().close();
}

class RepeatedCalibration : public testing::TestWithParam<int>
{};

TEST_P(RepeatedCalibration, LeavesNeitherMemoryNorThreadsNorFilesBehind)
{
    constexpr int warmUp = 100; // caches go on filling for some 75 cycles
    constexpr int cycles = 200;
    auto model = reduced(supportedModels().at(GetParam()));
    model.sensor.fullScaleExposure = 1820.0; // ten times as fast as it is
    EmulatedHost host(model);
    for (int i = 0; i < warmUp; ++i)
        calibrateOnce(host);
    const std::size_t heapBefore = heap();
    const int threadsBefore = threadCount();
    const int filesBefore = openFileCount();
    for (int i = 0; i < cycles; ++i)
        calibrateOnce(host);
    // Less where a pool has let a thread go that was idle.
    EXPECT_LE(threadCount(), threadsBefore);
    EXPECT_LE(openFileCount(), filesBefore);
    const auto grown = static_cast<double>(heap()) - static_cast<double>(heapBefore);
    // 256 bytes a cycle: less than one object of a camera, of which each opening makes hundreds.
    if (isHeapCounted) {
        EXPECT_LT(grown, cycles * 256.0);
    }
}

INSTANTIATE_TEST_SUITE_P(Cameras, RepeatedCalibration, testing::Values(0, 1, 2));

} // namespace
