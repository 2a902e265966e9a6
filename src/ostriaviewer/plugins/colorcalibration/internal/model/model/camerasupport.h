// SPDX-License-Identifier: Apache-2.0
// Which cameras can be calibrated.
#pragma once

#include "icamerainfo.h"
#include "iparameterservice.h"

#include <QWeakPointer>

namespace ColorCalibration {

/// Whether a camera can be calibrated: by its model name, for most models together with the version
/// of its colour pipeline, which can be read while the camera is open. Reentrant.
/// \param camera      may be null, which is not supported
/// \param parameters  lent for the call; null where the host has no such service
bool isCameraSupported(const Core::CameraPoolComponents::CameraInfoPtr& camera,
                       Plugin::ParameterCollectionPool::IParameterService* parameters);

/// The same question for whoever asks it again and again, as hosts do of a camera that does not
/// answer: the log tells once that a camera could not be asked, until another one is asked about.
/// Thread-bound: its owner's thread.
class CameraSupport
{
public:
    /// As isCameraSupported.
    bool isSupported(const Core::CameraPoolComponents::CameraInfoPtr& camera,
                     Plugin::ParameterCollectionPool::IParameterService* parameters);

private:
    QWeakPointer<Core::CameraPoolComponents::ICameraInfo> m_camera; // asked last
    bool m_isTold = false;
};

} // namespace ColorCalibration
