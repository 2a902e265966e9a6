// SPDX-License-Identifier: Apache-2.0
// Lets the icons of line edits come to rest.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

namespace Viewer {

/// A line edit that ends while the icon in it fades leaks the fading: the icon is seen with text.
inline bool waitForAnimations(const QWidget& window)
{
    const auto isAtRest = [&] {
        for (const QLineEdit* line : window.findChildren<QLineEdit*>())
            for (const QToolButton* button : line->findChildren<QToolButton*>())
                if (button->property("opacity").toReal() != (line->text().isEmpty() ? 0.0 : 1.0))
                    return false;
        return true;
    };
    const bool isOver = QTest::qWaitFor(isAtRest, 60000);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return isOver;
}

} // namespace Viewer
