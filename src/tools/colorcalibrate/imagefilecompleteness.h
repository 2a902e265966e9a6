// SPDX-License-Identifier: Apache-2.0
// What the decoders do not mind: image files that were cut off, or are made to take minutes.
#pragma once

#include <QByteArray>

namespace ColorCalibrate {

/// A truncated JPEG or BMP file decodes to an image that is gray or black from some row on, which
/// must never be measured; a PNG file decodes without its last bytes.
/// \param data    the whole file
/// \param format  as QImageReader names it; all but "jpeg", "bmp" and "png" are complete if they
///                decode
bool isComplete(const QByteArray& data, const QByteArray& format);

/// A JPEG file may ask for any number of passes over all its pixels, each of a few bytes: a small
/// file then takes minutes. Files of cameras have a dozen at most.
bool isCheapToDecode(const QByteArray& data, const QByteArray& format);

} // namespace ColorCalibrate
