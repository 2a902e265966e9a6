// SPDX-License-Identifier: Apache-2.0
// A quadrilateral as QML sees it.
#pragma once

#include <QObject>
#include <QPoint>

namespace ColorCalibration {

class PointTransformer;
class TrapezoidPoints;

/// Shows corners that are kept in image pixels in canvas pixels. Owns nothing; without corners it
/// reads as the default outline, without a transformer in image pixels. Thread-bound: GUI thread.
class QmlTrapezoid : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QPoint upperLeft READ upperLeft WRITE setUpperLeft NOTIFY upperLeftChanged)
    Q_PROPERTY(QPoint upperRight READ upperRight WRITE setUpperRight NOTIFY upperRightChanged)
    Q_PROPERTY(QPoint lowerRight READ lowerRight WRITE setLowerRight NOTIFY lowerRightChanged)
    Q_PROPERTY(QPoint lowerLeft READ lowerLeft WRITE setLowerLeft NOTIFY lowerLeftChanged)
    /// Where the diagonals meet; (0, 0) if they are parallel.
    Q_PROPERTY(QPoint center READ center NOTIFY centerChanged)
    /// Middle of the lower edge.
    Q_PROPERTY(QPoint bottomCenter READ bottomCenter NOTIFY bottomCenterChanged)

public:
    explicit QmlTrapezoid(QObject* parent = nullptr);

    /// \param points       image pixels; lent for the life of this object; may be null
    /// \param transformer  lent likewise; may be null
    QmlTrapezoid(TrapezoidPoints* points, const PointTransformer* transformer,
                 QObject* parent = nullptr);

    QPoint upperLeft() const;
    QPoint upperRight() const;
    QPoint lowerRight() const;
    QPoint lowerLeft() const;
    QPoint center() const;
    QPoint bottomCenter() const;

    /// Each stores the corner and emits its own signal alone, also when nothing has changed. The
    /// model hears of it with the next update of the list.
    void setUpperLeft(const QPoint& canvas);
    void setUpperRight(const QPoint& canvas);
    void setLowerRight(const QPoint& canvas);
    void setLowerLeft(const QPoint& canvas);

signals:
    void upperLeftChanged();
    void upperRightChanged();
    void lowerRightChanged();
    void lowerLeftChanged();
    void centerChanged();
    void bottomCenterChanged();

    /// Asks the page to place its initial outline; emitted from QML.
    void resetOutline();

private:
    QPoint shown(const QPoint& image) const;
    QPoint kept(const QPoint& canvas) const;

    TrapezoidPoints* m_points = nullptr;
    const PointTransformer* m_transformer = nullptr;
};

} // namespace ColorCalibration
