// SPDX-License-Identifier: Apache-2.0
// The log of what could not be saved.
#pragma once

#include <QString>

namespace ColorCalibration {

/// Writes one warning under the category of the model. Thread-safe.
void logReportFailure(const QString& text);

} // namespace ColorCalibration
