// SPDX-License-Identifier: Apache-2.0
// Where the keys go when a dialog closes.
#pragma once

#include <QObject>
#include <QWidget>

namespace Viewer {

/// Gives the keys back to the window, or to the dialog that is still open over it. A window manager
/// does so too, but there is not one everywhere. Thread-bound: GUI thread.
class DialogFocus final : public QObject
{
    Q_OBJECT

public:
    /// \param window  lent as long as this lives
    explicit DialogFocus(QWidget& window);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void giveKeysBack(bool isParentless);

    QWidget& m_window;
};

} // namespace Viewer
