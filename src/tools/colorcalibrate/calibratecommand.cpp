// SPDX-License-Identifier: Apache-2.0
// The subcommand "calibrate".
#include "calibratecommand.h"

#include "calibrationsequence.h"
#include "cameras.h"
#include "camerasupport.h"
#include "charttargets.h"
#include "commandline.h"
#include "grid.h"
#include "interruption.h"
#include "jsonvalues.h"
#include "patchcolorconversion.h"
#include "patchdeltas.h"
#include "patchtable.h"
#include "previoussettings.h"
#include "saving.h"
#include "settingsguard.h"
#include "settingstext.h"
#include "terminal.h"

#include <QJsonObject>

#include <exception>
#include <functional>
#include <ostream>

using namespace ColorCalibration;

namespace ColorCalibrate {
namespace {

/// All that is told of a calibration.
struct Report
{
    QString camera;
    QString model;
    QString sfnc;
    SequenceResult result;
    CalibrationSettings settings;
    Deltas before;
    Deltas after;
    SavingOutcome saved;
};

void addOptions(CommandLine& line)
{
    line.addOption(QStringLiteral("camera"),
                   QStringLiteral("The camera's name, as \"colorcalibrate list\" shows it."),
                   QStringLiteral("name"));
    addCameraOptions(line);
    line.addOption(QStringLiteral("grid"),
                   QStringLiteral("The chart's corners in image pixels, \"x,y x,y x,y x,y\": upper "
                                  "left, upper right, lower left, lower right; or \"auto\", the "
                                  "default, to look for it."),
                   QStringLiteral("points"));
    line.addOption(QStringLiteral("exposure"),
                   QStringLiteral("\"auto\", the default, brings the gray patch to its target; "
                                  "\"keep\" leaves exposure time and gain."),
                   QStringLiteral("mode"));
    line.addOption(QStringLiteral("settings"),
                   QStringLiteral("Settings of a previous calibration to start from."),
                   QStringLiteral("file.cst"));
    line.addOption(QStringLiteral("scene"),
                   QStringLiteral("What emulated cameras see instead of the chart."),
                   QStringLiteral("image"));
    addSavingOptions(line);
    line.addFlag(QStringLiteral("json"),
                 QStringLiteral("Print camera, grid, Delta E before and after, settings, and the "
                                "results object that \"colorcalibrate report\" reads."));
}

SequenceOptions readOptions(const CommandLine& line)
{
    SequenceOptions options;
    const QString grid = line.value(QStringLiteral("grid"));
    if (!grid.isEmpty() && grid != QLatin1String("auto"))
        options.grid = parseGrid(grid);
    const QString exposure = line.value(QStringLiteral("exposure"));
    if (!exposure.isEmpty() && exposure != QLatin1String("auto") &&
        exposure != QLatin1String("keep"))
        throw CommandError(
            QStringLiteral("--exposure is \"auto\" or \"keep\", not \"%1\"").arg(exposure),
            WrongUsage);
    options.adjustExposure = exposure != QLatin1String("keep");
    const QString settingsFile = line.value(QStringLiteral("settings"));
    if (!settingsFile.isEmpty()) {
        options.previousSettings = readPreviousSettings(settingsFile);
        options.previousFile = settingsFile;
    }
    return options;
}

/// An address is enough: there is one camera then.
QString cameraName(const CommandLine& line)
{
    const QString address = line.value(QStringLiteral("address"));
    if (address.isEmpty())
        return line.requiredValue(QStringLiteral("camera"));
    if (line.isSet(QStringLiteral("camera")))
        throw CommandError(
            QStringLiteral("--address and --camera name a camera each; one of them is wanted"),
            WrongUsage);
    return address;
}

ToolCameras makeCameras(const CommandLine& line)
{
    const CameraSelection selection = readCameraOptions(line);
    if (!line.isSet(QStringLiteral("scene")))
        return ToolCameras({}, selection);
    if (!selection.hasEmulated)
        throw CommandError(QStringLiteral("--scene is what emulated cameras see; this one has its "
                                          "own before it"),
                           WrongUsage);
    return ToolCameras(readScene(line.value(QStringLiteral("scene"))), selection);
}

/// The support test can be made on an open camera alone.
void requireSupported(const ToolCameras& cameras, const Cameras::HostCameraPtr& camera)
{
    if (isCameraSupported(camera, cameras.parameterService()))
        return;
    requireParameters(camera);
    throw CommandError(
        QStringLiteral("the camera \"%1\" cannot be calibrated: its model has no color pipeline "
                       "of the kind that is needed (DeviceColorPipelineVersion 1)")
            .arg(camera->displayName()));
}

/// Whatever ends the work, the camera's settings are compared, and written back where they differ.
/// What the camera failed at is told with its name.
void giveBackOnFailure(SettingsGuard& guard, const QString& cameraName,
                       const std::function<void(const QString& step)>& progress,
                       const std::function<void()>& work)
{
    const auto named = [&cameraName](const std::exception& error) {
        return QStringLiteral("%1: %2").arg(cameraName, wordsOf(error));
    };
    try {
        work();
    } catch (const Cancelled& error) {
        throw CommandError(wordsOf(error) + guard.restore(progress));
    } catch (const CommandError& error) {
        throw CommandError(named(error) + guard.restore(progress), error.code());
    } catch (const std::exception& error) {
        throw CommandError(named(error) + guard.restore(progress));
    }
}

Report calibrate(const ToolCameras& cameras, const Cameras::HostCameraPtr& camera,
                 const SequenceOptions& options, SavingOptions saving, std::ostream& err)
{
    // Reading the settings moves selectors, which must come to their places again.
    const Interruption interruption;
    SettingsGuard guard(camera);
    // What was an address alone has its name since it is open.
    Report report;
    report.camera = camera->displayName();
    report.model = camera->modelName();
    requireSupported(cameras, camera);
    resolveUserSet(camera, saving);
    if (!options.previousSettings.isEmpty())
        requireOwnSettings(options.previousSettings, options.previousFile,
                           *requireParameters(camera));
    report.sfnc = requireParameters(camera)->sfncVersion().toString();

    ColorCorrectionModel model;
    model.SetCameraStatusService(cameras.statusService());
    model.SetCameraControlService(cameras.controlService());
    const auto progress = [&err, isShown = isStandardErrorTerminal()](const QString& step) {
        if (isShown)
            err << step.toStdString() << std::endl;
    };
    const auto warn = [&err](const QString& warning) {
        err << warning.toStdString() << std::endl;
    };
    const auto isCancelled = [] {
        return Interruption::isRequested();
    };
    CalibrationSequence sequence(model, progress, isCancelled, warn);
    giveBackOnFailure(guard, report.camera, progress, [&] {
        report.result = sequence.run(camera, options);
        report.settings = model.LastCalibration();
        report.before = deltasToTargets(toPatchColors(report.result.initialColors, true));
        report.after = deltasToTargets(toPatchColors(report.result.currentColors, true));
        report.saved = saveOutcome(model, saving, progress, isCancelled);
        for (const QString& folder : report.saved.folders)
            err << "Saved " << folder.toStdString() << std::endl;
        if (report.saved.isCancelled) {
            sequence.giveBack();
            throw Cancelled();
        }
    });
    model.Close();
    return report;
}

QJsonArray gridJson(const TrapezoidPoints& grid)
{
    QJsonArray corners;
    for (const QPoint& corner :
         {grid.upperLeft(), grid.upperRight(), grid.lowerLeft(), grid.lowerRight()})
        corners.append(QJsonArray{corner.x(), corner.y()});
    return corners;
}

QJsonObject deltasJson(const Deltas& deltas)
{
    return {{QStringLiteral("meanDeltaE"), deltas.meanDeltaE()},
            {QStringLiteral("maxDeltaE"), deltas.maxDeltaE()}};
}

QJsonObject toJson(const Report& report)
{
    QJsonObject json = settingsJson(report.settings);
    json.insert(QStringLiteral("camera"), report.camera);
    json.insert(QStringLiteral("model"), report.model);
    json.insert(QStringLiteral("sfnc"), report.sfnc);
    json.insert(QStringLiteral("grid"), gridJson(report.result.grid));
    json.insert(QStringLiteral("before"), deltasJson(report.before));
    json.insert(QStringLiteral("after"), deltasJson(report.after));
    json.insert(QStringLiteral("results"), report.result.results);
    return json;
}

void writeText(std::ostream& out, const Report& report)
{
    out << report.camera.toStdString() << ", SFNC " << report.sfnc.toStdString() << "\n\n";
    writePatchTable(out,
                    {"Before", "After", report.result.initialColors, report.result.currentColors,
                     toQColors(ChartTargets().TargetColors(), true)},
                    report.before, report.after);
    out << "\nSettings as computed; the camera keeps them in steps of its own:\n";
    writeSettings(out, report.settings);
}

} // namespace

void calibrateCommand(const QStringList& arguments, const Streams& streams)
{
    CommandLine line(
        QStringLiteral("calibrate --camera NAME | --address IP [options]"),
        QStringLiteral("Calibrates a camera that looks at the chart, and prints how far each patch "
                       "was off\nbefore and after. On failure and on Ctrl-C the camera's settings "
                       "are restored."));
    addOptions(line);
    if (!line.parse(arguments, 0, streams.out))
        return;
    const QString name = cameraName(line);
    const SequenceOptions options = readOptions(line);
    const SavingOptions saving = readSavingOptions(line);
    const ToolCameras cameras = makeCameras(line);
    const Report report = calibrate(cameras, cameras.find(name), options, saving, streams.err);
    if (line.isSet(QStringLiteral("json")))
        streams.out << toJsonText(toJson(report)).toStdString() << "\n";
    else
        writeText(streams.out, report);
    // The outcome holds all the same, and the state before cannot be measured again.
    if (!isAllSaved(report.saved))
        throw CommandError(unsavedMessage(report.saved));
}

} // namespace ColorCalibrate
