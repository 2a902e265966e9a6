// SPDX-License-Identifier: Apache-2.0
// Feature stream text as lines.
#pragma once

#include <QStringList>

namespace ColorCalibration {

/// The lines of a text, without the carriage returns of files from elsewhere.
inline QStringList featureLines(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
    }
    return lines;
}

} // namespace ColorCalibration
