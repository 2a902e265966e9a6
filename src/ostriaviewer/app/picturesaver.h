// SPDX-License-Identifier: Apache-2.0
// The user's saving of the picture on the screen.
#pragma once

#include "viewersettings.h"

#include <QImage>
#include <QObject>
#include <QWidget>

namespace Viewer {

/// Asks for a file and writes a picture into it, until that succeeds or the user gives it up. No
/// file is replaced that the user was not asked about. Thread-bound: GUI thread.
class PictureSaver final : public QObject
{
    Q_OBJECT

public:
    /// \param settings  lent as long as this object lives; keep the folder
    /// \param window    the dialog's; owns this object
    PictureSaver(ViewerSettings& settings, QWidget* window);

    /// Returns while the user still chooses.
    /// \param camera  named in the file name that is proposed
    void save(const QImage& picture, const QString& camera);

signals:
    /// The file could not be written; says what to do.
    /// \param dialog  still open, with what the user has chosen
    void failed(const QString& text, QWidget* dialog);

private:
    QString folder() const;
    QString write(const QImage& picture, const QString& file);

    ViewerSettings& m_settings;
    QWidget* m_window;
};

} // namespace Viewer
