// SPDX-License-Identifier: Apache-2.0
// A model that writes down what it is asked for and answers what a test wants.
#pragma once

#include "colorcorrectionmodel.h"

#include <QMutex>
#include <QMutexLocker>
#include <QSet>
#include <QStringList>

#include <functional>
#include <utility>

class RecordingModel : public ColorCalibration::ColorCorrectionModel
{
public:
    using Trapezoid = ColorCalibration::TrapezoidPoints;

    QSet<QString> refused; ///< operations that answer with their failure value
    bool isBackupOwed = false;
    QString uncertainUserSet;
    Trapezoid outline;
    QVector<Trapezoid> patches;
    QVector<QColor> colors;
    QVector<QColor> initialColors;
    QVector<QColor> targetColors;
    QImage image;
    QJsonObject results;
    QJsonObject userSets;
    double minimum = 10.0;
    double current = 100.0;
    double maximum = 1000.0;
    std::function<void()> onGrab; ///< on the thread that grabs

    QStringList calls() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_calls;
    }
    QStringList takeCalls()
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(m_calls, {});
    }

    bool Open(const Core::CameraPoolComponents::CameraPtr&) override { return note("Open"); }
    bool Close() override { return note("Close"); }
    bool GrabImage(QImage& out, bool triggered) override
    {
        if (onGrab)
            onGrab();
        out = image;
        return note("GrabImage", triggered);
    }
    bool StopGrabbing() override { return note("StopGrabbing"); }
    bool LoadSettings(const QString& settings) override { return note("LoadSettings", settings); }
    bool SetNeutralSettings() override { return note("SetNeutralSettings"); }
    bool CreateSettingsBackup(bool initial) override
    {
        return note("CreateSettingsBackup", initial);
    }
    bool RestoreSettingsBackup(bool initial) override
    {
        return note("RestoreSettingsBackup", initial);
    }
    bool IsBackupOwed() const override { return isBackupOwed; }
    bool AreOwnSettings(const QString&) override { return !refused.contains("AreOwnSettings"); }
    void ActivateMonoImage() override { note("ActivateMonoImage"); }
    bool AutoAdjustGray80PercentPatch() override { return note("AutoAdjustGray80PercentPatch"); }
    Trapezoid GetGridPosition() override { return outline; }
    bool SetGridPosition(const Trapezoid& position) override
    {
        outline = position;
        return note("SetGridPosition");
    }
    int GetColorPatchTrapezoids(QVector<Trapezoid>& out) override
    {
        note("GetColorPatchTrapezoids");
        out += patches;
        return out.size();
    }
    int GetInitialColorPatchValues(QVector<QColor>& out) override
    {
        return hand(initialColors, out, note("GetInitialColorPatchValues"));
    }
    int GetTargetColorPatchValues(QVector<QColor>& out) override
    {
        return hand(targetColors, out, note("GetTargetColorPatchValues"));
    }
    int GetColorPatchValues(QVector<QColor>& out, bool grabImage) override
    {
        return hand(colors, out, note("GetColorPatchValues", grabImage));
    }
    bool GetInitialCameraImage(QImage& out) override
    {
        out = image;
        return note("GetInitialCameraImage");
    }
    bool ApplyInitialColorPatchValues() override { return note("ApplyInitialColorPatchValues"); }
    bool ApplyInitialCameraImageAndPatchValues() override
    {
        return note("ApplyInitialCameraImageAndPatchValues");
    }
    bool ExecuteCalibrationAndApply() override
    {
        const bool done = note("ExecuteCalibrationAndApply");
        if (done)
            emit CalibrationFinished();
        return done;
    }
    bool GetExposureTimeRange(double& min, double& value, double& max) override
    {
        return range("GetExposureTimeRange", min, value, max);
    }
    bool SetExposureTime(double value) override { return note("SetExposureTime", value); }
    bool GetGainRange(double& min, double& value, double& max) override
    {
        return range("GetGainRange", min, value, max);
    }
    bool SetGain(double value) override { return note("SetGain", value); }
    bool ExecuteWhitebalance() override { return note("ExecuteWhitebalance"); }
    bool RestoreDetectedExposureAndGain() override
    {
        return note("RestoreDetectedExposureAndGain");
    }
    bool StoreDetectedExposureAndGain() override { return note("StoreDetectedExposureAndGain"); }
    QJsonObject GetCalibrationResultsJson() override
    {
        note("GetCalibrationResultsJson");
        return results;
    }
    QJsonObject GetAvailableUserSetsJson() override
    {
        note("GetAvailableUserSetsJson");
        return userSets;
    }
    bool StoreSettingsInUserSet(const QString& name, bool setAsDefault) override
    {
        return note("StoreSettingsInUserSet",
                    name + QString::fromLatin1(setAsDefault ? " true" : " false"));
    }
    QString UncertainUserSet() const override { return uncertainUserSet; }
    bool SaveSettingsToFile(const QString& folder) override
    {
        return note("SaveSettingsToFile", folder);
    }
    bool SaveSummaryToFile(const QString& folder) override
    {
        return note("SaveSummaryToFile", folder);
    }

private:
    bool note(const char* name, const QString& argument = {})
    {
        const QString operation = QString::fromLatin1(name);
        const QMutexLocker lock(&m_mutex);
        m_calls.append(argument.isNull() ? operation : operation + QLatin1Char(' ') + argument);
        return !refused.contains(operation);
    }
    bool note(const char* name, bool argument)
    {
        return note(name, QString::fromLatin1(argument ? "true" : "false"));
    }
    bool note(const char* name, double argument)
    {
        return note(name, QString::number(argument, 'g', 10));
    }
    bool range(const char* name, double& min, double& value, double& max)
    {
        min = minimum;
        value = current;
        max = maximum;
        return note(name);
    }
    static int hand(const QVector<QColor>& list, QVector<QColor>& out, bool accepted)
    {
        if (!accepted)
            return 0;
        out += list;
        return out.size();
    }

    mutable QMutex m_mutex;
    QStringList m_calls;
};
