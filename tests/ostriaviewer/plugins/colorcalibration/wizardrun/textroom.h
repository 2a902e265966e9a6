// SPDX-License-Identifier: Apache-2.0
// Whether the texts of a scene are seen whole: each in its own room, none over another.
#pragma once

#include <QMessageBox>
#include <QQuickItem>
#include <QStringList>

namespace TextRoom {

/// What is wrong with the texts that are visible below an item, one line for each: cut off by
/// their own room, by what they label or by the window, or over another text or control. What a
/// scrolling view hides can be scrolled to, and is all right.
/// \param scene  the root of the scene, as large as its window
QStringList problems(QQuickItem* scene);

/// The same for a message box that is open.
QStringList problems(QMessageBox& box);

} // namespace TextRoom
