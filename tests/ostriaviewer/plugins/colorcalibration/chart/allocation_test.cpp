// SPDX-License-Identifier: Apache-2.0
// Measuring and converting take as many blocks by operator new for large images as for small ones;
// what OpenCV takes by its own allocator is not counted.
#include "allocationcounter.h"
#include "imageformatconverter.h"
#include "patchmeasurement.h"
#include "testimages.h"

#include <gtest/gtest.h>

using namespace ColorCalibration;
using Ostria::COstriaImage;
using Ostria::PixelType;

namespace {

long allocationsOfMeasuring(int size)
{
    const COstriaImage image = makeNoiseRgb16(size, size, 1, 0, 65535);
    const TrapezoidPoints patch({1, 1}, {size - 1, 1}, {1, size - 1}, {size - 1, size - 1});
    QColor color;
    const long before = allocations();
    EXPECT_TRUE(measurePatch(patch, image, 65536, color));
    return allocations() - before;
}

/// Of a second frame, when scratch memory and target are there.
long allocationsOfConverting(PixelType target, int width, int height)
{
    const COstriaImage source(PixelType::BayerRG12, width, height);
    Ostria::CImageFormatConverter converter;
    converter.setOutputPixelFormat(target);
    COstriaImage converted;
    converter.Convert(converted, source);
    const long before = allocations();
    converter.Convert(converted, source);
    return allocations() - before;
}

} // namespace

TEST(Allocation, OfMeasuringDoesNotGrowWithThePatch)
{
    allocationsOfMeasuring(16); // what is set up once
    const long small = allocationsOfMeasuring(16);
    EXPECT_EQ(allocationsOfMeasuring(400), small);
    EXPECT_LE(small, 10);
}

TEST(Allocation, OfConvertingDoesNotGrowWithTheFrame)
{
    for (const PixelType target : {PixelType::RGB16, PixelType::BGRa8}) {
        SCOPED_TRACE(Ostria::pixelTypeName(target));
        allocationsOfConverting(target, 64, 48);
        const long small = allocationsOfConverting(target, 64, 48);
        // A few more for the strips that the cores share, none for rows or pixels.
        EXPECT_LE(allocationsOfConverting(target, 1920, 1200), small + 40);
    }
}
