// SPDX-License-Identifier: Apache-2.0
// The subcommand "report".
#include "reportcommand.h"

#include "commandline.h"
#include "failurelog.h"
#include "reporthtml.h"
#include "resultsfile.h"
#include "summaryfiles.h"

#include <QDateTime>

#include <ostream>

namespace ColorCalibrate {

void reportCommand(const QStringList& arguments, const Streams& streams)
{
    CommandLine line(
        QStringLiteral("report RESULTS.json --out DIR [options]"),
        QStringLiteral("Makes the report of an earlier calibration again, from what \"calibrate "
                       "--json\" printed\nor from the results object in it, and prints the name "
                       "of the file."));
    line.addOption(QStringLiteral("out"),
                   QStringLiteral("Where the folder with the report is made."),
                   QStringLiteral("dir"));
    line.addOption(QStringLiteral("camera"),
                   QStringLiteral("The camera's model, where RESULTS.json does not name it."),
                   QStringLiteral("model"));
    if (!line.parse(arguments, 1, streams.out))
        return;
    const QString directory = line.requiredValue(QStringLiteral("out"));
    const QString fileName = line.positional(0);
    const SavedResults saved = parseResults(readResultsText(fileName), fileName);
    const QString model =
        line.isSet(QStringLiteral("camera")) ? line.value(QStringLiteral("camera")) : saved.model;
    if (model.isEmpty())
        throw CommandError(
            QStringLiteral("%1 does not name the camera; do so with --camera MODEL").arg(fileName),
            WrongUsage);

    const FailureLog log;
    const QDateTime now = QDateTime::currentDateTime();
    const QString report = ColorCalibration::MakeOutputFolder(
                               directory, QStringLiteral("Calibration_Report"), model, now) +
                           QStringLiteral("/calibration_report.html");
    if (!ColorCalibration::WriteTextFile(report,
                                         ColorCalibration::BuildHtml(model, saved.results, now)))
        throw CommandError(
            QStringLiteral("the report could not be written (%1)").arg(log.firstFailure()));
    streams.out << report.toStdString() << "\n";
}

} // namespace ColorCalibrate
