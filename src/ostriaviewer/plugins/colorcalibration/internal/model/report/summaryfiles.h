// SPDX-License-Identifier: Apache-2.0
// Folder and files of a saved calibration.
#pragma once

#include "pngencoder.h"

#include <QDateTime>
#include <QString>

namespace ColorCalibration {

/// Makes the folder "<directory>/<stem>_<camera model>_<time>", with all folders above it. Two
/// within one second are the same. Characters that some file system refuses, in the model's name,
/// become "_". Reentrant.
/// \return  its path, also where it could not be made: that is logged, and shows when a file is
///          written
QString MakeOutputFolder(const QString& directory, const QString& stem, const QString& cameraModel,
                         const QDateTime& time);

/// Writes a text and a line end, as UTF-8. The file is complete or, after a failure, as it was
/// before. Reentrant.
/// \return  false if it could not be written; the log says why
bool WriteTextFile(const QString& path, const QString& text);

/// Writes what Saving::encodePng gave; else like WriteTextFile. Reentrant.
/// \param png  one with a problem: the file cannot be written
bool WritePngFile(const QString& path, const Saving::EncodedPng& png);

} // namespace ColorCalibration
