// SPDX-License-Identifier: Apache-2.0
// A camera's features as parameters of five kinds.
#include "iparameter.h"

namespace Core::ParameterCollection {

IParameter::~IParameter() = default;

} // namespace Core::ParameterCollection
