// SPDX-License-Identifier: Apache-2.0
// A camera's colour settings as an object.
#pragma once

#include <QJsonObject>
#include <QString>

namespace ColorCalibration {

/// Reads the colour settings out of feature stream text. A value counts for the selector entry
/// whose line came last before it; one without a selector is lost. Reentrant.
/// \param text  one "name<tab>value" a line; anything else is passed over
/// \return  "BlackLevel" and "Gamma"; objects "Matrix" with "Gain00" to "Gain22", "BC6x2" with
///          "Hue" and "Saturation" of six colours each, "HSBC" and "WhiteBalance". Leaves are the
///          texts as the camera wrote them, "N/A" where it has none
QJsonObject ParseSettings(const QString& text);

} // namespace ColorCalibration
