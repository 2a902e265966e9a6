// SPDX-License-Identifier: Apache-2.0
// Which lines of a camera's settings belong to its colours.
#pragma once

#include <QString>

namespace ColorCalibration {

/// Keeps the lines that hold the name of a feature that the calibration concerns, and comments.
/// Reentrant.
/// \param text  feature stream text; a carriage return before a line feed is dropped
/// \return  the lines kept, in their order, joined by line feeds
QString FilterSettings(const QString& text);

} // namespace ColorCalibration
