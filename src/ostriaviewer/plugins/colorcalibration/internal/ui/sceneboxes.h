// SPDX-License-Identifier: Apache-2.0
// The scene's own message boxes and file dialogs over the wizard's window.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace ColorCalibration {

/// While it lives, dialogs without a parent stand over a window, and give the keys back to its
/// scene when they go. Thread-bound: GUI thread.
class SceneBoxes : public QObject
{
public:
    /// Both may end before this object.
    /// \param scene  stands in the window
    SceneBoxes(QWidget* window, QWindow* scene);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool isPlaced(const QWidget* dialog) const;
    bool show(QWidget* dialog, QEvent* event);
    void place(QWidget* dialog);
    void giveKeysBack();

    QPointer<QWidget> m_window;
    QPointer<QWindow> m_scene;
};

} // namespace ColorCalibration
