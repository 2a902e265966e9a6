// SPDX-License-Identifier: Apache-2.0
// Which cameras a subcommand looks at, from its options.
#pragma once

#include "commandline.h"

#include <QStringList>

namespace ColorCalibrate {

/// A plain value.
struct CameraSelection
{
    bool hasEmulated = true;
    bool isLooking = false; ///< for network and USB cameras
    QStringList interfaces; ///< on which cameras are looked for; none: all but loopback
    QString address;        ///< of the one network camera that is wanted, empty otherwise
    int packetSize = 0;     ///< bytes; 0: as large as the way allows
};

/// Adds the options "backend", "address", "interfaces" and "packet-size".
void addCameraOptions(CommandLine& line);

/// \return  the option "address", as the library writes it
/// \throws CommandError  it is missing, or no address that one device can have
QString readAddress(const CommandLine& line);

/// \throws CommandError  an option has no possible value, or means nothing beside another
CameraSelection readCameraOptions(const CommandLine& line);

} // namespace ColorCalibrate
