// SPDX-License-Identifier: Apache-2.0
// Where the keys go when a dialog closes.
#pragma once

#include "keysafterdialogs.h"

#include <QPointer>
#include <QWidget>

namespace Viewer {

/// Gives the keys back to the dialog that is still open, or to whichever window had them before:
/// the main window or a panel that floats beside it. Thread-bound: GUI thread.
class DialogFocus final : public Core::KeysAfterDialogs
{
public:
    /// \param window  lent as long as this lives
    explicit DialogFocus(QWidget& window);

protected:
    bool comes(QDialog& dialog, QEvent& event) override;
    bool goes(const QDialog& dialog) override;
    void giveKeysBack() override;

private:
    QWidget& m_window;
    QPointer<QWidget> m_before; // had the keys before the first dialog
};

} // namespace Viewer
