// SPDX-License-Identifier: Apache-2.0
// The settings file of an earlier calibration.
#include "previoussettings.h"

#include "baseexception.h"
#include "command.h"
#include "settingsfile.h"

#include <QFile>

namespace ColorCalibrate {

QString readPreviousSettings(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    try {
        return ColorCalibration::readSettingsText(file);
    } catch (const Core::Exception::BaseException& error) {
        throw CommandError(QStringLiteral("%1: %2").arg(fileName, error.getMessage()));
    }
}

void requireOwnSettings(const QString& text, const QString& fileName,
                        Core::ParameterCollection::IParameterCollection& parameters)
{
    if (!ColorCalibration::hasOwnSettings(text, parameters))
        throw CommandError(
            QStringLiteral("%1: the camera has none of the features in this file").arg(fileName));
}

} // namespace ColorCalibrate
