// SPDX-License-Identifier: Apache-2.0
// The grid's outline as the user writes it.
#include "grid.h"

#include "colorcorrectionautochartfinder.h"
#include "command.h"

#include <QRegularExpression>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <array>

using ColorCalibration::TrapezoidPoints;

namespace ColorCalibrate {
namespace {

constexpr std::array<const char*, 4> cornerNames{"upper left", "upper right", "lower left",
                                                 "lower right"};

[[noreturn]] void failGrid(const QString& text, const QString& problem)
{
    throw CommandError(QStringLiteral("the grid \"%1\" %2").arg(text, problem), WrongUsage);
}

QPoint parsePoint(const QString& point, const QString& grid)
{
    static const QRegularExpression form(QStringLiteral("^([+-]?\\d+),([+-]?\\d+)$"));
    const QRegularExpressionMatch match = form.match(point);
    bool xFits = false;
    bool yFits = false;
    const QPoint parsed(match.captured(1).toInt(&xFits), match.captured(2).toInt(&yFits));
    if (!xFits || !yFits)
        failGrid(grid, QStringLiteral("has \"%1\" where a point \"x,y\" of whole pixels is "
                                      "expected")
                           .arg(point));
    return parsed;
}

/// Twice the area of the triangle; positive where a, b, c go round clockwise on the screen.
double turn(const QPoint& a, const QPoint& b, const QPoint& c)
{
    const double abX = double{1.0} * b.x() - a.x();
    const double abY = double{1.0} * b.y() - a.y();
    const double bcX = double{1.0} * c.x() - b.x();
    const double bcY = double{1.0} * c.y() - b.y();
    return abX * bcY - abY * bcX;
}

/// What is wrong with an outline, empty if nothing is.
QString shapeProblem(const TrapezoidPoints& grid)
{
    const std::array<QPoint, 4> round{grid.upperLeft(), grid.upperRight(), grid.lowerRight(),
                                      grid.lowerLeft()};
    std::array<double, 4> turns{};
    for (std::size_t i = 0; i < 4; ++i)
        turns[i] = turn(round[i], round[(i + 1) % 4], round[(i + 2) % 4]);

    const auto zero = [](double value) {
        return value == 0.0;
    };
    const auto negative = [](double value) {
        return value < 0.0;
    };
    if (std::any_of(turns.begin(), turns.end(), zero))
        return QStringLiteral("has three corners on one line, which leaves patches without area");
    if (std::all_of(turns.begin(), turns.end(), negative))
        return QStringLiteral("is mirrored; the order is upper left, upper right, lower left, "
                              "lower right");
    if (std::any_of(turns.begin(), turns.end(), negative))
        return QStringLiteral("crosses itself or is dented; the order is upper left, upper right, "
                              "lower left, lower right");
    return {};
}

} // namespace

TrapezoidPoints parseGrid(const QString& text)
{
    const QStringList words =
        text.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    if (words.size() != 4)
        failGrid(text, QStringLiteral("has %1 points; four are expected: \"x,y x,y x,y x,y\"")
                           .arg(words.size()));
    QVector<QPoint> points;
    for (const QString& word : words)
        points.append(parsePoint(word, text));
    const TrapezoidPoints grid(points.at(0), points.at(1), points.at(2), points.at(3));
    const QString problem = shapeProblem(grid);
    if (!problem.isEmpty())
        failGrid(text, problem);
    return grid;
}

void requireInside(const TrapezoidPoints& grid, const QSize& image)
{
    const std::array<QPoint, 4> corners{grid.upperLeft(), grid.upperRight(), grid.lowerLeft(),
                                        grid.lowerRight()};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QPoint& corner = corners[i];
        // A corner names the edge of the chart, which may be the edge of the image.
        if (corner.x() < 0 || corner.y() < 0 || corner.x() > image.width() ||
            corner.y() > image.height())
            throw CommandError(
                QStringLiteral("the grid's %1 corner (%2, %3) lies outside the image of %4 x %5 "
                               "pixels")
                    .arg(QLatin1String(cornerNames[i]))
                    .arg(corner.x())
                    .arg(corner.y())
                    .arg(image.width())
                    .arg(image.height()));
    }
}

TrapezoidPoints toGrid(const ColorCalibration::ColorCorrectionAutoChartFinderResult& found,
                       const QSize& image)
{
    const TrapezoidPoints grid(found.upperLeft, found.upperRight, found.lowerLeft,
                               found.lowerRight);
    if (found.valid && shapeProblem(grid).isEmpty())
        return grid;
    constexpr double tallest = 3.0;
    const bool isTall = image.height() > tallest * image.width();
    throw CommandError(
        isTall ? QStringLiteral("no chart was found in the image of %1 x %2 pixels; images so tall "
                                "are not searched, cut it to what shows the chart")
                     .arg(image.width())
                     .arg(image.height())
               : QStringLiteral("no chart was found in the image; the whole of it must be in "
                                "the image, upright and at least a fifth of the image wide, and "
                                "its colors must not be changed beyond recognition; or give its "
                                "corners by hand"));
}

TrapezoidPoints findGrid(const QImage& image)
{
    return toGrid(ColorCalibration::ColorCorrectionAutoChartFinder().findChart(
                      image.convertToFormat(QImage::Format_RGB32)),
                  image.size());
}

} // namespace ColorCalibrate
