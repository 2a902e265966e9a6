// SPDX-License-Identifier: Apache-2.0
// The command-line tool: finds the subcommand and runs it.
#include "colorcalibrate.h"

#include "calibratecommand.h"
#include "computecommand.h"
#include "findcommand.h"
#include "listcommand.h"
#include "measurecommand.h"
#include "reportcommand.h"
#include "servecommand.h"

#include <algorithm>
#include <array>
#include <exception>
#include <ostream>

namespace ColorCalibrate {
namespace {

struct Subcommand
{
    const char* name;
    const char* summary;
    void (*run)(const QStringList& arguments, const Streams& streams);
};

constexpr std::array<Subcommand, 7> subcommands{{
    {"calibrate", "the full calibration of a camera", calibrateCommand},
    {"compute", "camera settings from 24 measured patch colors", computeCommand},
    {"find", "the corners of the chart in an image", findCommand},
    {"list", "the cameras that can be seen", listCommand},
    {"measure", "the 24 patch colors of an image of the chart", measureCommand},
    {"report", "the report of an earlier calibration, again", reportCommand},
    {"serve", "an emulated camera as a GigE Vision device", serveCommand},
}};

void writeHelp(std::ostream& out)
{
    out << "Usage: colorcalibrate SUBCOMMAND [options]\n\n"
           "Calibrates the colors of machine-vision cameras with a chart of 24 patches.\n\n"
           "Subcommands:\n";
    for (const Subcommand& subcommand : subcommands)
        out << QStringLiteral("  %1%2\n")
                   .arg(QLatin1String(subcommand.name), -10)
                   .arg(QLatin1String(subcommand.summary))
                   .toStdString();
    out << "\nEach subcommand tells its options with --help. Results go to standard output,\n"
           "messages to standard error. Exit codes: 0 success, 1 the work failed, 2 wrong usage.\n";
}

void dispatch(const QStringList& arguments, const Streams& streams)
{
    const QString name = arguments.value(0);
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        writeHelp(streams.out);
        return;
    }
    if (name == QLatin1String("--version")) {
        streams.out << "colorcalibrate " COLORCALIBRATE_VERSION "\n";
        return;
    }
    const auto found =
        std::find_if(subcommands.begin(), subcommands.end(), [&name](const Subcommand& subcommand) {
            return name == QLatin1String(subcommand.name);
        });
    if (found == subcommands.end()) {
        const QString problem = name.isEmpty()
                                    ? QStringLiteral("a subcommand is missing")
                                    : QStringLiteral("\"%1\" is no subcommand").arg(name);
        throw CommandError(problem + QStringLiteral("; colorcalibrate --help lists them"),
                           WrongUsage);
    }
    found->run(arguments.mid(1), streams);
}

/// One line whatever file names and arguments hold.
int report(std::ostream& err, QString line, ExitCode code)
{
    for (QChar& character : line)
        if (!character.isPrint() && !character.isSurrogate())
            character = QLatin1Char('?');
    err << "colorcalibrate: " << line.toStdString() << "\n";
    return code;
}

} // namespace

int run(const QStringList& arguments, const Streams& streams)
{
    try {
        dispatch(arguments, streams);
        streams.out.flush();
        if (!streams.out)
            throw CommandError(QStringLiteral("the result could not be written"));
        return Success;
    } catch (const CommandError& error) {
        return report(streams.err, wordsOf(error), error.code());
    } catch (const std::exception& error) {
        return report(streams.err, wordsOf(error), WorkFailed);
    } catch (...) {
        return report(streams.err, QStringLiteral("an unknown error occurred"), WorkFailed);
    }
}

} // namespace ColorCalibrate
