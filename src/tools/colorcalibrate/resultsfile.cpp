// SPDX-License-Identifier: Apache-2.0
// The outcome of an earlier calibration, read from a file.
#include "resultsfile.h"

#include "command.h"

#include <QFile>
#include <QJsonDocument>

namespace ColorCalibrate {
namespace {

constexpr qint64 longestFile = 1024 * 1024;

void requireTexts(const QJsonValue& value, const QString& path, const QString& name)
{
    if (value.isString())
        return;
    if (!value.isObject())
        throw CommandError(
            QStringLiteral("%1: \"%2\" is neither a text nor an object").arg(name, path));
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        requireTexts(member.value(), path + QLatin1Char('/') + member.key(), name);
}

void requireParts(const QJsonObject& results, const QString& name)
{
    for (const QString& part : {QStringLiteral("Original"), QStringLiteral("Calibrated"),
                                QStringLiteral("PreciseColors")}) {
        if (!results.value(part).isObject())
            throw CommandError(QStringLiteral("%1: \"%2\" is missing; this is no result of a "
                                              "calibration, as \"calibrate --json\" prints it")
                                   .arg(name, part));
        requireTexts(results.value(part), part, name);
    }
}

} // namespace

SavedResults parseResults(const QByteArray& text, const QString& name)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        throw CommandError(QStringLiteral("%1: no JSON: %2 at byte %3")
                               .arg(name, error.errorString())
                               .arg(error.offset));
    const QJsonObject object = document.object();
    SavedResults saved;
    if (object.contains(QStringLiteral("results"))) {
        saved.model = object.value(QStringLiteral("model"))
                          .toString(object.value(QStringLiteral("camera")).toString());
        saved.results = object.value(QStringLiteral("results")).toObject();
    } else {
        saved.results = object;
    }
    requireParts(saved.results, name);
    return saved;
}

QByteArray readResultsText(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    const QByteArray text = file.read(longestFile + 1);
    if (text.size() > longestFile)
        throw CommandError(
            QStringLiteral("%1: too long for the result of a calibration").arg(fileName));
    return text;
}

} // namespace ColorCalibrate
