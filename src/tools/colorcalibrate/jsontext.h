// SPDX-License-Identifier: Apache-2.0
// JSON text whose numbers come back exactly.
#pragma once

#include <QByteArray>
#include <QJsonValue>

namespace ColorCalibrate {

/// One line of JSON without a line feed. Numbers carry 17 significant digits; a number that is not
/// finite, which JSON has no word for, becomes the string "nan", "inf" or "-inf".
QByteArray toJsonText(const QJsonValue& value);

} // namespace ColorCalibrate
