// SPDX-License-Identifier: Apache-2.0
// An emulated camera before the chart, and the wizard's order of calls on it.
#pragma once

#include "camerapool.h"
#include "colorcorrectionmodel.h"
#include "emulatedcamera.h"

#include <QEventLoop>
#include <QTemporaryDir>

class EmulatedCalibration
{
public:
    using FeatureNames = Cameras::Emulation::FeatureNames;

    explicit EmulatedCalibration(FeatureNames names, int width = 480, int height = 320)
        : m_camera(Cameras::Emulation::EmulatedCamera::create(colorModel(names, width, height),
                                                              options(m_folder.path())))
        , m_pool({m_camera})
    {
        m_pool.registerServices(m_registry);
        m_model.SetCameraStatusService(
            m_registry.find<Plugin::CameraPool::ICameraStatusService>().data());
        m_model.SetCameraControlService(
            m_registry.find<Plugin::CameraPool::ICameraControlService>().data());
    }

    ColorCalibration::ColorCorrectionModel& model() { return m_model; }
    const QSharedPointer<Cameras::Emulation::EmulatedCamera>& camera() const { return m_camera; }

    /// Opens the camera and lays the grid on the chart.
    bool open()
    {
        if (!m_model.Open(m_camera))
            return false;
        const auto& sensor = m_camera->model().sensor;
        const auto corners = m_camera->scene().chartCorners(sensor.width, sensor.height);
        const auto pixel = [](const Cameras::Emulation::SensorPoint& point) {
            return QPointF(point.x, point.y).toPoint();
        };
        return m_model.SetGridPosition({pixel(corners->upperLeft), pixel(corners->upperRight),
                                        pixel(corners->lowerLeft), pixel(corners->lowerRight)});
    }

    /// Everything up to the measurement under the calibrated settings.
    bool run()
    {
        return open() && takeFirstImage() && m_model.CreateSettingsBackup(false) &&
               m_model.CreateSettingsBackup(true) && m_model.SetNeutralSettings() &&
               m_model.ExecuteWhitebalance() && adjustBrightness() &&
               m_model.StoreDetectedExposureAndGain() && m_model.RestoreSettingsBackup(true) &&
               m_model.ApplyInitialCameraImageAndPatchValues() && m_model.SetNeutralSettings() &&
               m_model.RestoreDetectedExposureAndGain() && m_model.ApplyInitialColorPatchValues() &&
               m_model.ExecuteCalibrationAndApply() && measure().size() == 24;
    }

    /// The patches in a new image.
    QVector<QColor> measure()
    {
        QVector<QColor> colors;
        m_model.GetColorPatchValues(colors, true);
        return colors;
    }

private:
    /// It has 200 ms only, which is not enough for a large picture of a new scene.
    bool takeFirstImage()
    {
        QImage image;
        return m_model.GrabImage(image, true) || m_model.GrabImage(image, true);
    }

    bool adjustBrightness()
    {
        QEventLoop loop;
        QObject::connect(
            &m_model, &ColorCalibration::ColorCorrectionModel::AutoAdjustGray80PercentPatchFinished,
            &loop, &QEventLoop::quit, Qt::QueuedConnection);
        return m_model.AutoAdjustGray80PercentPatch() && loop.exec() == 0;
    }

    static Cameras::Emulation::CameraModel colorModel(FeatureNames names, int width, int height)
    {
        for (Cameras::Emulation::CameraModel model : Cameras::Emulation::everydayModels()) {
            if (model.names == names && !model.sensor.mono) {
                model.sensor.width = width;
                model.sensor.height = height;
                model.readoutTime = 100.0;
                return model;
            }
        }
        return {};
    }

    static Cameras::Emulation::EmulationOptions options(const QString& folder)
    {
        Cameras::Emulation::EmulationOptions options;
        options.settingsFolder = folder;
        return options;
    }

    QTemporaryDir m_folder;
    QSharedPointer<Cameras::Emulation::EmulatedCamera> m_camera;
    Core::Service::CServiceRegistry m_registry;
    Cameras::CameraPool m_pool;
    ColorCalibration::ColorCorrectionModel m_model;
};
