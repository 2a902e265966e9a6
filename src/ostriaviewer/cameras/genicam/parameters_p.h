// SPDX-License-Identifier: Apache-2.0
// Features as the host's parameters.
#pragma once

#include "feature_p.h"
#include "iparametercollection.h"
#include "nodemap.h"

#include <memory>

namespace Cameras::GenICam {

// Each makes an object of its own, that lives in the calling thread. The feature is empty or of
// the kind that the function names.

Core::ParameterCollection::FloatParameterPtr makeFloatParameter(std::shared_ptr<NodeMap> map,
                                                                const Feature& feature);
Core::ParameterCollection::IntegerParameterPtr makeIntegerParameter(std::shared_ptr<NodeMap> map,
                                                                    const Feature& feature);
Core::ParameterCollection::BooleanParameterPtr makeBooleanParameter(std::shared_ptr<NodeMap> map,
                                                                    const Feature& feature);
Core::ParameterCollection::EnumerationParameterPtr
makeEnumerationParameter(std::shared_ptr<NodeMap> map, const Feature& feature);
Core::ParameterCollection::CommandParameterPtr makeCommandParameter(std::shared_ptr<NodeMap> map,
                                                                    const Feature& feature);

/// A feature of whatever kind.
Core::ParameterCollection::ParameterPtr makeParameter(std::shared_ptr<NodeMap> map,
                                                      const Feature& feature);

} // namespace Cameras::GenICam
