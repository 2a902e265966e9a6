// SPDX-License-Identifier: Apache-2.0
// Between image pixels and the canvas on which the image is shown.
#pragma once

#include <QObject>
#include <QPoint>

namespace ColorCalibration {

/// Converts points between image pixels and canvas pixels.
///
/// Both directions truncate, so a round trip may lose a pixel. Coordinates that an int cannot hold
/// become the nearest that it can. Thread-bound: the GUI thread.
class PointTransformer : public QObject
{
    Q_OBJECT
    /// Canvas position of the image's origin, canvas pixels.
    Q_PROPERTY(QPoint offset READ offset WRITE setOffset NOTIFY offsetChanged)
    /// Image pixels per canvas pixel.
    Q_PROPERTY(double scale READ scale WRITE setScale NOTIFY scaleChanged)

public:
    explicit PointTransformer(QObject* parent = nullptr);

    /// Each axis: trunc(p / scale + offset).
    QPoint toCanvas(const QPoint& p) const;

    /// Each axis: trunc((p - offset) * scale).
    QPoint toImage(const QPoint& p) const;

    QPoint offset() const { return m_offset; }
    double scale() const { return m_scale; }

    /// A write of the present value changes nothing and emits nothing.
    void setOffset(const QPoint& offset);
    void setScale(double scale);

    /// One coordinate of the offset, truncated. Compared before truncation: a fraction on top of
    /// the present coordinate counts as a change.
    Q_INVOKABLE void setX(double x);
    Q_INVOKABLE void setY(double y);

signals:
    void offsetChanged();
    void scaleChanged();

private:
    double m_scale = 1.0;
    QPoint m_offset{0, 0};
};

} // namespace ColorCalibration
