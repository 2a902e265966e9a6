// SPDX-License-Identifier: Apache-2.0
// Between image pixels and the canvas on which the image is shown.
#include "pointtransformer.h"

#include "truncate.h"

namespace ColorCalibration {
namespace {

int axisToCanvas(int image, double scale, int offset)
{
    return truncateToInt(image / scale + offset);
}

int axisToImage(int canvas, double scale, int offset)
{
    const qint64 distance = qint64{canvas} - offset;
    return truncateToInt(static_cast<double>(distance) * scale);
}

} // namespace

PointTransformer::PointTransformer(QObject* parent)
    : QObject(parent)
{}

QPoint PointTransformer::toCanvas(const QPoint& p) const
{
    return {axisToCanvas(p.x(), m_scale, m_offset.x()), axisToCanvas(p.y(), m_scale, m_offset.y())};
}

QPoint PointTransformer::toImage(const QPoint& p) const
{
    return {axisToImage(p.x(), m_scale, m_offset.x()), axisToImage(p.y(), m_scale, m_offset.y())};
}

void PointTransformer::setOffset(const QPoint& offset)
{
    if (m_offset == offset)
        return;
    m_offset = offset;
    emit offsetChanged();
}

void PointTransformer::setScale(double scale)
{
    if (m_scale == scale)
        return;
    m_scale = scale;
    emit scaleChanged();
}

void PointTransformer::setX(double x)
{
    if (x == m_offset.x())
        return;
    m_offset.setX(truncateToInt(x));
    emit offsetChanged();
}

void PointTransformer::setY(double y)
{
    if (y == m_offset.y())
        return;
    m_offset.setY(truncateToInt(y));
    emit offsetChanged();
}

} // namespace ColorCalibration
