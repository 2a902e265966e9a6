// SPDX-License-Identifier: Apache-2.0
// The six-sector correction and its linear fit.
#include "bc6x2.h"

#include "labfit.h"

#include <stdexcept>
#include <utility>

namespace ColorCalibration {

namespace {

using SectorRow = dlib::matrix<int, 1, 6>;
using Design = dlib::matrix<double, FitRows, 12>;

// One column a sector. Channels are 0 red, 1 green, 2 blue; the other indices are those of the
// parameters.
struct SectorTable
{
    SectorTable()
    {
        channels = 0, 1, 1, 2, 2, 0, // largest
            1, 0, 2, 1, 0, 2,        // middle
            2, 2, 0, 0, 1, 1;        // smallest
        largestChannel = 0, 1, 1, 2, 2, 0;
        sign = 1, -1, 1, -1, 1, -1;
        primaryHue = 0, 2, 2, 4, 4, 0;
        secondaryHue = 1, 1, 3, 3, 5, 5;
        primarySaturation = 6, 8, 8, 10, 10, 6;
        secondarySaturation = 7, 7, 9, 9, 11, 11;
    }

    dlib::matrix<int, 3, 6> channels;
    SectorRow largestChannel;
    SectorRow sign;
    SectorRow primaryHue;
    SectorRow secondaryHue;
    SectorRow primarySaturation;
    SectorRow secondarySaturation;
};

// A colour with its channels in the order of its sector.
struct SortedColor
{
    int sector;
    double largest;
    double middle;
    double smallest;
};

// Unlike HueSector it never fails: a gray colour gets a sector too, in which nothing changes it.
SortedColor sorted(double red, double green, double blue)
{
    int group = 0;
    double first = red;
    double second = green;
    double rest = blue;
    if (blue >= red && green > red) {
        group = 1;
        first = green;
        second = blue;
        rest = red;
    } else if (red >= green && blue > green) {
        group = 2;
        first = blue;
        second = red;
        rest = green;
    }
    const bool odd = second >= first;
    if (odd) {
        std::swap(first, second);
    }
    return {2 * group + (odd ? 1 : 0), first, second, rest};
}

Color adjusted(const SectorTable& table, const Color& color, const ColorAdjustment& parameters)
{
    const SortedColor in = sorted(color(0), color(1), color(2));
    const double sign = table.sign(in.sector);
    const double hueShift = sign * parameters(table.primaryHue(in.sector));
    const double saturation = parameters(table.primarySaturation(in.sector));
    const double step1 = in.largest - in.middle;
    const double step2 = in.middle - in.smallest;
    const double secondaryShift = sign * parameters(table.secondaryHue(in.sector)) * step2;
    const double secondaryStep = parameters(table.secondarySaturation(in.sector)) * step2;
    Color out;
    out(table.channels(0, in.sector)) = in.largest + secondaryShift;
    out(table.channels(1, in.sector)) =
        in.largest - (saturation + hueShift) * step1 - secondaryShift;
    out(table.channels(2, in.sector)) =
        in.largest - (saturation - hueShift) * step1 - secondaryStep;
    return out;
}

// Enters the correction of one patch, with its parameters still open: base + design * parameters.
void enterPatch(const SectorTable& table, int sector, const PatchColors& colors, int patch,
                Design& design, StackedColors& base)
{
    const double largest = colors(patch, table.largestChannel(sector));
    const double step1 = largest - colors(patch, table.channels(1, sector));
    const double step2 =
        colors(patch, table.channels(1, sector)) - colors(patch, table.channels(2, sector));
    const double sign = table.sign(sector);
    const int primaryHue = table.primaryHue(sector);
    const int secondaryHue = table.secondaryHue(sector);
    const int primarySaturation = table.primarySaturation(sector);

    const int largestRow = 3 * patch + table.channels(0, sector);
    const int middleRow = 3 * patch + table.channels(1, sector);
    const int smallestRow = 3 * patch + table.channels(2, sector);
    base(largestRow) = largest;
    base(middleRow) = largest;
    base(smallestRow) = largest;
    design(largestRow, secondaryHue) = sign * step2;
    design(middleRow, primarySaturation) = -step1;
    design(middleRow, primaryHue) = -sign * step1;
    design(middleRow, secondaryHue) = -sign * step2;
    design(smallestRow, primarySaturation) = -step1;
    design(smallestRow, primaryHue) = sign * step1;
    design(smallestRow, table.secondarySaturation(sector)) = -step2;
}

} // namespace

Bc6x2::Bc6x2(const ChartTargets& chart)
    : ColorCalibrationStepV1(chart)
{
    m_parameters = 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1;
}

Bc6x2::~Bc6x2() = default;

void Bc6x2::Calculate()
{
    Estimate();
    Apply();
}

void Bc6x2::Estimate()
{
    const SectorTable table;
    Design design = dlib::zeros_matrix<double>(FitRows, 12);
    StackedColors base;
    for (int patch = 0; patch < ColoredPatchCount; ++patch) {
        const int sector = HueSector(Input(patch, 0), Input(patch, 1), Input(patch, 2));
        if (sector == -1) {
            throw std::runtime_error("Cannot determine hue sector on gray image");
        }
        enterPatch(table, sector, Input, patch, design, base);
    }
    m_parameters = fitInLab(chart(), design, StackedColors(stackedTargets(chart()) - base));
}

void Bc6x2::Apply()
{
    const SectorTable table;
    for (int patch = 0; patch < PatchCount; ++patch) {
        dlib::set_rowm(Output, patch) = adjusted(table, dlib::rowm(Input, patch), m_parameters);
    }
    clampOutput();
}

void Bc6x2::GetParameters(ColorAdjustment& parameters) const
{
    parameters = m_parameters;
}

int Bc6x2::HueSector(double red, double green, double blue)
{
    if (red >= blue && red > green) {
        return blue > green ? 5 : 0;
    }
    if (green >= red && green > blue) {
        return red > blue ? 1 : 2;
    }
    if (blue >= green && blue > red) {
        return green > red ? 3 : 4;
    }
    return -1;
}

int Bc6x2::AdjustmentSector(double red, double green, double blue)
{
    return sorted(red, green, blue).sector;
}

Color Bc6x2::AdjustColor(const Color& color, const ColorAdjustment& parameters)
{
    return adjusted(SectorTable(), color, parameters);
}

} // namespace ColorCalibration
