// SPDX-License-Identifier: Apache-2.0
// The settings file of an earlier calibration.
#include "previoussettings.h"

#include "command.h"

#include <QFile>
#include <QHash>
#include <QVector>

#include <algorithm>

namespace ColorCalibrate {
namespace {

constexpr qint64 longestFile = 16 * 1024 * 1024;

/// What stands before the tab in each line that is a setting.
QVector<QString> settingNames(const QString& text)
{
    QVector<QString> names;
    for (const QStringRef& line : text.splitRef(QLatin1Char('\n'))) {
        const int tab = line.indexOf(QLatin1Char('\t'));
        if (tab > 0 && !line.startsWith(QLatin1Char('#')))
            names.append(line.left(tab).toString());
    }
    return names;
}

} // namespace

QString readPreviousSettings(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    // Devices and pipes do not tell their size.
    const QByteArray bytes = file.read(longestFile + 1);
    if (bytes.size() > longestFile)
        throw CommandError(QStringLiteral("%1: too large for a settings file").arg(fileName));
    const QString text = QString::fromUtf8(bytes);
    if (settingNames(text).isEmpty())
        throw CommandError(QStringLiteral("%1: this is no settings file: no line has a feature's "
                                          "name, a tab and a value")
                               .arg(fileName));
    return text;
}

int countForeignSettings(const QString& text, const QString& fileName,
                         Core::ParameterCollection::IParameterCollection& parameters)
{
    const QVector<QString> names = settingNames(text);
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
