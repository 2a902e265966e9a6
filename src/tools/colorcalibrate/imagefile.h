// SPDX-License-Identifier: Apache-2.0
// Image files as camera images.
#pragma once

#include "ostriaimage.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace ColorCalibrate {

/// Reads an image file, PNG, TIFF, JPEG or BMP. The turn that a photograph's data asks for is
/// carried out. What the decoders print is not let through, so that an error stays one line.
/// \throws CommandError  naming the file and what is wrong: it cannot be opened, is no image, is
///         truncated, or has more than 2^28 pixels or 2^30 bytes
QImage readImage(const QString& fileName);

/// The same of a file's content.
/// \param name  of the file, for messages
/// \throws CommandError  as above, as far as it concerns the content
QImage readImageData(QByteArray data, const QString& name);

/// The image at its own bit depth, RGB8 or RGB16, for measuring.
/// \param fileName  for messages
/// \throws CommandError  the image is gray, has a palette, or is transparent anywhere
Ostria::COstriaImage toCameraImage(const QImage& image, const QString& fileName);

} // namespace ColorCalibrate
