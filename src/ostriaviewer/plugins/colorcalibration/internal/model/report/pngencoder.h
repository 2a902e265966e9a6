// SPDX-License-Identifier: Apache-2.0
// Images as PNG.
#pragma once

#include <QByteArray>
#include <QImage>

namespace ColorCalibration {

/// The bytes of a PNG file with the same picture: 8 bits of gray where the image has gray alone by
/// its format, else 8 bits of red, green and blue. Reentrant.
/// \param image  opaque, up to 8 bits a channel
/// \return  empty for a null image
/// \throws std::bad_alloc
QByteArray encodePng(const QImage& image);

} // namespace ColorCalibration
