// SPDX-License-Identifier: Apache-2.0
// Brings the gray patch to its target brightness.
#pragma once

#include "calibrationinterface.h"
#include "iparametercollection.h"

#include <QObject>
#include <QRecursiveMutex>

#include <atomic>

namespace ColorCalibration {

/// The worker of one run: exposure time first, gain once exposure has reached a limit.
///
/// Lives in a thread of its own and, once it has read the limits of the automatic functions,
/// reaches the camera through the calibration alone, so that each of its steps takes the model's
/// lock by itself. It never waits for that lock longer than until it is stopped, so that who holds
/// the lock may wait for its end.
class CameraAutoBrightnessHelper : public QObject
{
    Q_OBJECT

public:
    /// \param calibration  not owned, outlives the worker
    /// \param lock         what the calibration's operations lock; null if nothing. Not owned
    CameraAutoBrightnessHelper(CalibrationInterface* calibration,
                               Core::ParameterCollection::ParameterCollectionPtr parameters,
                               QRecursiveMutex* lock = nullptr);
    ~CameraAutoBrightnessHelper() override;

    /// Ends the run: no call of the calibration begins any more. Thread-safe.
    void stop();

signals:
    /// The run has ended: the goal is reached, the limits are, somebody stopped it, or it failed,
    /// also because the camera did not take the exposure time, or the gain that was to go on where
    /// the exposure time had reached its limit.
    void AutoBrightnessFinished();

public slots:
    /// The whole run. Failures are logged and end it.
    void doWork();

private:
    /// Thrown where the run has been stopped.
    struct Stopped
    {};

    /// The calibration for one call, under its lock.
    class Turn
    {
    public:
        /// \throws Stopped
        explicit Turn(CameraAutoBrightnessHelper& worker);
        ~Turn();
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

        CalibrationInterface* operator->() const { return m_worker.m_calibration; }

    private:
        CameraAutoBrightnessHelper& m_worker;
    };

    struct Limits
    {
        double lowest;
        double highest;

        /// Whether the value had to be brought inside.
        bool clamp(double& value) const;
    };

    Turn calibration() { return Turn(*this); }
    void readLimits();
    void run();
    void adjust();
    double measurePeak();
    void adjustExposure(double ratio, double gainMinimum, double gain, double exposure);
    void adjustGain(double ratio, double gain);

    CalibrationInterface* m_calibration;
    QRecursiveMutex* m_lock;
    Core::ParameterCollection::ParameterCollectionPtr m_parameters;
    std::atomic_bool m_running{false};
    std::atomic_bool m_stopRequested{false};
    bool m_gainStage = false;
    double m_gainScale = 1.0;
    double m_errorPercent = 0.0;
    Limits m_exposureLimits{};
    Limits m_gainLimits{};
};

} // namespace ColorCalibration
