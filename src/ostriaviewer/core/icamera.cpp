// SPDX-License-Identifier: Apache-2.0
// A camera as it is used.
#include "icamera.h"

namespace Core::CameraPoolComponents {

ICamera::~ICamera() = default;

} // namespace Core::CameraPoolComponents
