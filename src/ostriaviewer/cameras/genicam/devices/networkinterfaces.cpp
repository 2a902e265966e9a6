// SPDX-License-Identifier: Apache-2.0
// Where cameras can be looked for.
#include "networkinterfaces.h"

#include <QNetworkInterface>

namespace Cameras::GenICam {

QStringList networkInterfaces()
{
    QStringList names;
    for (const QNetworkInterface& each : QNetworkInterface::allInterfaces())
        names.append(each.name());
    return names;
}

} // namespace Cameras::GenICam
