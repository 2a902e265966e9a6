// SPDX-License-Identifier: Apache-2.0
// Files that are whole or as they were.
#include "wholefile.h"

#include <QSaveFile>

namespace Saving {
namespace {

/// A disk that fills up takes a part first and gives the reason with the next attempt.
bool writeAll(QFileDevice& file, const QByteArray& bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 taken = file.write(bytes.constData() + written, bytes.size() - written);
        if (taken <= 0)
            return false;
        written += taken;
    }
    return file.flush();
}

} // namespace

QString writeWholeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && writeAll(file, bytes) && file.commit())
        return {};
    return file.errorString();
}

} // namespace Saving
