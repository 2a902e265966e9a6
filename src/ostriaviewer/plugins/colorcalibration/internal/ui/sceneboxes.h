// SPDX-License-Identifier: Apache-2.0
// The scene's own message boxes and file dialogs over the wizard's window.
#pragma once

#include "keysafterdialogs.h"

#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace ColorCalibration {

/// While it lives, dialogs without a parent stand over a window, and give the keys back to its
/// scene when they go. Thread-bound: GUI thread.
class SceneBoxes : public Core::KeysAfterDialogs
{
public:
    /// Both may end before this object.
    /// \param scene  stands in the window
    SceneBoxes(QWidget* window, QWindow* scene);

protected:
    bool comes(QDialog& dialog, QEvent& event) override;
    bool goes(const QDialog& dialog) override;
    void giveKeysBack() override;

private:
    bool isPlaced(const QDialog& dialog) const;
    void place(QDialog& dialog) const;

    QPointer<QWidget> m_window;
    QPointer<QWindow> m_scene;
};

} // namespace ColorCalibration
