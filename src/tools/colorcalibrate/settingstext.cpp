// SPDX-License-Identifier: Apache-2.0
// Camera settings for people and for programs.
#include "settingstext.h"

#include "jsonvalues.h"

#include <QString>

#include <array>
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

QJsonArray sectorsJson(const ColorAdjustment& adjustment, int from)
{
    QJsonArray values;
    for (int i = 0; i < sectors; ++i)
        values.append(adjustment(from + i));
    return values;
}

} // namespace

void writeSettings(std::ostream& out, const CalibrationSettings& settings)
{
    out << "White balance  ";
    for (const double gain : settings.whiteBalance)
        out << number(gain).toStdString();
    out << "   (red, green, blue)\n";
    for (long row = 0; row < 3; ++row) {
        out << (row == 0 ? "Color matrix   " : "               ");
        for (long column = 0; column < 3; ++column)
            out << number(settings.colorMatrix(row, column)).toStdString();
        out << "\n";
    }
    out << "Sector         ";
    for (const char* name : sectorNames)
        out << QStringLiteral("%1").arg(QLatin1String(name), 9).toStdString();
    out << "\n";
    writeSectors(out, "Hue            ", settings.colorAdjustment, 0);
    writeSectors(out, "Saturation     ", settings.colorAdjustment, sectors);
    out << "Gamma          " << number(settings.gamma).toStdString() << "\n";
}

QJsonObject settingsJson(const CalibrationSettings& settings)
{
    const auto& [red, green, blue] = settings.whiteBalance;
    return {
        {QStringLiteral("whiteBalance"), QJsonArray{red, green, blue}},
        {QStringLiteral("colorMatrix"), toJson(settings.colorMatrix)},
        {QStringLiteral("colorAdjustment"),
         QJsonObject{
             {QStringLiteral("hue"), sectorsJson(settings.colorAdjustment, 0)},
             {QStringLiteral("saturation"), sectorsJson(settings.colorAdjustment, sectors)}}},
        {QStringLiteral("gamma"), settings.gamma},
    };
}

} // namespace ColorCalibrate
