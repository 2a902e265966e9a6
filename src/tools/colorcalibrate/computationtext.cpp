// SPDX-License-Identifier: Apache-2.0
// A run of the engine for people and for programs.
#include "computationtext.h"

#include "jsonvalues.h"
#include "patchcolorconversion.h"

#include <QColor>
#include <QString>
#include <QVector>

#include <algorithm>
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

QString deltaRow(double beforeE, double afterE, double beforeC, double afterC)
{
    return QString::asprintf("%8.2f%8.2f  %8.2f%8.2f", beforeE, afterE, beforeC, afterC);
}

void writePatches(std::ostream& out, const Computation& computation)
{
    const QVector<QColor> measured = toQColors(computation.steps.front().colors, true);
    const QVector<QColor> corrected = toQColors(computation.steps.back().colors, true);
    const QVector<QColor> targets = toQColors(computation.targets, true);
    out << "Patch  Measured  Corrected  Target       Delta E           Delta C\n"
           "                                      before   after    before   after\n";
    for (int i = 0; i < PatchCount; ++i) {
        const auto patch = static_cast<std::size_t>(i);
        out << QStringLiteral("%1  %2   %3    %4  %5\n")
                   .arg(i + 1, 5)
                   .arg(measured.at(i).name(), corrected.at(i).name(), targets.at(i).name(),
                        deltaRow(computation.before.deltaE[patch], computation.after.deltaE[patch],
                                 computation.before.deltaC[patch], computation.after.deltaC[patch]))
                   .toStdString();
    }
}

template <typename Values>
double largest(const Values& values)
{
    return *std::max_element(values.begin(), values.end());
}

void writeSummary(std::ostream& out, const Deltas& before, const Deltas& after)
{
    const QString indent = QStringLiteral("%1").arg(QString(), 29);
    out << "Mean" << indent.toStdString() << "  "
        << deltaRow(before.meanDeltaE, after.meanDeltaE, before.meanDeltaC, after.meanDeltaC)
               .toStdString()
        << "\nMax " << indent.toStdString() << "  "
        << deltaRow(largest(before.deltaE), largest(after.deltaE), largest(before.deltaC),
                    largest(after.deltaC))
               .toStdString()
        << "\n";
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
    writePatches(out, computation);
    out << "\n";
    writeSummary(out, computation.before, computation.after);
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
