// SPDX-License-Identifier: Apache-2.0
// What the GenICam library has to complain of goes into the host's log.
#pragma once

#include <QString>

namespace Cameras::GenICam {

/// From now on complaints of Aravis and GLib are entries of the log, with the camera and the
/// feature that the thread was at, each complaint once, up to a number after which an entry says
/// that there are more; they would go to standard error, without a name. Thread-safe.
void logLibraryComplaints();

/// What the library is used for.
enum class LibraryTask {
    Description, ///< to read a camera's description, and features by it
    Transfer     ///< to send and to receive
};

/// Says what its thread is doing while it lives. Scopes may be nested; the inner one counts.
class LibraryScope
{
public:
    /// Both texts are lent as long as the scope lives.
    /// \param camera   its name for messages
    /// \param feature  empty: the description as a whole
    LibraryScope(const QString& camera, const QString& feature,
                 LibraryTask task = LibraryTask::Description);
    ~LibraryScope();
    LibraryScope(const LibraryScope&) = delete;
    LibraryScope& operator=(const LibraryScope&) = delete;

    const QString& camera() const { return m_camera; }
    const QString& feature() const { return m_feature; }
    LibraryTask task() const { return m_task; }

    /// Null if the thread is in none.
    static const LibraryScope* current();

private:
    const QString& m_camera;
    const QString& m_feature;
    const LibraryTask m_task;
    const LibraryScope* const m_outer;
};

} // namespace Cameras::GenICam
