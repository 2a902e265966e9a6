// SPDX-License-Identifier: Apache-2.0
// Image files as camera images.
#pragma once

#include "ostriaimage.h"

#include <QString>

namespace ColorCalibrate {

/// Reads a colour image of 8 or 16 bits a channel, PNG, TIFF, JPEG or BMP, at its own bit depth:
/// RGB8 or RGB16. The turn that a photograph's data asks for is carried out. What the decoders
/// print is not let through, so that an error stays one line.
/// \throws CommandError  naming the file and what is wrong: it cannot be opened, is no image, is
///         truncated, has more than 2^28 pixels, is gray, has a palette, or is transparent anywhere
Ostria::COstriaImage readCameraImage(const QString& fileName);

} // namespace ColorCalibrate
