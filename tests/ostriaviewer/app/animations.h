// SPDX-License-Identifier: Apache-2.0
// Lets the icons of line edits come to rest.
#pragma once

#include <QTest>
#include <QToolButton>
#include <QWidget>

namespace Viewer {

/// A line edit that ends while the icon in it fades leaks the fading.
inline bool waitForAnimations(const QWidget& window)
{
    return QTest::qWaitFor(
        [&] {
            for (const QToolButton* button : window.findChildren<QToolButton*>()) {
                const QVariant opacity = button->property("opacity");
                if (opacity.isValid() && opacity.toReal() > 0.0 && opacity.toReal() < 1.0)
                    return false;
            }
            return true;
        },
        60000);
}

} // namespace Viewer
