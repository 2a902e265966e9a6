// SPDX-License-Identifier: Apache-2.0
// Pictures as files.
#pragma once

#include <QImage>
#include <QString>

namespace Viewer {

/// Writes a picture into a file of the kind that its suffix names. The file is whole or, after a
/// failure, as it was before. Reentrant.
/// \param picture  not null, opaque, up to 8 bits a channel
/// \return  empty, or why it could not be written, for people
/// \throws std::bad_alloc  there is no room for it in memory
QString writePictureFile(const QImage& picture, const QString& path);

/// Says that a picture had no room in memory, and what to do. Reentrant.
QString noMemoryForPicture();

} // namespace Viewer
