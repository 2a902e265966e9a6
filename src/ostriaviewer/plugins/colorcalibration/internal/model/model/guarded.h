// SPDX-License-Identifier: Apache-2.0
// The frame around every operation of the model that can fail.
#pragma once

#include "reportfailure.h"

namespace ColorCalibration {

/// Runs an operation; what it throws is logged and turned into the failure value.
/// \param message   the operation's own message, empty for one that has none
/// \param function  the function's name with its class
template <typename Result, typename Operation>
Result guarded(const char* message, const char* function, Result failure, Operation operation)
{
    try {
        return operation();
    } catch (...) {
        reportFailure(QString::fromLatin1(message), QString::fromLatin1(function),
                      modelLogCategory());
        return failure;
    }
}

} // namespace ColorCalibration
