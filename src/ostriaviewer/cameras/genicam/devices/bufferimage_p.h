// SPDX-License-Identifier: Apache-2.0
// A received buffer as an image.
#pragma once

#include "grabresult.h"

typedef struct _ArvBuffer ArvBuffer;

namespace Cameras::GenICam {

/// Copies the image out of a buffer of which the library misses nothing. Reentrant.
/// \param number  of the frame
/// \return  null where the camera has sent less of the image than it says; a failed result with a
///          reason where there is no image of a known pixel format
Ostria::CGrabResultPtr toGrabResult(ArvBuffer* buffer, std::uint64_t number);

} // namespace Cameras::GenICam
