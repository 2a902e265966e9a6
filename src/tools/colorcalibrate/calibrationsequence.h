// SPDX-License-Identifier: Apache-2.0
// The wizard's order of calls, made without a window.
#pragma once

#include "colorcorrectionmodel.h"
#include "command.h"
#include "failurelog.h"
#include "icamera.h"

#include <QColor>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

namespace ColorCalibrate {

struct SequenceOptions
{
    std::optional<ColorCalibration::TrapezoidPoints> grid; ///< looked for in the image if missing
    bool adjustExposure = true;                            ///< else exposure and gain stay
    QString previousSettings;                              ///< feature stream text, may be empty
    QString previousFile;                                  ///< its name, for messages
    /// Some cameras change nothing and refuse nothing, and the worker has no limit of its own.
    std::chrono::milliseconds longestBrightnessRun = std::chrono::minutes(2);
};

struct SequenceResult
{
    ColorCalibration::TrapezoidPoints grid;
    QVector<QColor> initialColors; ///< before, as the camera showed them
    QVector<QColor> currentColors; ///< after
    QJsonObject results;           ///< as CalibrationResultsInterface has it
};

/// Somebody wanted the work to end.
class Cancelled : public CommandError
{
public:
    Cancelled()
        : CommandError(QStringLiteral("cancelled"))
    {}
};

/// Calibrates one camera from opening to the measurement of the outcome, in the wizard's order.
///
/// Two of the wizard's steps differ. The settings to be given back are kept before the first image
/// already, as the search for the chart changes the exposure time. And the wizard's sliders write
/// exposure time and gain back where they begin; so does the sequence where it adjusts them. Where
/// both are to be kept it does not: a camera whose exposure time is set from outside, as by a
/// trigger's width, takes none, and a gain in raw steps would lose one more, as it is written from
/// a hundredth of them.
///
/// What a person sees to in the wizard the sequence does by itself: it asks for color, exposure
/// time and gain before anything is changed, brings the chart into the light, repeats automatic
/// brightness that has ended beside its goal as long as it moves anything, and refuses an outcome
/// that can hardly be a chart.
///
/// Whatever ends it early, the settings that the camera had after it was opened are written back
/// and the camera is given back. Thread-bound: a thread with an event dispatcher.
class CalibrationSequence
{
public:
    /// \param model     with its services set, not open; outlives the sequence
    /// \param progress  is told each step as it begins
    /// \param isCancelled  is asked between the steps
    /// \param warn      is told each setting that the camera did not take, though all goes on
    CalibrationSequence(
        ColorCalibration::ColorCorrectionModel& model,
        std::function<void(const QString& step)> progress, std::function<bool()> isCancelled,
        std::function<void(const QString& warning)> warn = [](const QString&) {});

    /// The camera stays open and calibrated.
    /// \throws CommandError, and whatever else ends it, after the camera was given back
    SequenceResult run(const Core::CameraPoolComponents::CameraPtr& camera,
                       const SequenceOptions& options);

    /// Undoes the last run, if the camera is still open: settings and grid are as they were before
    /// it, and the camera is given back.
    void giveBack();

private:
    using Brightness = std::pair<double, double>; ///< exposure time and gain

    SequenceResult calibrateOpened(const SequenceOptions& options);
    void open(const Core::CameraPoolComponents::CameraPtr& camera);
    void requireBrightness();
    void placeGrid(const SequenceOptions& options);
    void makeNeutral(const SequenceOptions& options);
    void readBrightness(bool writesBack);
    void balanceWhite(bool mayChangeExposure);
    void adjustBrightness(const SequenceOptions& options);
    void runBrightness(const SequenceOptions& options);
    Brightness brightness() const;
    void calibrate();
    SequenceResult measureOutcome();
    void requireChart(const SequenceResult& result);
    QString adviceOnBrightness() const;

    void step(const char* name, const std::function<bool()>& call, const char* failure);

    /// A step that writes settings, some of which the camera may refuse.
    void settingsStep(const char* name, const std::function<bool()>& call, const char* failure);

    /// A step that is worth nothing without a new image.
    void imageStep(const char* name, const std::function<bool()>& call, const char* failure);
    void stopIfCancelled() const;

    /// The message with what the log says of the failure.
    QString withReason(const QString& message) const;

    ColorCalibration::ColorCorrectionModel& m_model;
    std::function<void(const QString&)> m_progress;
    std::function<bool()> m_isCancelled;
    std::function<void(const QString&)> m_warn;
    FailureLog m_log;
    Core::CameraPoolComponents::CameraPtr m_camera;
    std::optional<ColorCalibration::TrapezoidPoints> m_gridBefore;
    bool m_isLost = false;
    double m_hitRate = 0.0;         ///< of the latest image, in percent
    double m_measuredHitRate = 0.0; ///< of the one that the calibration was computed from
};

} // namespace ColorCalibrate
