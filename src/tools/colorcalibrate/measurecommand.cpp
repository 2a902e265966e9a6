// SPDX-License-Identifier: Apache-2.0
// The subcommand "measure".
#include "measurecommand.h"

#include "chartdiscriminator.h"
#include "commandline.h"
#include "grid.h"
#include "gridpicture.h"
#include "imagefile.h"
#include "jsonvalues.h"
#include "patchcolorconversion.h"
#include "patchfile.h"
#include "patchmeasurement.h"

#include <QColor>
#include <QJsonObject>
#include <QVector>

#include <ostream>

using namespace ColorCalibration;

namespace ColorCalibrate {
namespace {

/// Which patches were too small, as the colours that were measured have moved up.
[[noreturn]] void failOnSmallPatches(ChartDiscriminator& discriminator,
                                     const Ostria::COstriaImage& image)
{
    QVector<TrapezoidPoints> patches;
    discriminator.patchTrapezoids(patches);
    int first = 0;
    QColor ignored;
    while (measurePatch(patches.at(first), image, 1, ignored))
        ++first;
    throw CommandError(QStringLiteral("patch %1 of the grid has fewer than %2 pixels; the chart is "
                                      "too small in the image")
                           .arg(first + 1)
                           .arg(MinimumPatchPixels));
}

PatchColors measure(const Ostria::COstriaImage& image, const TrapezoidPoints& grid, bool linearize)
{
    ChartDiscriminator discriminator(patchAreaPercent);
    discriminator.setOutline(grid);
    discriminator.measureAllPatches(image);
    QVector<QColor> colors;
    discriminator.patchColors(colors);
    if (colors.size() != PatchCount)
        failOnSmallPatches(discriminator, image);
    return toPatchColors(colors, linearize);
}

} // namespace

void measureCommand(const QStringList& arguments, const Streams& streams)
{
    CommandLine line(
        QStringLiteral("measure IMAGE --grid auto|\"x,y x,y x,y x,y\" [options]"),
        QStringLiteral("Measures the 24 patches of an image of the chart: 8- or 16-bit "
                       "PNG or TIFF, JPEG, BMP.\nPrints 24 lines \"R,G,B\" of 0 to "
                       "255, as \"colorcalibrate compute\" reads them."));
    line.addOption(QStringLiteral("grid"),
                   QStringLiteral("The chart's corners in image pixels: upper left, upper right, "
                                  "lower left, lower right; or \"auto\" to look for it."),
                   QStringLiteral("points"));
    line.addOption(QStringLiteral("draw"),
                   QStringLiteral("Save the image as PNG with the grid painted over it."),
                   QStringLiteral("file"));
    line.addFlag(
        QStringLiteral("linearize"),
        QStringLiteral("Take off the sRGB curve, which photographs and screenshots carry."));
    line.addFlag(QStringLiteral("json"), QStringLiteral("Print {\"colors\": [[R, G, B], ...]}."));
    if (!line.parse(arguments, 1, streams.out))
        return;

    const QString gridText = line.requiredValue(QStringLiteral("grid"));
    const bool isAuto = gridText == QLatin1String("auto");
    TrapezoidPoints grid;
    if (!isAuto)
        grid = parseGrid(gridText);
    const QImage picture = readImage(line.positional(0));
    const Ostria::COstriaImage image = toCameraImage(picture, line.positional(0));
    if (isAuto)
        grid = findGrid(picture);
    requireInside(grid, picture.size());
    const PatchColors colors = measure(image, grid, line.isSet(QStringLiteral("linearize")));
    if (line.isSet(QStringLiteral("draw")))
        saveGridPicture(picture, grid, line.value(QStringLiteral("draw")));
    if (line.isSet(QStringLiteral("json")))
        streams.out
            << toJsonText(QJsonObject{{QStringLiteral("colors"), toJson(colors)}}).toStdString()
            << "\n";
    else
        writePatchColors(streams.out, colors);
}

} // namespace ColorCalibrate
