// SPDX-License-Identifier: Apache-2.0
// The subcommand "list".
#include "listcommand.h"

#include "cameras.h"
#include "camerasupport.h"
#include "commandline.h"
#include "jsontext.h"

#include <QJsonArray>
#include <QJsonObject>

#include <exception>
#include <ostream>

namespace ColorCalibrate {
namespace {

struct ListedCamera
{
    QString name;
    QString model;
    QString sfnc;
    bool isSupported;
    QString backend;
    QString problem; ///< why it could not be asked, empty if it could
};

/// Empty with the reason where the camera is open but does not answer.
QString sfncVersion(Cameras::HostCamera& camera, QString& problem)
{
    try {
        const auto parameters = camera.parameterCollection();
        return parameters ? parameters->sfncVersion().toString() : QString();
    } catch (const std::exception& error) {
        problem = QString::fromUtf8(error.what());
        return {};
    }
}

/// What only an open camera tells is asked of it in passing.
ListedCamera describe(const ToolCameras& cameras, const Cameras::HostCameraPtr& camera)
{
    const bool wasOpen = camera->isOpen();
    const bool isOpen = wasOpen || camera->open();
    QString problem = isOpen ? QString() : camera->lastErrorText();
    const QString version = isOpen ? sfncVersion(*camera, problem) : QString();
    const ListedCamera listed{
        camera->displayName(),
        camera->modelName(),
        version,
        ColorCalibration::isCameraSupported(camera, cameras.parameterService()),
        ToolCameras::backendOf(camera),
        problem};
    if (!wasOpen)
        camera->close();
    return listed;
}

QJsonObject toJson(const ListedCamera& camera)
{
    return {{QStringLiteral("name"), camera.name},
            {QStringLiteral("model"), camera.model},
            {QStringLiteral("sfnc"), camera.sfnc},
            {QStringLiteral("supported"), camera.isSupported},
            {QStringLiteral("backend"), camera.backend}};
}

std::string toRow(const ListedCamera& camera)
{
    const QString supported = camera.isSupported ? QStringLiteral("yes") : QStringLiteral("no");
    return (camera.name.leftJustified(41) + camera.sfnc.leftJustified(8) +
            supported.leftJustified(11) + camera.backend + QLatin1Char('\n'))
        .toStdString();
}

} // namespace

void listCommand(const QStringList& arguments, const Streams& streams)
{
    CommandLine line(QStringLiteral("list [options]"),
                     QStringLiteral("Lists the cameras that can be seen, and whether they can be "
                                    "calibrated."));
    addCameraOptions(line);
    line.addFlag(QStringLiteral("json"),
                 QStringLiteral("Print [{\"name\", \"model\", \"sfnc\", \"supported\", "
                                "\"backend\"}, ...]."));
    if (!line.parse(arguments, 0, streams.out))
        return;

    const CameraSelection selection = readCameraOptions(line);
    const ToolCameras cameras({}, selection);
    QJsonArray array;
    std::string rows = QStringLiteral("%1 SFNC    Supported  Backend\n")
                           .arg(QStringLiteral("Name"), -40)
                           .toStdString();
    for (const Cameras::HostCameraPtr& camera : cameras.all()) {
        const ListedCamera listed = describe(cameras, camera);
        if (listed.sfnc.isEmpty() && !selection.address.isEmpty())
            throw CommandError(listed.problem);
        array.append(toJson(listed));
        rows += toRow(listed);
        if (!listed.problem.isEmpty())
            streams.err << (listed.name + QLatin1String(": ") + listed.problem).toStdString()
                        << " What it can do is not known.\n";
    }
    if (line.isSet(QStringLiteral("json")))
        streams.out << toJsonText(array).toStdString() << "\n";
    else
        streams.out << rows;
}

} // namespace ColorCalibrate
