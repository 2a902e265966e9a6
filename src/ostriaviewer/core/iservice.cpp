// SPDX-License-Identifier: Apache-2.0
// Anything that the host offers to its plugins.
#include "iservice.h"

namespace Core::Service {

IService::~IService() = default;

} // namespace Core::Service
