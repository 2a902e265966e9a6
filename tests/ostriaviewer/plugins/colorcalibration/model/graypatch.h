// SPDX-License-Identifier: Apache-2.0
// A calibration whose gray patch follows exposure time and gain.
#pragma once

#include "calibrationinterface.h"

#include <QMutex>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>

/// Records what the brightness worker asks for. The patch's level is proportional to exposure time
/// and to 10^(gain / 20), up to 255.
class GrayPatch : public ColorCalibration::CalibrationInterface
{
public:
    double exposure = 1000.0;
    double gain = 3.0;
    double gainMinimum = 0.0;
    double levelPerMicrosecond = 0.1;
    int colorCount = 24;
    int passes = 0;
    std::function<void()> onMeasure;

    /// Whether the camera takes what is written, and tells its exposure time.
    std::function<bool(double)> takesGain = [](double) {
        return true;
    };
    std::function<bool(double)> takesExposure = [](double) {
        return true;
    };
    bool tellsExposure = true;

    /// Levels below 0 are simulated ones; any other is what is measured always.
    double fixedLevel = -1.0;

    QStringList calls;

    /// As at the beginning, with a patch that is always as bright.
    void restartWith(double level)
    {
        exposure = 1000.0;
        gain = 3.0;
        passes = 0;
        fixedLevel = level;
        takesGain = takesExposure = [](double) {
            return true;
        };
        calls.clear();
    }

    int GetColorPatchValues(QVector<QColor>& out, bool grabImage) override
    {
        calls << QStringLiteral("measure %1").arg(grabImage);
        ++passes;
        if (onMeasure)
            onMeasure();
        const double level =
            fixedLevel >= 0.0
                ? fixedLevel
                : std::min(255.0, exposure * levelPerMicrosecond * std::pow(10.0, gain / 20.0));
        out = QVector<QColor>(colorCount, QColor(0, 0, 0));
        if (colorCount > 19)
            out[19] = QColor(static_cast<int>(level) / 2, static_cast<int>(level), 0);
        return out.size();
    }
    bool GetGainRange(double& min, double& value, double& max) override
    {
        min = gainMinimum;
        value = gain;
        max = 24.0;
        return true;
    }
    bool SetGain(double value) override
    {
        calls << QStringLiteral("gain %1").arg(value);
        if (!takesGain(value))
            return false;
        gain = value;
        return true;
    }
    bool GetExposureTimeRange(double& min, double& value, double& max) override
    {
        if (!tellsExposure)
            return false;
        min = 10.0;
        value = exposure;
        max = 1e6;
        return true;
    }
    bool SetExposureTime(double value) override
    {
        calls << QStringLiteral("exposure %1").arg(value);
        if (!takesExposure(value))
            return false;
        exposure = value;
        return true;
    }

    bool AutoAdjustGray80PercentPatch() override { return unexpected(); }
    ColorCalibration::TrapezoidPoints GetGridPosition() override { return {}; }
    bool SetGridPosition(const ColorCalibration::TrapezoidPoints&) override { return unexpected(); }
    int GetColorPatchTrapezoids(QVector<ColorCalibration::TrapezoidPoints>&) override
    {
        return unexpected();
    }
    int GetInitialColorPatchValues(QVector<QColor>&) override { return unexpected(); }
    int GetTargetColorPatchValues(QVector<QColor>&) override { return unexpected(); }
    int GetCurrentColorPatchValues(QVector<QColor>&) override { return unexpected(); }
    bool GetInitialCameraImage(QImage&) override { return unexpected(); }
    bool ApplyInitialColorPatchValues() override { return unexpected(); }
    bool ApplyInitialCameraImageAndPatchValues() override { return unexpected(); }
    bool ExecuteCalibrationAndApply() override { return unexpected(); }
    double GetExposureTime() override { return exposure; }
    double GetGain() override { return gain; }
    bool ExecuteWhitebalance() override { return unexpected(); }
    bool RestoreDetectedExposureAndGain() override { return unexpected(); }
    bool StoreDetectedExposureAndGain() override { return unexpected(); }
    void Gray80PercentHitRateChanged(double) override {}
    void ExposureTimeValueChanged(double) override {}
    void GainValueChanged(double) override {}
    void GridPositionChanged() override {}
    void CalibrationFinished() override {}
    void AutoAdjustGray80PercentPatchFinished() override {}

private:
    bool unexpected()
    {
        calls << QStringLiteral("unexpected call");
        return false;
    }
};
