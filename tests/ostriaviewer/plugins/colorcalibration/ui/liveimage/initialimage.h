// SPDX-License-Identifier: Apache-2.0
// A calibration that has an image from before it, and nothing else.
#pragma once

#include "calibrationinterface.h"

class InitialImage : public ColorCalibration::CalibrationInterface
{
public:
    QImage initialImage;

    bool GetInitialCameraImage(QImage& image) override
    {
        image = initialImage.copy();
        return !image.isNull();
    }

    bool AutoAdjustGray80PercentPatch() override { return false; }
    ColorCalibration::TrapezoidPoints GetGridPosition() override { return {}; }
    bool SetGridPosition(const ColorCalibration::TrapezoidPoints& /*outline*/) override
    {
        return true;
    }
    int GetColorPatchTrapezoids(QVector<ColorCalibration::TrapezoidPoints>& /*out*/) override
    {
        return 0;
    }
    int GetInitialColorPatchValues(QVector<QColor>& /*out*/) override { return 0; }
    int GetTargetColorPatchValues(QVector<QColor>& /*out*/) override { return 0; }
    int GetColorPatchValues(QVector<QColor>& /*out*/, bool /*grabImage*/) override { return 0; }
    int GetCurrentColorPatchValues(QVector<QColor>& /*out*/) override { return 0; }
    bool ApplyInitialColorPatchValues() override { return false; }
    bool ApplyInitialCameraImageAndPatchValues() override { return false; }
    bool ExecuteCalibrationAndApply() override { return false; }
    bool GetExposureTimeRange(double& /*min*/, double& /*value*/, double& /*max*/) override
    {
        return false;
    }
    bool SetExposureTime(double /*value*/) override { return false; }
    double GetExposureTime() override { return -1.0; }
    bool GetGainRange(double& /*min*/, double& /*value*/, double& /*max*/) override
    {
        return false;
    }
    bool SetGain(double /*value*/) override { return false; }
    double GetGain() override { return -1.0; }
    bool ExecuteWhitebalance() override { return false; }
    bool RestoreDetectedExposureAndGain() override { return false; }
    bool StoreDetectedExposureAndGain() override { return false; }
    void Gray80PercentHitRateChanged(double /*value*/) override {}
    void ExposureTimeValueChanged(double /*value*/) override {}
    void GainValueChanged(double /*value*/) override {}
    void GridPositionChanged() override {}
    void CalibrationFinished() override {}
    void AutoAdjustGray80PercentPatchFinished() override {}
};
