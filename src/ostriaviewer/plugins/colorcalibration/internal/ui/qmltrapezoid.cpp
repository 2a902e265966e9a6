// SPDX-License-Identifier: Apache-2.0
// A quadrilateral as QML sees it.
#include "qmltrapezoid.h"

#include "pointtransformer.h"
#include "trapezoidpoints.h"
#include "truncate.h"

#include <QLineF>
#include <QPointF>

namespace ColorCalibration {

QmlTrapezoid::QmlTrapezoid(QObject* parent)
    : QObject(parent)
{}

QmlTrapezoid::QmlTrapezoid(TrapezoidPoints* points, const PointTransformer* transformer,
                           QObject* parent)
    : QObject(parent)
    , m_points(points)
    , m_transformer(transformer)
{}

QPoint QmlTrapezoid::shown(const QPoint& image) const
{
    return m_transformer ? m_transformer->toCanvas(image) : image;
}

QPoint QmlTrapezoid::kept(const QPoint& canvas) const
{
    return m_transformer ? m_transformer->toImage(canvas) : canvas;
}

// What has no corners reads as the default outline itself, whatever the transformer.
QPoint QmlTrapezoid::upperLeft() const
{
    return m_points ? shown(m_points->upperLeft()) : TrapezoidPoints().upperLeft();
}

QPoint QmlTrapezoid::upperRight() const
{
    return m_points ? shown(m_points->upperRight()) : TrapezoidPoints().upperRight();
}

QPoint QmlTrapezoid::lowerRight() const
{
    return m_points ? shown(m_points->lowerRight()) : TrapezoidPoints().lowerRight();
}

QPoint QmlTrapezoid::lowerLeft() const
{
    return m_points ? shown(m_points->lowerLeft()) : TrapezoidPoints().lowerLeft();
}

QPoint QmlTrapezoid::center() const
{
    QPointF crossing(0.0, 0.0);
    const QLineF falling(upperLeft(), lowerRight());
    const QLineF rising(upperRight(), lowerLeft());
    if (falling.intersects(rising, &crossing) == QLineF::NoIntersection)
        return {0, 0};
    return {truncateToInt(crossing.x()), truncateToInt(crossing.y())};
}

QPoint QmlTrapezoid::bottomCenter() const
{
    const QPointF sum = QPointF(lowerRight()) + QPointF(lowerLeft());
    return {truncateToInt(sum.x() * 0.5), truncateToInt(sum.y() * 0.5)};
}

void QmlTrapezoid::setUpperLeft(const QPoint& canvas)
{
    if (m_points)
        m_points->setUpperLeft(kept(canvas));
    emit upperLeftChanged();
}

void QmlTrapezoid::setUpperRight(const QPoint& canvas)
{
    if (m_points)
        m_points->setUpperRight(kept(canvas));
    emit upperRightChanged();
}

void QmlTrapezoid::setLowerRight(const QPoint& canvas)
{
    if (m_points)
        m_points->setLowerRight(kept(canvas));
    emit lowerRightChanged();
}

void QmlTrapezoid::setLowerLeft(const QPoint& canvas)
{
    if (m_points)
        m_points->setLowerLeft(kept(canvas));
    emit lowerLeftChanged();
}

} // namespace ColorCalibration
