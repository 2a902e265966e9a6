// SPDX-License-Identifier: Apache-2.0
// The calibration as the wizard uses it.
#pragma once

#include "trapezoidpoints.h"

#include <QColor>
#include <QImage>
#include <QVector>

namespace ColorCalibration {

/// Grid, brightness, measuring and calibrating.
///
/// Grid, target colours, and image and colours before calibration, those of the camera before, can
/// be had without a camera; all else answers with its failure value then. No exception leaves any
/// operation; failures are logged. Thread-safe. Lists are in chart order and are appended to unless
/// it says otherwise; a count is that of the list afterwards where it was handed in empty.
class CalibrationInterface
{
public:
    CalibrationInterface() = default;
    CalibrationInterface(const CalibrationInterface&) = delete;
    CalibrationInterface& operator=(const CalibrationInterface&) = delete;
    virtual ~CalibrationInterface() = default;

    /// Starts bringing the gray patch to its target brightness by exposure time and gain; ends a
    /// run that is under way. Returns at once; AutoAdjustGray80PercentPatchFinished follows.
    virtual bool AutoAdjustGray80PercentPatch() = 0;

    /// Outer corners of the chart, image pixels.
    virtual TrapezoidPoints GetGridPosition() = 0;
    virtual bool SetGridPosition(const TrapezoidPoints& outline) = 0;

    /// The 24 patches, image pixels.
    /// \return  their number
    virtual int GetColorPatchTrapezoids(QVector<TrapezoidPoints>& out) = 0;

    /// Colours of the image before calibration.
    virtual int GetInitialColorPatchValues(QVector<QColor>& out) = 0;

    /// Target colours as a screen shows them.
    virtual int GetTargetColorPatchValues(QVector<QColor>& out) = 0;

    /// Measures the patches.
    /// \param out        assigned where fresh colours can be had, else left alone
    /// \param grabImage  takes a new image also while the camera grabs continuously
    virtual int GetColorPatchValues(QVector<QColor>& out, bool grabImage) = 0;

    /// Colours behind the last calibration; taken from the last measurement when first asked for.
    virtual int GetCurrentColorPatchValues(QVector<QColor>& out) = 0;

    /// The image before calibration.
    /// \param image  receives a copy of its own, null if there is none
    virtual bool GetInitialCameraImage(QImage& image) = 0;

    /// Measures under neutral settings: the input of the calibration.
    virtual bool ApplyInitialColorPatchValues() = 0;

    /// Takes the image before calibration and its colours.
    virtual bool ApplyInitialCameraImageAndPatchValues() = 0;

    /// Computes the settings and writes them to the camera. A failure may leave some of them
    /// written. Emits CalibrationFinished.
    virtual bool ExecuteCalibrationAndApply() = 0;

    /// Exposure times in microseconds.
    virtual bool GetExposureTimeRange(double& min, double& value, double& max) = 0;
    virtual bool SetExposureTime(double value) = 0;
    /// \return  -1.0 on failure
    virtual double GetExposureTime() = 0;

    /// Gains in dB, or in raw steps divided by 100 where the camera has raw gain alone.
    virtual bool GetGainRange(double& min, double& value, double& max) = 0;
    virtual bool SetGain(double value) = 0;
    /// \return  -1.0 on failure
    virtual double GetGain() = 0;

    /// Computes the white balance from a new image and writes it.
    virtual bool ExecuteWhitebalance() = 0;

    /// Exposure time and gain as they were at StoreDetectedExposureAndGain.
    /// \return  false if nothing was stored
    virtual bool RestoreDetectedExposureAndGain() = 0;
    /// Ends a brightness run that is still under way.
    virtual bool StoreDetectedExposureAndGain() = 0;

    /// Signal: brightness of the gray patch in percent of its goal.
    virtual void Gray80PercentHitRateChanged(double value) = 0;
    /// Signal: exposure time in microseconds.
    virtual void ExposureTimeValueChanged(double value) = 0;
    /// Signal: gain in dB; raw steps times 100 where the camera has raw gain alone.
    virtual void GainValueChanged(double value) = 0;
    /// Signal: the outline of the grid was set.
    virtual void GridPositionChanged() = 0;
    /// Signal: the camera is calibrated.
    virtual void CalibrationFinished() = 0;
    /// Signal: a run of AutoAdjustGray80PercentPatch has ended, whether it reached its goal or not.
    virtual void AutoAdjustGray80PercentPatchFinished() = 0;
};

} // namespace ColorCalibration
