// SPDX-License-Identifier: Apache-2.0
// An image with the grid painted over it.
#include "gridpicture.h"

#include "command.h"
#include "patchtrapezoids.h"

#include <QImageWriter>
#include <QPainter>
#include <QPen>

#include <algorithm>

using ColorCalibration::TrapezoidPoints;

namespace ColorCalibrate {
namespace {

/// A light line on a dark one can be seen on any patch.
void drawOutlined(QPainter& painter, const TrapezoidPoints& points, const QColor& color,
                  double width)
{
    QPen pen(Qt::black, 2.0 * width);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.drawPolyline(points.toPolygon());
    pen.setColor(color);
    pen.setWidthF(width);
    painter.setPen(pen);
    painter.drawPolyline(points.toPolygon());
}

} // namespace

void saveGridPicture(const QImage& image, const TrapezoidPoints& grid, const QString& fileName)
{
    QImage picture = image.convertToFormat(QImage::Format_RGB32);
    const double lineWidth = std::max(1.0, std::max(picture.width(), picture.height()) / 600.0);
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const TrapezoidPoints& patch :
             ColorCalibration::computePatchTrapezoids(grid, patchAreaPercent))
            drawOutlined(painter, patch, Qt::white, lineWidth);
        drawOutlined(painter, grid, QColor(0, 220, 255), 1.5 * lineWidth);
    }
    QImageWriter writer(fileName, "png");
    if (!writer.write(picture))
        throw CommandError(QStringLiteral("%1: %2").arg(fileName, writer.errorString()));
}

} // namespace ColorCalibrate
