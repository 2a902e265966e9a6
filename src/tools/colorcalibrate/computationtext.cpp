// SPDX-License-Identifier: Apache-2.0
// A run of the engine for people and for programs.
#include "computationtext.h"

#include "jsonvalues.h"
#include "patchcolorconversion.h"
#include "patchtable.h"

#include <QString>

#include <ostream>

using namespace ColorCalibration;

namespace ColorCalibrate {
namespace {

constexpr int sectors = 6;
constexpr std::array<const char*, sectors> sectorNames{"red",  "yellow", "green",
                                                       "cyan", "blue",   "magenta"};

QString number(double value)
{
    return QString::asprintf("%9.4f", value);
}

void writeSectors(std::ostream& out, const char* title, const ColorAdjustment& adjustment, int from)
{
    out << title;
    for (int i = 0; i < sectors; ++i)
        out << number(adjustment(from + i)).toStdString();
    out << "\n";
}

void writeSettings(std::ostream& out, const Computation& computation)
{
    out << "White balance  ";
    for (const double gain : computation.whiteBalance)
        out << number(gain).toStdString();
    out << "   (red, green, blue)\n";
    for (long row = 0; row < 3; ++row) {
        out << (row == 0 ? "Color matrix   " : "               ");
        for (long column = 0; column < 3; ++column)
            out << number(computation.colorMatrix(row, column)).toStdString();
        out << "\n";
    }
    out << "Sector         ";
    for (const char* name : sectorNames)
        out << QStringLiteral("%1").arg(QLatin1String(name), 9).toStdString();
    out << "\n";
    writeSectors(out, "Hue            ", computation.colorAdjustment, 0);
    writeSectors(out, "Saturation     ", computation.colorAdjustment, sectors);
    out << "Gamma          " << number(computation.gamma).toStdString() << "\n";
}

QJsonArray sectorsJson(const ColorAdjustment& adjustment, int from)
{
    QJsonArray values;
    for (int i = 0; i < sectors; ++i)
        values.append(adjustment(from + i));
    return values;
}

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
    writeSettings(out, computation);
}

QJsonObject toJson(const Computation& computation)
{
    const auto& [red, green, blue] = computation.whiteBalance;
    return {
        {QStringLiteral("whiteBalance"), QJsonArray{red, green, blue}},
        {QStringLiteral("colorMatrix"), toJson(computation.colorMatrix)},
        {QStringLiteral("colorAdjustment"),
         QJsonObject{
             {QStringLiteral("hue"), sectorsJson(computation.colorAdjustment, 0)},
             {QStringLiteral("saturation"), sectorsJson(computation.colorAdjustment, sectors)}}},
        {QStringLiteral("gamma"), computation.gamma},
        {QStringLiteral("meanDeltaE"), computation.meanDeltaE},
        {QStringLiteral("steps"), stepsJson(computation)},
    };
}

} // namespace ColorCalibrate
