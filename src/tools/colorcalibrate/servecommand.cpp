// SPDX-License-Identifier: Apache-2.0
// The subcommand "serve".
#include "servecommand.h"

#include "backends.h"
#include "cameras.h"
#include "commandline.h"
#include "gigeserver.h"
#include "interruption.h"
#include "servedemulation.h"

#include <chrono>
#include <ostream>
#include <thread>

using Cameras::Emulation::EmulatedCamera;

namespace ColorCalibrate {
namespace {

QSharedPointer<EmulatedCamera> findModel(const CommandLine& line)
{
    Cameras::Emulation::EmulationOptions options;
    options.hasTransport = true;
    if (line.isSet(QStringLiteral("scene")))
        options.scene = readScene(line.value(QStringLiteral("scene")));
    const QString name = line.requiredValue(QStringLiteral("camera"));
    QList<QSharedPointer<EmulatedCamera>> cameras;
    QStringList names;
    for (const auto& model : Cameras::Emulation::everydayModels()) {
        cameras.append(EmulatedCamera::create(model, options));
        names.append(QStringLiteral("\"%1\"").arg(cameras.constLast()->displayName()));
    }
    const auto named = Cameras::camerasNamed(cameras, name);
    if (!named.isEmpty())
        return named.first();
    throw CommandError(QStringLiteral("there is no emulated camera \"%1\"; there are %2")
                           .arg(name, names.join(QStringLiteral(", "))));
}

void waitForInterruption()
{
    constexpr std::chrono::milliseconds pollTime(100);
    while (!Interruption::isRequested())
        std::this_thread::sleep_for(pollTime);
}

} // namespace

void serveCommand(const QStringList& arguments, const Streams& streams)
{
    CommandLine line(
        QStringLiteral("serve --camera NAME --address IP [options]"),
        QStringLiteral("Makes an emulated camera a GigE Vision device at an address of this "
                       "machine, until Ctrl-C.\nAny program that speaks GigE Vision can use it."));
    line.addOption(QStringLiteral("camera"),
                   QStringLiteral("The camera's name, as \"colorcalibrate list\" shows it."),
                   QStringLiteral("name"));
    line.addOption(QStringLiteral("address"),
                   QStringLiteral("The IPv4 address; 127.0.0.1 for this machine alone."),
                   QStringLiteral("ip"));
    line.addOption(QStringLiteral("scene"),
                   QStringLiteral("What the camera sees instead of the chart."),
                   QStringLiteral("image"));
    if (!line.parse(arguments, 0, streams.out))
        return;
    const QString address = readAddress(line);
    const auto camera = findModel(line);
    const Interruption interruption;
    if (!camera->open())
        throw CommandError(camera->lastErrorText());
    const Cameras::Emulation::GigeServer server(Cameras::Emulation::serveEmulation(camera),
                                                address.toStdString());
    streams.out << QStringLiteral("%1 is at %2; Ctrl-C ends it\n")
                       .arg(camera->displayName(), address)
                       .toStdString();
    streams.out.flush();
    waitForInterruption();
}

} // namespace ColorCalibrate
