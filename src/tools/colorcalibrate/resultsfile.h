// SPDX-License-Identifier: Apache-2.0
// The outcome of an earlier calibration, read from a file.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace ColorCalibrate {

struct SavedResults
{
    QString model; ///< of the camera; empty where the file holds the results object alone
    QJsonObject results;
};

/// Reads what "calibrate --json" has printed, or a results object alone. What a report needs must
/// be there in its place; anything more is let through.
/// \param name  of the file, for messages
/// \throws CommandError  naming what is wrong with it
SavedResults parseResults(const QByteArray& text, const QString& name);

/// The text of a file.
/// \throws CommandError  it cannot be read, or is longer than such a file can be
QByteArray readResultsText(const QString& fileName);

} // namespace ColorCalibrate
