// SPDX-License-Identifier: Apache-2.0
// The subcommand "find".
#include "findcommand.h"

#include "colorcorrectionautochartfinder.h"
#include "commandline.h"
#include "grid.h"
#include "gridpicture.h"
#include "imagefile.h"
#include "jsontext.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>

#include <ostream>

using ColorCalibration::ColorCorrectionAutoChartFinderResult;

namespace ColorCalibrate {
namespace {

QJsonArray toJson(const QPoint& point)
{
    return {point.x(), point.y()};
}

QJsonObject toJson(const ColorCorrectionAutoChartFinderResult& found, double milliseconds)
{
    return {
        {QStringLiteral("valid"), found.valid},
        {QStringLiteral("upperLeft"), toJson(found.upperLeft)},
        {QStringLiteral("upperRight"), toJson(found.upperRight)},
        {QStringLiteral("lowerLeft"), toJson(found.lowerLeft)},
        {QStringLiteral("lowerRight"), toJson(found.lowerRight)},
        {QStringLiteral("milliseconds"), milliseconds},
    };
}

std::string gridText(const ColorCorrectionAutoChartFinderResult& found)
{
    const auto text = [](const QPoint& point) {
        return QStringLiteral("%1,%2").arg(point.x()).arg(point.y());
    };
    return QStringList{text(found.upperLeft), text(found.upperRight), text(found.lowerLeft),
                       text(found.lowerRight)}
        .join(QLatin1Char(' '))
        .toStdString();
}

} // namespace

void findCommand(const QStringList& arguments, const Streams& streams)
{
    CommandLine line(
        QStringLiteral("find IMAGE [options]"),
        QStringLiteral("Looks for the chart in an image: PNG, TIFF, JPEG, BMP.\nPrints its corners "
                       "as \"colorcalibrate measure --grid\" reads them."));
    line.addOption(QStringLiteral("draw"),
                   QStringLiteral("Save the image as PNG with the grid painted over it."),
                   QStringLiteral("file"));
    line.addFlag(
        QStringLiteral("json"),
        QStringLiteral("Print {\"valid\", \"upperLeft\": [x, y], ..., \"milliseconds\"}; also "
                       "where nothing plausible was found."));
    if (!line.parse(arguments, 1, streams.out))
        return;

    const QImage picture = readImage(line.positional(0));
    const QImage searched = picture.convertToFormat(QImage::Format_RGB32);
    QElapsedTimer timer;
    timer.start();
    const auto found = ColorCalibration::ColorCorrectionAutoChartFinder().findChart(searched);
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;

    if (line.isSet(QStringLiteral("json")))
        streams.out << toJsonText(toJson(found, milliseconds)).toStdString() << "\n";
    // Painted also where it is refused: then a look at it tells why.
    if (line.isSet(QStringLiteral("draw")))
        saveGridPicture(picture,
                        {found.upperLeft, found.upperRight, found.lowerLeft, found.lowerRight},
                        line.value(QStringLiteral("draw")));
    toGrid(found, picture.size());
    if (!line.isSet(QStringLiteral("json")))
        streams.out << gridText(found) << "\n";
}

} // namespace ColorCalibrate
