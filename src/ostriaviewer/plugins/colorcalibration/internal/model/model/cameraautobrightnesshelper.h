// SPDX-License-Identifier: Apache-2.0
// Brings the gray patch to its target brightness.
#pragma once

#include "calibrationinterface.h"
#include "iparametercollection.h"

#include <QObject>

#include <atomic>

namespace ColorCalibration {

/// The worker of one run: exposure time first, gain once exposure has reached a limit.
///
/// Lives in a thread of its own and reaches the camera through the calibration alone, so that each
/// of its steps takes the model's lock by itself.
class CameraAutoBrightnessHelper : public QObject
{
    Q_OBJECT

public:
    /// \param calibration  not owned, outlives the worker
    CameraAutoBrightnessHelper(CalibrationInterface* calibration,
                               const Core::ParameterCollection::ParameterCollectionPtr& parameters);
    ~CameraAutoBrightnessHelper() override;

    /// Ends the run after its present pass, or before its first. Thread-safe.
    void stop();

signals:
    /// The run has ended: the goal is reached, the limits are, somebody stopped it, or it failed.
    void AutoBrightnessFinished();

public slots:
    /// The whole run. Failures are logged and end it.
    void doWork();

private:
    struct Limits
    {
        double lowest;
        double highest;

        /// Whether the value had to be brought inside.
        bool clamp(double& value) const;
    };

    void readLimits();
    void run();
    void adjust();
    double measurePeak();
    void adjustExposure(double ratio, double gainMinimum, double gain, double exposure);
    void adjustGain(double ratio, double gain);

    CalibrationInterface* m_calibration;
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
