// SPDX-License-Identifier: Apache-2.0
// Files that are whole or as they were.
#pragma once

#include <QByteArray>
#include <QString>

namespace Saving {

/// Fills a file under another name and gives it its own in the end: a reader never meets half of
/// one, and one that stood there before stays as it was after a failure. Reentrant.
/// \return  empty, or why it could not be written, in the system's words
QString writeWholeFile(const QString& path, const QByteArray& bytes);

} // namespace Saving
