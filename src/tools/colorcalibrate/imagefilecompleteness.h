// SPDX-License-Identifier: Apache-2.0
// Whether an image file has been cut off, for the formats whose decoders do not mind.
#pragma once

#include <QByteArray>

namespace ColorCalibrate {

/// A truncated JPEG or BMP file decodes to an image that is gray or black from some row on, which
/// must never be measured; a PNG file decodes without its last bytes.
/// \param data    the whole file
/// \param format  as QImageReader names it; all but "jpeg", "bmp" and "png" are complete if they
///                decode
bool isComplete(const QByteArray& data, const QByteArray& format);

} // namespace ColorCalibrate
