// SPDX-License-Identifier: Apache-2.0
// The subcommand "compute".
#include "computecommand.h"

#include "commandline.h"
#include "computation.h"
#include "computationtext.h"
#include "jsontext.h"
#include "patchfile.h"

#include <ostream>

namespace ColorCalibrate {

void computeCommand(const QStringList& arguments, const Streams& streams)
{
    CommandLine line(QStringLiteral("compute FILE [options]"),
                     QStringLiteral("Computes white balance, color matrix, hue and saturation, and "
                                    "gamma from the patch colors\nin FILE (\"-\" for standard "
                                    "input): 24 lines \"R,G,B\" of linear values 0 to 255."));
    line.addFlag(QStringLiteral("json"),
                 QStringLiteral("Print the settings and the colors after each step as JSON."));
    if (!line.parse(arguments, 1, streams.out))
        return;

    const QString fileName = line.positional(0);
    const Computation computation =
        compute(parsePatchColors(readPatchText(fileName, streams.in), displayName(fileName)));
    if (line.isSet(QStringLiteral("json")))
        streams.out << toJsonText(toJson(computation)).toStdString() << "\n";
    else
        writeText(streams.out, computation);
}

} // namespace ColorCalibrate
