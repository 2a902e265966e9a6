// SPDX-License-Identifier: Apache-2.0
// Errors of the feature layer.
#pragma once

#include "coreexport.h"

#include <stdexcept>

namespace GenICam {

/// A feature cannot be used as it was asked to. The message names the feature and the reason.
class OSTRIAVIEWER_CORE_EXPORT RuntimeException : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace GenICam
