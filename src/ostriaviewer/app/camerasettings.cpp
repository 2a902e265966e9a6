// SPDX-License-Identifier: Apache-2.0
// Which cameras the viewer shows, and how it reaches them.
#include "camerasettings.h"

#include "cameraaddress.h"

#include <QStringList>

namespace Viewer {

using Cameras::GenICam::TransportSettings;

namespace {

const auto backendsKey = QStringLiteral("Cameras/Backends");
const auto packetSizeKey = QStringLiteral("Cameras/PacketSize");
const auto searchKey = QStringLiteral("Cameras/Search");
const auto interfacesKey = QStringLiteral("Cameras/Interfaces");
const auto addressesKey = QStringLiteral("Cameras/Addresses");

int validPacketSize(int size)
{
    return size >= TransportSettings::smallestPacket && size <= TransportSettings::largestPacket
               ? size
               : 0;
}

} // namespace

QString nameOf(Backends backends)
{
    switch (backends) {
    case Backends::Emulation:
        return QStringLiteral("emulation");
    case Backends::GenICam:
        return QStringLiteral("genicam");
    case Backends::All:
        break;
    }
    return QStringLiteral("all");
}

std::optional<Backends> backendsFromName(const QString& name)
{
    for (const Backends backends : {Backends::Emulation, Backends::GenICam, Backends::All})
        if (nameOf(backends) == name)
            return backends;
    return {};
}

CameraSettings readCameraSettings(const ViewerSettings& settings)
{
    CameraSettings cameras;
    cameras.backends =
        backendsFromName(settings.value(backendsKey).toString()).value_or(cameras.backends);
    auto& transport = cameras.transport;
    transport.packetSize = validPacketSize(settings.value(packetSizeKey, 0).toInt());
    transport.isSearching = settings.value(searchKey, true).toBool();
    transport.interfaces = settings.value(interfacesKey).toStringList();
    for (const QString& text : settings.value(addressesKey).toStringList()) {
        const QString address = Cameras::GenICam::cameraAddress(text);
        if (!address.isEmpty() && !transport.addresses.contains(address))
            transport.addresses.append(address);
    }
    return cameras;
}

void writeCameraSettings(ViewerSettings& settings, const CameraSettings& cameras)
{
    settings.setValue(backendsKey, nameOf(cameras.backends));
    settings.setValue(packetSizeKey, cameras.transport.packetSize);
    settings.setValue(searchKey, cameras.transport.isSearching);
    settings.setValue(interfacesKey, cameras.transport.interfaces);
    settings.setValue(addressesKey, cameras.transport.addresses);
}

} // namespace Viewer
