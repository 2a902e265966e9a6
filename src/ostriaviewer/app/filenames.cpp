// SPDX-License-Identifier: Apache-2.0
// Names for what is saved of cameras.
#include "filenames.h"

#include <QDateTime>
#include <QRegularExpression>

namespace Viewer {

QString fileNameNow(const QString& camera)
{
    QString plain = camera;
    plain.replace(QRegularExpression(QStringLiteral("[^\\w.-]+")), QStringLiteral("_"));
    const QString time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss"));
    return QStringLiteral("%1_%2").arg(plain, time);
}

} // namespace Viewer
