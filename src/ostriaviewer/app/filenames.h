// SPDX-License-Identifier: Apache-2.0
// Names for what is saved of cameras.
#pragma once

#include <QString>

namespace Viewer {

/// A camera's name and the present time as a file name that every file system takes, without a
/// suffix. Reentrant.
QString fileNameNow(const QString& camera);

} // namespace Viewer
