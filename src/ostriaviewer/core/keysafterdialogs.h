// SPDX-License-Identifier: Apache-2.0
// Where the keys go when a dialog has gone.
#pragma once

#include "coreexport.h"

#include <QDialog>
#include <QEvent>
#include <QObject>

namespace Core {

/// Sees the program's dialogs come and go while it lives, and gives the keys back. A window manager
/// does so too, but there is not one everywhere. Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT KeysAfterDialogs : public QObject
{
public:
    KeysAfterDialogs();

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    /// A dialog is about to be shown by the program.
    /// \return  whether the dialog is not to get the event any more
    virtual bool comes(QDialog& dialog, QEvent& event);

    /// A dialog was taken from the screen by the program.
    /// \return  whether to give the keys back
    virtual bool goes(const QDialog& dialog) = 0;

    /// Called by the event loop, when whatever ended the dialog has been done.
    virtual void giveKeysBack() = 0;
};

} // namespace Core
