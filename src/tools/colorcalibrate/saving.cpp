// SPDX-License-Identifier: Apache-2.0
// What "calibrate" leaves behind: files and a user set of the camera.
#include "saving.h"

#include "failurelog.h"
#include "iparametercollection.h"
#include "settingsguard.h"
#include "storableusersets.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace ColorCalibrate {
namespace {

/// The path itself, or what exists nearest above it.
QFileInfo nearestExisting(const QString& path)
{
    QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    while (!info.exists() && !info.isRoot())
        info.setFile(info.absolutePath());
    return info;
}

/// A folder that does not exist yet is made when something is saved.
QString writableFolder(const CommandLine& line, const QString& option)
{
    if (!line.isSet(option))
        return {};
    const QString folder = line.value(option);
    if (folder.isEmpty())
        throw CommandError(QStringLiteral("--%1 wants a folder").arg(option), WrongUsage);
    const QFileInfo info = nearestExisting(folder);
    const QString place = info.absoluteFilePath();
    if (!info.isDir())
        throw CommandError(QStringLiteral("--%1: \"%2\" is no folder").arg(option, place));
    if (!info.isWritable())
        throw CommandError(QStringLiteral("--%1: \"%2\" cannot be written to").arg(option, place));
    return QFileInfo(folder).absoluteFilePath();
}

/// What the log says of a failure.
using Reason = QString (FailureLog::*)() const;

/// That a folder could not be made comes before the file that cannot be written therefore.
constexpr Reason reasonOfFiles = &FailureLog::firstFailure;

/// The model says what has failed, then why.
constexpr Reason reasonOfUserSet = &FailureLog::lastFailure;

/// \return  whether it was saved
bool attempt(SavingOutcome& outcome, const QString& what, Reason reasonIn,
             const std::function<bool()>& save)
{
    const FailureLog log;
    if (save())
        return true;
    QString reason = (log.*reasonIn)();
    // The model has nothing to say where it had no camera any more.
    if (reason.isEmpty())
        reason = QStringLiteral("the camera has been disconnected");
    outcome.failures.append(QStringLiteral("%1 (%2)").arg(what, reason));
    return false;
}

/// \return  false if it is known that the user set is as it was
bool store(SavingOutcome& outcome, ColorCalibration::ColorCorrectionModel& model,
           const SavingOptions& options)
{
    if (model.StoreSettingsInUserSet(options.userSet, options.asDefault))
        return true;
    outcome.uncertainUserSet = model.UncertainUserSet();
    return !outcome.uncertainUserSet.isEmpty();
}

/// What nobody knows, as a sentence that goes on.
QString doubtAbout(const QString& userSet)
{
    return QStringLiteral("; the connection was lost while the user set %1 was being stored, and "
                          "whether it holds the new settings is not known: open the camera again "
                          "and check it, and which user set the camera starts with")
        .arg(userSet);
}

} // namespace

void addSavingOptions(CommandLine& line)
{
    line.addOption(QStringLiteral("save-settings"),
                   QStringLiteral("Save the calibrated settings as a .cst file, in a new folder "
                                  "in this one."),
                   QStringLiteral("dir"));
    line.addOption(QStringLiteral("save-summary"),
                   QStringLiteral("Save report, settings and images, in a new folder in this one."),
                   QStringLiteral("dir"));
    line.addOption(QStringLiteral("user-set"),
                   QStringLiteral("Store the calibrated settings in this user set of the camera."),
                   QStringLiteral("name"));
    line.addFlag(QStringLiteral("default"),
                 QStringLiteral("Let the camera start with that user set from now on."));
}

SavingOptions readSavingOptions(const CommandLine& line)
{
    SavingOptions options;
    options.settingsFolder = writableFolder(line, QStringLiteral("save-settings"));
    options.summaryFolder = writableFolder(line, QStringLiteral("save-summary"));
    options.userSet = line.value(QStringLiteral("user-set"));
    options.asDefault = line.isSet(QStringLiteral("default"));
    if (options.asDefault && options.userSet.isEmpty())
        throw CommandError(QStringLiteral("--default wants a user set: --user-set NAME"),
                           WrongUsage);
    return options;
}

void resolveUserSet(const Cameras::HostCameraPtr& camera, SavingOptions& options)
{
    if (options.userSet.isEmpty())
        return;
    QStringList names;
    for (const auto& entry : ColorCalibration::storableUserSets(*requireParameters(camera))) {
        if (options.userSet == entry.name || options.userSet == entry.displayName) {
            options.userSet = entry.name;
            return;
        }
        names.append(entry.name);
    }
    requireParameters(camera);
    throw CommandError(
        names.isEmpty()
            ? QStringLiteral("the camera has no user set that settings can be stored in")
            : QStringLiteral("the camera has no user set \"%1\"; there are %2")
                  .arg(options.userSet, names.join(QStringLiteral(", "))));
}

bool isAllSaved(const SavingOutcome& outcome)
{
    return outcome.failures.isEmpty() && outcome.uncertainUserSet.isEmpty();
}

QString unsavedMessage(const SavingOutcome& outcome)
{
    QString message =
        outcome.isCameraLost
            ? QStringLiteral("the camera was calibrated and then lost, so look whether it still is")
            : QStringLiteral("the camera is calibrated and stays so");
    if (!outcome.failures.isEmpty())
        message += QStringLiteral("%1 this could not be saved: %2")
                       .arg(outcome.isCameraLost ? QStringLiteral(";") : QStringLiteral(", but"),
                            outcome.failures.join(QStringLiteral("; ")));
    if (!outcome.uncertainUserSet.isEmpty())
        message += doubtAbout(outcome.uncertainUserSet);
    return message;
}

SavingOutcome saveOutcome(ColorCalibration::ColorCorrectionModel& model,
                          const SavingOptions& options,
                          const std::function<void(const QString& step)>& progress,
                          const std::function<bool()>& isCancelled)
{
    SavingOutcome outcome;
    const auto save = [&](const QString& step, const QString& what, Reason reasonIn,
                          const std::function<bool()>& call) {
        outcome.isCancelled = outcome.isCancelled || isCancelled();
        if (outcome.isCancelled)
            return false;
        progress(step);
        return attempt(outcome, what, reasonIn, call);
    };
    const auto saveFiles = [&](const QString& step, const QString& what,
                               const std::function<bool()>& call) {
        if (save(step, what, reasonOfFiles, call))
            outcome.folders.append(QDir::toNativeSeparators(model.LastSavedFolder()));
    };
    if (!options.settingsFolder.isEmpty())
        saveFiles(QStringLiteral("Saving the settings"),
                  QStringLiteral("settings in %1").arg(options.settingsFolder),
                  [&] { return model.SaveSettingsToFile(options.settingsFolder); });
    if (!options.summaryFolder.isEmpty())
        saveFiles(QStringLiteral("Saving the summary"),
                  QStringLiteral("summary in %1").arg(options.summaryFolder),
                  [&] { return model.SaveSummaryToFile(options.summaryFolder); });
    if (!options.userSet.isEmpty())
        save(QStringLiteral("Storing the user set"),
             QStringLiteral("user set %1").arg(options.userSet), reasonOfUserSet,
             [&] { return store(outcome, model, options); });
    else
        outcome.isCancelled = outcome.isCancelled || isCancelled();
    // The word of the loss may still be on its way.
    outcome.isCameraLost = !model.IsCameraOpen() || !outcome.uncertainUserSet.isEmpty();
    return outcome;
}

} // namespace ColorCalibrate
