// SPDX-License-Identifier: Apache-2.0
// One run of the brightness worker with its thread.
#pragma once

#include "cameraautobrightnesshelper.h"

#include <QThread>

namespace ColorCalibration {

/// Owns worker and thread of one run. Its end stops the run and waits for it without a limit: a
/// worker must not outlive what it works on.
class BrightnessRun
{
public:
    /// \param lock  what the calibration's operations lock, may be null; not owned
    BrightnessRun(CalibrationInterface* calibration,
                  const Core::ParameterCollection::ParameterCollectionPtr& parameters,
                  QRecursiveMutex* lock = nullptr);
    ~BrightnessRun();
    BrightnessRun(const BrightnessRun&) = delete;
    BrightnessRun& operator=(const BrightnessRun&) = delete;

    void start();

    /// For connections; owned by the run.
    CameraAutoBrightnessHelper* worker() { return &m_worker; }

private:
    CameraAutoBrightnessHelper m_worker;
    QThread m_thread;
};

} // namespace ColorCalibration
