// SPDX-License-Identifier: Apache-2.0
// A run of the engine for people and for programs.
#include "computationtext.h"

#include "jsonvalues.h"
#include "patchcolorconversion.h"
#include "patchtable.h"
#include "settingstext.h"

#include <ostream>

using namespace ColorCalibration;

namespace ColorCalibrate {
namespace {

QJsonObject stepsJson(const Computation& computation)
{
    QJsonObject steps;
    for (const StepResult& step : computation.steps)
        steps.insert(QLatin1String(step.name),
                     QJsonObject{{QStringLiteral("colors"), toJson(step.colors)},
                                 {QStringLiteral("meanDeltaE"), step.meanDeltaE}});
    return steps;
}

} // namespace

void writeText(std::ostream& out, const Computation& computation)
{
    writePatchTable(out,
                    {"Measured", "Corrected", toQColors(computation.steps.front().colors, true),
                     toQColors(computation.steps.back().colors, true),
                     toQColors(computation.targets, true)},
                    computation.before, computation.after);
    out << "\n";
    writeSettings(out, computation.settings);
}

QJsonObject toJson(const Computation& computation)
{
    QJsonObject json = settingsJson(computation.settings);
    json.insert(QStringLiteral("meanDeltaE"), computation.meanDeltaE);
    json.insert(QStringLiteral("steps"), stepsJson(computation));
    return json;
}

} // namespace ColorCalibrate
