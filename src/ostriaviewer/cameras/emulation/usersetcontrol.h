// SPDX-License-Identifier: Apache-2.0
// Lets the user set features of an emulated camera act on its user sets.
#pragma once

#include "registerstore.h"
#include "usersets.h"

namespace Cameras::Emulation {

/// Gives the store the values of the start-up set, and a hook that follows "UserSetLoad",
/// "UserSetSave" and "UserSetDefault". No client may use the store meanwhile; it must live as long
/// as clients write.
void startUserSets(RegisterStore& store, UserSets sets);

} // namespace Cameras::Emulation
