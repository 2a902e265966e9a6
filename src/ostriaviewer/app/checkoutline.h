// SPDX-License-Identifier: Apache-2.0
// Check boxes that can be seen on dark ground too.
#pragma once

#include <QProxyStyle>

namespace Viewer {

/// The style of the windows, with an outline around check boxes that stands out from any ground:
/// its own one is darker than the window, and vanishes on a dark list. For single widgets; as the
/// style of the application it would be no style that Qt Quick knows. Thread-bound: GUI thread.
class CheckOutline final : public QProxyStyle
{
    Q_OBJECT

public:
    /// Gives a widget this style, which ends with it.
    static void install(QWidget& widget);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

private:
    CheckOutline();
};

} // namespace Viewer
