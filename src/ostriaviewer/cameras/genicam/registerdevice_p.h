// SPDX-License-Identifier: Apache-2.0
// A device in this process: registers of a port, as Aravis wants to see them.
#pragma once

#include "registerport.h"

#include <memory>

typedef struct _ArvDevice ArvDevice;

namespace Cameras::GenICam {

/// A device that answers from a port. What the port throws becomes the device's error.
/// \return  owned by the caller, to be unreferenced
ArvDevice* newRegisterDevice(std::shared_ptr<IRegisterPort> port);

/// Takes the port away: every later access is an error, and the port is let go unless it is being
/// called just now.
/// \param device  made by newRegisterDevice
void detachPort(ArvDevice* device);

/// Whether the port is still there and connected.
/// \param device  made by newRegisterDevice
bool isPortConnected(ArvDevice* device);

} // namespace Cameras::GenICam
