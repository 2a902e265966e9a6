// SPDX-License-Identifier: Apache-2.0
// Settings files that a user has chosen.
#include "settingsfile.h"

#include "baseexception.h"

#include <QFileDevice>
#include <QSet>
#include <QStringRef>
#include <QTextCodec>

namespace ColorCalibration {
namespace {

QByteArray readAll(QIODevice& device)
{
    // Nothing stops what the camera is asked to take, and each line takes it a millisecond or so.
    constexpr qint64 longestFile = qint64(1024) * 1024;
    // Devices and pipes do not tell their size.
    QByteArray bytes;
    while (bytes.size() <= longestFile) {
        const QByteArray next = device.read(longestFile + 1 - bytes.size());
        if (next.isEmpty())
            return bytes;
        bytes += next;
    }
    throw Core::Exception::BaseException(
        QStringLiteral("The file is too large for a settings file."));
}

/// Signs that could not be read would be written to the camera as others.
QString toText(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0 || bytes.contains('\0'))
        throw Core::Exception::BaseException(
            QStringLiteral("This is no settings file: it is no text in UTF-8."));
    return text;
}

/// Parameters are found by names with alternatives and node maps too; a line has none of these, and
/// a command has no value.
bool isSetting(const QString& name, Core::ParameterCollection::IParameterCollection& parameters)
{
    if (name.contains(QLatin1Char('|')) || name.contains(QLatin1Char('/')))
        return false;
    const auto parameter = parameters.parameter(name);
    return !parameter->isEmpty() &&
           !qobject_cast<Core::ParameterCollection::ICommandParameter*>(parameter.data());
}

} // namespace

QString readSettingsText(QIODevice& device)
{
    const QByteArray bytes = readAll(device);
    const auto* file = qobject_cast<const QFileDevice*>(&device);
    if (file && file->error() != QFileDevice::NoError)
        throw Core::Exception::BaseException(file->errorString());
    QString text = toText(bytes);
    if (settingNames(text).isEmpty())
        throw Core::Exception::BaseException(
            QStringLiteral("This is no settings file: no line has a feature's name, a tab and a "
                           "value."));
    return text;
}

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

bool hasOwnSettings(const QString& text,
                    Core::ParameterCollection::IParameterCollection& parameters)
{
    QSet<QString> foreign;
    for (const QString& name : settingNames(text)) {
        if (foreign.contains(name))
            continue;
        if (isSetting(name, parameters))
            return true;
        foreign.insert(name);
    }
    return false;
}

} // namespace ColorCalibration
