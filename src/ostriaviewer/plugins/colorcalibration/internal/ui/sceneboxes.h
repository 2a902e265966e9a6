// SPDX-License-Identifier: Apache-2.0
// The scene's own message boxes and file dialogs over the wizard's window.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace ColorCalibration {

/// While it lives, dialogs without a parent stand over a window, and keys that are held answer no
/// message box. Thread-bound: GUI thread.
class SceneBoxes : public QObject
{
public:
    /// \param window  may end before this object
    explicit SceneBoxes(QWidget* window);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool isPlaced(const QWidget* dialog) const;
    void place(QWidget* dialog);

    QPointer<QWidget> m_window;
};

} // namespace ColorCalibration
