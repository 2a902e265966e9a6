// SPDX-License-Identifier: Apache-2.0
// Conversion of a whole image, cut into strips of rows that threads share.
#pragma once

#include "imageformatconverter.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Ostria {

/// Where the pixels of a conversion go.
struct ConversionTarget
{
    PixelType type;     ///< RGB16 or BGRa8
    std::uint8_t* data; ///< the first row, of any alignment
    std::size_t stride; ///< bytes from row to row
    ImageOrientation orientation;
};

/// Converts on as many threads as OpenCV may use. Reentrant.
/// \param source   has pixels; not smaller than the smallest mosaic if it is one
/// \param target   room for the source's rows, not overlapping them; padding is not written
/// \param scratch  grows to what is needed and can be handed in again
void convertInStrips(const COstriaImage& source, const ConversionTarget& target,
                     std::vector<std::uint16_t>& scratch);

} // namespace Ostria
