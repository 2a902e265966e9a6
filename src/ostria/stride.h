// SPDX-License-Identifier: Apache-2.0
// Row lengths of images in bytes.
#pragma once

#include "pixeltype.h"

#include <cstddef>

namespace Ostria {

/// Bytes from the beginning of one row to the beginning of the next. Reentrant.
/// \param width     pixels, at least 1, a multiple of the type's widthMultiple
/// \param paddingX  unused bytes after the pixels of a row
/// \throws std::invalid_argument  unknown pixel type, width that the type cannot have
/// \throws std::length_error      the result does not fit in an int
std::size_t ComputeStride(PixelType type, int width, std::size_t paddingX = 0);

/// Unused bytes at the end of a row. Reentrant.
/// \param stride  bytes from row to row
/// \throws as ComputeStride; std::invalid_argument also if the row is longer than the stride
std::size_t ComputePaddingX(std::size_t stride, PixelType type, int width);

/// Bytes that height rows take. Reentrant.
/// \throws std::invalid_argument  height below 1
/// \throws std::length_error      the result does not fit in an int
std::size_t ComputeImageSize(std::size_t stride, int height);

} // namespace Ostria
