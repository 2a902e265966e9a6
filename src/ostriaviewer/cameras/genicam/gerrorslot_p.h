// SPDX-License-Identifier: Apache-2.0
// Receives the error of a call into Aravis.
#pragma once

#include <QString>

typedef struct _GError GError;

namespace Cameras::GenICam {

/// Owns the error that a call leaves behind. For one call.
class GErrorSlot
{
public:
    GErrorSlot() = default;
    ~GErrorSlot();
    GErrorSlot(const GErrorSlot&) = delete;
    GErrorSlot& operator=(const GErrorSlot&) = delete;

    /// To be handed to the call.
    operator GError**() { return &m_error; }

    bool isSet() const { return m_error != nullptr; }

    /// Whether the description says nothing about what was asked for, such as a limit.
    bool meansNotDefined() const;

    /// Whether a device did not answer in time.
    bool isTimeout() const;

    /// Whether a device lets this program not do what it may let others do.
    bool isAccessDenied() const;

    /// Whether a device's description cannot be read or understood.
    bool isAboutDescription() const;

    /// The reason, without the names of the nodes that it came through.
    QString reason() const;

private:
    GError* m_error = nullptr;
};

} // namespace Cameras::GenICam
