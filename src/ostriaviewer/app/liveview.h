// SPDX-License-Identifier: Apache-2.0
// Shows a camera's picture, fitted to the window or enlarged.
#pragma once

#include <QImage>
#include <QPointF>
#include <QWidget>

namespace Viewer {

/// A picture that can be zoomed with the wheel and the keys + - 0 1, and moved with the mouse and
/// the arrow keys. A scale of 1 shows each pixel of the picture on one pixel of the screen.
/// Thread-bound: GUI thread.
class LiveView final : public QWidget
{
    Q_OBJECT

public:
    static constexpr double largestScale = 64.0;

    explicit LiveView(QWidget* parent = nullptr);

    /// A null picture shows the hint alone.
    void setPicture(const QImage& picture);
    const QImage& picture() const { return m_picture; }

    /// What the user reads while there is no picture.
    void setHint(const QString& hint);
    const QString& hint() const { return m_hint; }

    bool isFitted() const { return m_isFitted; }

    /// Screen pixels for each pixel of the picture.
    double scale() const;

    /// The picture's pixel below a position of the widget; nothing is said of being inside.
    QPointF toPicture(const QPointF& position) const;

    QSize sizeHint() const override { return {640, 480}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

public slots:
    /// The whole picture, also when the window changes.
    void zoomToFit();
    void zoomToPixels();
    void zoomIn();
    void zoomOut();

signals:
    void scaleChanged(double scale);

    /// \param pixel  outside of the picture where the mouse is
    void pixelHovered(const QPoint& pixel);

    /// A picture has come onto the screen.
    void painted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    double fittingScale() const;
    QRectF target() const;
    void zoomAt(const QPointF& position, double scale);
    void moveBy(const QPointF& delta);
    void keepInView();
    void paintPicture(QPainter& painter) const;
    void updateCursor();

    QImage m_picture;
    QString m_hint;
    bool m_isFitted = true;
    double m_scale = 1.0; // while not fitted
    QPointF m_center;     // the picture's pixel in the middle, while not fitted
    QPointF m_dragPosition;
    bool m_isDragged = false;
};

} // namespace Viewer
