// SPDX-License-Identifier: Apache-2.0
// Which cameras a subcommand looks at, from its options.
#include "backends.h"

#include "cameraaddress.h"
#include "command.h"
#include "networkinterfaces.h"
#include "transportsettings.h"

namespace ColorCalibrate {
namespace {

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

void refuse(const CommandLine& line, const char* option, const char* reason)
{
    if (line.isSet(QLatin1String(option)))
        throw CommandError(QStringLiteral("--%1 means nothing %2")
                               .arg(QLatin1String(option), QLatin1String(reason)),
                           WrongUsage);
}

QStringList readInterfaces(const QString& text)
{
    const QStringList wanted = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    const QStringList names = Cameras::GenICam::networkInterfaces();
    for (const QString& name : wanted)
        if (!names.contains(name))
            throw CommandError(QStringLiteral("there is no network interface \"%1\"; there are %2")
                                   .arg(name, names.join(QStringLiteral(", "))),
                               WrongUsage);
    return wanted;
}

} // namespace

QString readAddress(const CommandLine& line)
{
    const QString text = line.requiredValue(QStringLiteral("address"));
    const QString address = Cameras::GenICam::cameraAddress(text);
    if (address.isEmpty())
        throw CommandError(QStringLiteral("--address is the IPv4 address of a camera, such as "
                                          "192.168.1.20, not \"%1\"")
                               .arg(text),
                           WrongUsage);
    return address;
}

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
    if (line.isSet(QStringLiteral("packet-size")))
        selection.packetSize = readPacketSize(line.value(QStringLiteral("packet-size")));
    if (line.isSet(QStringLiteral("address"))) {
        if (!selection.isLooking)
            refuse(line, "backend", "beside --address, which is of a network camera");
        refuse(line, "interfaces", "beside --address, which is asked alone");
        selection.address = readAddress(line);
        selection.hasEmulated = false;
        selection.isLooking = false;
        return selection;
    }
    if (!selection.isLooking) {
        refuse(line, "interfaces", "for emulated cameras; add --backend genicam");
        refuse(line, "packet-size", "for emulated cameras; add --backend genicam");
    }
    selection.interfaces = readInterfaces(line.value(QStringLiteral("interfaces")));
    return selection;
}

} // namespace ColorCalibrate
