// SPDX-License-Identifier: Apache-2.0
// What the viewer remembers from one start to the next.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace Viewer {

/// The viewer's part of the application's settings file.
///
/// A file that cannot be read is set aside before anything is written; settings of a newer viewer
/// are neither used nor changed. Thread-bound: GUI thread.
class ViewerSettings
{
public:
    /// Of the layout of windows and the meaning of all values here.
    static constexpr int version = 1;

    ViewerSettings();

    /// Why the settings start with defaults, in the language of the moment; empty if they do not.
    QString warning() const;

    /// Whether values are kept for the next start.
    bool isKept() const { return m_isKept; }

    QVariant value(const QString& name, const QVariant& defaultValue = {}) const;

    /// A file that cannot be written is told in the log, once.
    void setValue(const QString& name, const QVariant& value);

private:
    enum class Problem { None, Unreadable, DamagedAndKept, Damaged, Newer };

    void checkReadable();
    void checkVersion();

    Problem m_problem = Problem::None;
    QString m_problemFile;
    bool m_isKept = true;
    bool m_isLossTold = false;
};

} // namespace Viewer
