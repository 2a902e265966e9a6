// SPDX-License-Identifier: Apache-2.0
// Message boxes over whatever window is active.
#pragma once

#include <QMessageBox>
#include <QString>

namespace ColorCalibration {

enum class BoxIcon { Error, Question };

/// Shows a modal box with the host's own picture for the icon,
/// and returns when it has ended. Thread-bound: GUI thread.
/// \param title          translated
/// \param defaultButton  what Return presses
/// \param format         plain for what others have written: their angle brackets are to be seen
/// \return  the button pressed, or the one that Escape stands for; NoButton if the window below was
///          destroyed meanwhile
QMessageBox::StandardButton showModalBox(BoxIcon icon, const QString& title, const QString& text,
                                         QMessageBox::StandardButtons buttons,
                                         QMessageBox::StandardButton defaultButton,
                                         Qt::TextFormat format);

} // namespace ColorCalibration
