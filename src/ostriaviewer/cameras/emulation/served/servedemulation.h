// SPDX-License-Identifier: Apache-2.0
// An emulated camera as a device that can be served.
#pragma once

#include "emulatedcamera.h"
#include "serveddevice.h"

#include <memory>

namespace Cameras::Emulation {

/// The camera behind a server.
/// \param camera  made with EmulationOptions::hasTransport, and open; shared, nobody else uses it
std::shared_ptr<IServedDevice> serveEmulation(const QSharedPointer<EmulatedCamera>& camera);

} // namespace Cameras::Emulation
