// SPDX-License-Identifier: Apache-2.0
// Images as PNG.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Saving {

/// A PNG file, or why there is none.
struct EncodedPng
{
    QByteArray bytes;
    QString problem; ///< empty where there are bytes; else a clause without a full stop
};

/// A PNG file with the same picture: 8 bits of gray where the image has gray alone by its format,
/// else 8 bits of red, green and blue. Too little memory is a problem like any other, as an
/// exception would have to cross threads. Reentrant.
/// \param image  opaque, up to 8 bits a channel
EncodedPng encodePng(const QImage& image);

/// The same picture in about half the time, in a file that may be larger. Reentrant.
EncodedPng encodePngQuickly(const QImage& image);

} // namespace Saving
