// SPDX-License-Identifier: Apache-2.0
// Sees to it that a camera is given back as it was.
#pragma once

#include "hostcamera.h"

#include <QString>

#include <chrono>
#include <functional>

namespace ColorCalibrate {

/// The parameters of an open camera, which a loss of the connection may end at any time.
/// \return  not null
/// \throws CommandError  the camera is not open any more
Core::ParameterCollection::ParameterCollectionPtr
requireParameters(const Cameras::HostCameraPtr& camera);

/// Opens a camera for the tool and keeps its settings as they are before anybody touches them.
/// Closes the camera at its end. Thread-bound.
class SettingsGuard
{
public:
    /// \param longestAbsence  how long restore waits for a camera that is away
    /// \throws CommandError  the camera cannot be opened, or its settings cannot be read
    explicit SettingsGuard(const Cameras::HostCameraPtr& camera,
                           std::chrono::milliseconds longestAbsence = std::chrono::seconds(10));
    ~SettingsGuard();
    SettingsGuard(const SettingsGuard&) = delete;
    SettingsGuard& operator=(const SettingsGuard&) = delete;

    /// Writes the settings back where they have changed, and compares. A camera that was lost is
    /// opened again, and waited for until somebody interrupts that.
    /// \param tell  is told once what is waited for
    /// \return  a remark for the user behind the message of a failure: that all is as it was, or,
    ///          so that it cannot be overlooked, what is not
    QString restore(const std::function<void(const QString& step)>& tell = [](const QString&) {});

private:
    QString readSettings() const;
    QString tryToRestore();

    const Cameras::HostCameraPtr m_camera;
    const std::chrono::milliseconds m_longestAbsence;
    QString m_settings;
};

} // namespace ColorCalibrate
