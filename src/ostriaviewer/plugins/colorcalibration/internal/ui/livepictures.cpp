// SPDX-License-Identifier: Apache-2.0
// The pictures that the live image shows.
#include "livepictures.h"

#include <QPainter>

namespace ColorCalibration {
namespace {

constexpr double indicatorTurnMs = 1500.0;
constexpr double indicatorScale = 0.3;

} // namespace

QImage cameraPicture(const QImage& image, const QSize& size)
{
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

QImage failurePicture(const QImage& logo, const QSize& size)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.drawImage((size.width() - logo.width()) / 2, (size.height() - logo.height()) / 2, logo);
    return picture;
}

int indicatorAngle(qint64 elapsedMs)
{
    const auto degrees =
        static_cast<qint64>(static_cast<double>(elapsedMs) / indicatorTurnMs * 360.0);
    return static_cast<int>(degrees % 360);
}

QImage overduePicture(const QImage& picture, const QImage& indicator, int angle)
{
    QImage drawn = picture.copy();
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(drawn.width() / 2, drawn.height() - drawn.height() / 4);
    painter.rotate(angle);
    painter.scale(indicatorScale, indicatorScale);
    painter.drawImage(QPointF(-indicator.width() / 2.0, -indicator.height() / 2.0), indicator);
    return drawn;
}

} // namespace ColorCalibration
