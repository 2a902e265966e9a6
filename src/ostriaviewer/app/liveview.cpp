// SPDX-License-Identifier: Apache-2.0
// Shows a camera's picture, fitted to the window or enlarged.
#include "liveview.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Viewer {
namespace {

constexpr double stepOfKey = 1.25;
constexpr double stepsOfAngle =
    1.0 / 120.0; // a notch of the wheel turns by 120 eighths of a degree
constexpr double smallestScale = 1.0 / 64.0;

// From here on pixels are wanted to be seen as such.
constexpr double scaleOfVisiblePixels = 2.0;

// The picture stands out from both themes, and no color around it shifts its own.
const QColor surroundings(64, 64, 64);
const QColor hintColor(210, 210, 210);

} // namespace

LiveView::LiveView(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LiveView::setPicture(const QImage& picture)
{
    const bool isNewSize = picture.size() != m_picture.size();
    m_picture = picture;
    if (isNewSize) {
        m_center = QPointF(m_picture.width(), m_picture.height()) / 2.0;
        updateCursor();
        emit scaleChanged(scale());
    }
    update();
}

void LiveView::setHint(const QString& hint)
{
    m_hint = hint;
    setAccessibleDescription(hint);
    update();
}

double LiveView::fittingScale() const
{
    if (m_picture.isNull())
        return 1.0;
    const double ratio = devicePixelRatioF();
    return std::min(width() * ratio / m_picture.width(), height() * ratio / m_picture.height());
}

double LiveView::scale() const
{
    return m_isFitted ? fittingScale() : m_scale;
}

QRectF LiveView::target() const
{
    const double factor = scale() / devicePixelRatioF();
    const QSizeF size = QSizeF(m_picture.size()) * factor;
    const QPointF middle = QRectF(rect()).center();
    if (m_isFitted)
        return {middle - QPointF(size.width(), size.height()) / 2.0, size};
    return {middle - m_center * factor, size};
}

QPointF LiveView::toPicture(const QPointF& position) const
{
    return (position - target().topLeft()) * (devicePixelRatioF() / scale());
}

void LiveView::zoomToFit()
{
    m_isFitted = true;
    updateCursor();
    update();
    emit scaleChanged(scale());
}

void LiveView::zoomToPixels()
{
    zoomAt(QRectF(rect()).center(), 1.0);
}

void LiveView::zoomIn()
{
    zoomAt(QRectF(rect()).center(), scale() * stepOfKey);
}

void LiveView::zoomOut()
{
    zoomAt(QRectF(rect()).center(), scale() / stepOfKey);
}

// What is below the position stays there.
void LiveView::zoomAt(const QPointF& position, double scale)
{
    const QPointF fixed = toPicture(position);
    m_isFitted = false;
    m_scale = std::clamp(scale, smallestScale, largestScale);
    const QPointF fromMiddle = position - QRectF(rect()).center();
    m_center = fixed - fromMiddle * (devicePixelRatioF() / m_scale);
    keepInView();
    updateCursor();
    update();
    emit scaleChanged(m_scale);
}

void LiveView::moveBy(const QPointF& delta)
{
    if (m_isFitted)
        return;
    m_center -= delta * (devicePixelRatioF() / m_scale);
    keepInView();
    update();
}

void LiveView::keepInView()
{
    m_center.setX(std::clamp(m_center.x(), 0.0, double(m_picture.width())));
    m_center.setY(std::clamp(m_center.y(), 0.0, double(m_picture.height())));
}

void LiveView::updateCursor()
{
    if (m_picture.isNull() || m_isFitted)
        unsetCursor();
    else
        setCursor(m_isDragged ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

void LiveView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_picture.isNull()) {
        painter.fillRect(rect(), surroundings);
        painter.setPen(hintColor);
        const QRect area = rect().adjusted(24, 24, -24, -24);
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, m_hint);
        return;
    }
    paintPicture(painter);
    emit painted();
}

void LiveView::paintPicture(QPainter& painter) const
{
    const QRectF shown = target();
    const QRegion around = QRegion(rect()) - QRegion(shown.toAlignedRect().adjusted(1, 1, -1, -1));
    for (const QRect& part : around)
        painter.fillRect(part, surroundings);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale() < scaleOfVisiblePixels);
    painter.drawImage(shown, m_picture);
}

void LiveView::wheelEvent(QWheelEvent* event)
{
    if (m_picture.isNull() || event->angleDelta().y() == 0)
        return;
    const double steps = event->angleDelta().y() * stepsOfAngle;
    zoomAt(event->position(), scale() * std::pow(stepOfKey, steps));
    event->accept();
}

void LiveView::keyPressEvent(QKeyEvent* event)
{
    const QPointF page(width() / 8.0, height() / 8.0);
    switch (event->key()) {
    case Qt::Key_Plus:
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_0:
        return zoomToFit();
    case Qt::Key_1:
        return zoomToPixels();
    case Qt::Key_Left:
        return moveBy({page.x(), 0.0});
    case Qt::Key_Right:
        return moveBy({-page.x(), 0.0});
    case Qt::Key_Up:
        return moveBy({0.0, page.y()});
    case Qt::Key_Down:
        return moveBy({0.0, -page.y()});
    default:
        QWidget::keyPressEvent(event);
    }
}

void LiveView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_isDragged = true;
    m_dragPosition = event->localPos();
    updateCursor();
}

void LiveView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isDragged)
        moveBy(event->localPos() - std::exchange(m_dragPosition, event->localPos()));
    const QPointF pixel = toPicture(event->localPos());
    emit pixelHovered(
        {static_cast<int>(std::floor(pixel.x())), static_cast<int>(std::floor(pixel.y()))});
}

void LiveView::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_isDragged = false;
    updateCursor();
}

void LiveView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_isFitted)
        zoomAt(event->localPos(), 1.0);
    else
        zoomToFit();
}

void LiveView::leaveEvent(QEvent* event)
{
    emit pixelHovered({-1, -1});
    QWidget::leaveEvent(event);
}

void LiveView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    emit scaleChanged(scale());
}

} // namespace Viewer
