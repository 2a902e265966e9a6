// SPDX-License-Identifier: Apache-2.0
// Colours as people read them.
#pragma once

#include <QJsonObject>
#include <QString>

namespace ColorCalibration {

/// \param text  "#rrggbb"
/// \return  "R: 0 G: 0 B: 0" with the numbers 0 to 255; a text without "#" as it is
QString HexToRgbText(const QString& text);

/// The same object with HexToRgbText of every text in it, at any depth. Reentrant.
QJsonObject ConvertColorsToRgb(const QJsonObject& object);

} // namespace ColorCalibration
