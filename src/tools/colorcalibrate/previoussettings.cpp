// SPDX-License-Identifier: Apache-2.0
// The settings file of an earlier calibration.
#include "previoussettings.h"

#include "baseexception.h"
#include "command.h"
#include "settingsfile.h"

#include <QFile>
#include <QHash>

#include <algorithm>

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

int countForeignSettings(const QString& text, const QString& fileName,
                         Core::ParameterCollection::IParameterCollection& parameters)
{
    const QVector<QString> names = ColorCalibration::settingNames(text);
    QHash<QString, bool> isKnown;
    const auto isForeign = [&](const QString& name) {
        const auto known = isKnown.constFind(name);
        if (known != isKnown.constEnd())
            return !*known;
        return !*isKnown.insert(name, !parameters.parameter(name)->isEmpty());
    };
    const auto count = static_cast<int>(std::count_if(names.begin(), names.end(), isForeign));
    if (count == names.size())
        throw CommandError(
            QStringLiteral("%1: the camera has none of the features in this file").arg(fileName));
    return count;
}

} // namespace ColorCalibrate
