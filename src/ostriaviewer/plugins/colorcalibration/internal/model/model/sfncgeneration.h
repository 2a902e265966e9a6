// SPDX-License-Identifier: Apache-2.0
// The two generations of feature names.
#pragma once

#include "iparametercollection.h"

namespace ColorCalibration {

/// Whether a camera names its features as before version 2.0.0 of the Standard Features Naming
/// Convention.
inline bool isOldGeneration(const Core::ParameterCollection::IParameterCollection& parameters)
{
    return QVersionNumber::compare(parameters.sfncVersion(), QVersionNumber(2, 0, 0)) < 0;
}

} // namespace ColorCalibration
