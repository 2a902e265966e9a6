// SPDX-License-Identifier: Apache-2.0
// What a user may set of the way to the cameras.
#pragma once

#include <QStringList>

namespace Cameras::GenICam {

/// How cameras are found, and how their images come. A plain value; reentrant.
struct TransportSettings
{
    static constexpr int smallestPacket = 576; ///< bytes
    static constexpr int largestPacket = 16384;

    int packetSize = 0;      ///< bytes of a GigE Vision packet; 0: as large as the way allows
    bool isSearching = true; ///< whether cameras are looked for by broadcasts
    QStringList interfaces;  ///< names of the network interfaces on which cameras are looked for;
                             ///< none: all but the loopback interface
    QStringList addresses;   ///< IP addresses at which cameras are asked for besides, each directly
};

inline bool operator==(const TransportSettings& one, const TransportSettings& other)
{
    return one.packetSize == other.packetSize && one.isSearching == other.isSearching &&
           one.interfaces == other.interfaces && one.addresses == other.addresses;
}

inline bool operator!=(const TransportSettings& one, const TransportSettings& other)
{
    return !(one == other);
}

} // namespace Cameras::GenICam
