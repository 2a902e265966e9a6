// SPDX-License-Identifier: Apache-2.0
// How failures of the model become log entries.
#pragma once

#include <QString>

namespace ColorCalibration {

/// Logs the exception that is being handled: first the operation's own message, if it has one, then
/// the function with what the exception says. To be called inside of a catch block. Thread-safe.
/// \param message   of the operation; empty for one that has none of its own
/// \param function  the function's name with its class
/// \param category  name of the log category
void reportFailure(const QString& message, const QString& function, const QString& category);

/// What the exception that is being handled says. To be called inside of a catch block.
/// Thread-safe.
QString currentExceptionText();

/// The category of the model.
QString modelLogCategory();

/// The category of the camera adapter and the brightness worker.
QString adapterLogCategory();

} // namespace ColorCalibration
