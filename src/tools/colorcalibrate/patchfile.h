// SPDX-License-Identifier: Apache-2.0
// Patch colours as text: 24 lines "R,G,B".
#pragma once

#include "patchcolors.h"

#include <QByteArray>
#include <QString>

#include <iosfwd>

namespace ColorCalibrate {

/// The name of a patch file as messages show it: "standard input" for "-".
QString displayName(const QString& fileName);

/// Reads 24 lines of three numbers, linear light on 0 to 255, separated by commas. Blanks around a
/// number, a byte order mark, line ends of any system and empty lines at the end are accepted.
/// \param name  of the file, for messages
/// \throws CommandError  naming file, line and what is wrong with it
ColorCalibration::PatchColors parsePatchColors(const QByteArray& text, const QString& name);

/// The text of a file, or of standard input if its name is "-".
/// \throws CommandError  the file cannot be read, or is longer than a patch file can be
QByteArray readPatchText(const QString& fileName, std::istream& standardInput);

/// Writes 24 lines that parsePatchColors reads back to the last bit.
void writePatchColors(std::ostream& out, const ColorCalibration::PatchColors& colors);

} // namespace ColorCalibrate
