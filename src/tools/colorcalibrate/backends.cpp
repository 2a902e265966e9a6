// SPDX-License-Identifier: Apache-2.0
// Which cameras a subcommand looks at, from its options.
#include "backends.h"

#include "cameraaddress.h"
#include "command.h"
#include "transportsettings.h"

namespace ColorCalibrate {
namespace {

QString readAddress(const QString& text)
{
    const QString address = Cameras::GenICam::cameraAddress(text);
    if (address.isEmpty())
        throw CommandError(QStringLiteral("--address is the IPv4 address of a camera, such as "
                                          "192.168.1.20, not \"%1\"")
                               .arg(text),
                           WrongUsage);
    return address;
}

int readPacketSize(const QString& text)
{
    constexpr int smallest = Cameras::GenICam::TransportSettings::smallestPacket;
    constexpr int largest = Cameras::GenICam::TransportSettings::largestPacket;
    bool isNumber = false;
    const int size = text.toInt(&isNumber);
    if (!isNumber || size < smallest || size > largest)
        throw CommandError(QStringLiteral("--packet-size is a number of bytes from %1 to %2, not "
                                          "\"%3\"")
                               .arg(smallest)
                               .arg(largest)
                               .arg(text),
                           WrongUsage);
    return size;
}

} // namespace

void addCameraOptions(CommandLine& line)
{
    line.addOption(QStringLiteral("backend"),
                   QStringLiteral("\"emulation\", the default: emulated cameras; \"genicam\": "
                                  "cameras on the network and on USB, which are looked for with "
                                  "broadcasts; \"all\": both."),
                   QStringLiteral("kind"));
    line.addOption(QStringLiteral("address"),
                   QStringLiteral("The IP address of a network camera, which is asked alone."),
                   QStringLiteral("ip"));
    line.addOption(QStringLiteral("interfaces"),
                   QStringLiteral("Look for cameras on these network interfaces alone, separated "
                                  "by commas, as in \"eth1,eth2\"."),
                   QStringLiteral("names"));
    line.addOption(QStringLiteral("packet-size"),
                   QStringLiteral("Bytes of an image packet, instead of as many as get through."),
                   QStringLiteral("bytes"));
}

CameraSelection readCameraOptions(const CommandLine& line)
{
    CameraSelection selection;
    const QString backend = line.isSet(QStringLiteral("backend"))
                                ? line.value(QStringLiteral("backend"))
                                : QStringLiteral("emulation");
    if (backend != QLatin1String("emulation") && backend != QLatin1String("genicam") &&
        backend != QLatin1String("all"))
        throw CommandError(
            QStringLiteral("--backend is \"emulation\", \"genicam\" or \"all\", not \"%1\"")
                .arg(backend),
            WrongUsage);
    selection.hasEmulated = backend != QLatin1String("genicam");
    selection.isLooking = backend != QLatin1String("emulation");
    selection.interfaces =
        line.value(QStringLiteral("interfaces")).split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (line.isSet(QStringLiteral("packet-size")))
        selection.packetSize = readPacketSize(line.value(QStringLiteral("packet-size")));
    if (!line.isSet(QStringLiteral("address")))
        return selection;
    selection.address = readAddress(line.value(QStringLiteral("address")));
    selection.hasEmulated = false;
    selection.isLooking = false;
    return selection;
}

} // namespace ColorCalibrate
