// SPDX-License-Identifier: Apache-2.0
// What a user may set of the way to the cameras.
#pragma once

#include <QStringList>

namespace Cameras::GenICam {

/// A plain value; reentrant.
struct TransportSettings
{
    int packetSize = 0;     ///< bytes of a GigE Vision packet; 0: as large as the way allows
    QStringList interfaces; ///< names of the network interfaces on which cameras are looked for;
                            ///< none: all but the loopback interface
};

} // namespace Cameras::GenICam
