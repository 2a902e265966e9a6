// SPDX-License-Identifier: Apache-2.0
// Check boxes that can be seen on dark ground too.
#include "checkoutline.h"

#include "theme.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace Viewer {

CheckOutline::CheckOutline()
    : QProxyStyle(styleName())
{}

void CheckOutline::install(QWidget& widget)
{
    auto* style = new CheckOutline;
    style->setParent(&widget);
    widget.setStyle(style);
}

void CheckOutline::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox)
        return;
    painter->save();
    painter->setPen(option->palette.color(QPalette::PlaceholderText));
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}

} // namespace Viewer
