// SPDX-License-Identifier: Apache-2.0
// One run of the brightness worker with its thread.
#include "brightnessrun.h"

namespace ColorCalibration {

BrightnessRun::BrightnessRun(CalibrationInterface* calibration,
                             const Core::ParameterCollection::ParameterCollectionPtr& parameters,
                             QRecursiveMutex* lock)
    : m_worker(calibration, parameters, lock)
{
    m_worker.moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::started, &m_worker, &CameraAutoBrightnessHelper::doWork);
}

BrightnessRun::~BrightnessRun()
{
    m_worker.stop();
    m_thread.quit();
    m_thread.wait();
}

void BrightnessRun::start()
{
    m_thread.start(QThread::InheritPriority);
}

} // namespace ColorCalibration
