// SPDX-License-Identifier: Apache-2.0
// One emulated camera with a host around it, for tests that calibrate it.
#pragma once

#include "camerapool.h"
#include "colorcorrectionmodel.h"
#include "emulatedcamera.h"
#include "iparameterservice.h"

#include <QTemporaryDir>

#include <memory>

/// The camera is closed; what it and the model store goes to folders of the test's own.
class EmulatedHost
{
public:
    using CameraModel = Cameras::Emulation::CameraModel;
    using EmulatedCamera = Cameras::Emulation::EmulatedCamera;

    explicit EmulatedHost(const CameraModel& model,
                          Cameras::Emulation::EmulationOptions options = {})
    {
        options.settingsFolder = m_folder.path();
        m_camera = EmulatedCamera::create(model, options);
        m_pool = std::make_unique<Cameras::CameraPool>(QList<Cameras::HostCameraPtr>{m_camera});
        m_pool->registerServices(m_registry);
        m_model.SetCameraStatusService(
            m_registry.find<Plugin::CameraPool::ICameraStatusService>().data());
        m_model.SetCameraControlService(
            m_registry.find<Plugin::CameraPool::ICameraControlService>().data());
    }
    ~EmulatedHost() { m_model.Close(); }
    EmulatedHost(const EmulatedHost&) = delete;
    EmulatedHost& operator=(const EmulatedHost&) = delete;

    EmulatedCamera& camera() { return *m_camera; }
    QSharedPointer<EmulatedCamera> pointer() const { return m_camera; }
    ColorCalibration::ColorCorrectionModel& model() { return m_model; }

    Plugin::ParameterCollectionPool::IParameterService* parameterService() const
    {
        return m_registry.find<Plugin::ParameterCollectionPool::IParameterService>().data();
    }

    bool isOldGeneration() const
    {
        return m_camera->model().names == Cameras::Emulation::FeatureNames::FirstGeneration;
    }

    /// The camera must be open.
    void setExposure(double microseconds)
    {
        m_camera->parameterCollection()
            ->floatParameter(QStringLiteral("ExposureTimeAbs|ExposureTime"))
            ->setValue(microseconds);
    }

    /// All settings, without the head that carries the time. The camera must be open.
    QString settings() const
    {
        QString text;
        m_camera->parameterCollection()->saveFeatures(text, QStringLiteral("@CameraDevice"));
        return text.section(QLatin1Char('\n'), 4);
    }

    /// Where the chart of the camera's scene lies, exactly.
    ColorCalibration::TrapezoidPoints chartGrid() const
    {
        const auto& sensor = m_camera->model().sensor;
        const auto corners = m_camera->scene().chartCorners(sensor.width, sensor.height);
        const auto point = [](const Cameras::Emulation::SensorPoint& corner) {
            return QPoint(qRound(corner.x), qRound(corner.y));
        };
        return {point(corners->upperLeft), point(corners->upperRight), point(corners->lowerLeft),
                point(corners->lowerRight)};
    }

private:
    QTemporaryDir m_folder;
    QSharedPointer<EmulatedCamera> m_camera;
    Core::Service::CServiceRegistry m_registry;
    std::unique_ptr<Cameras::CameraPool> m_pool;
    ColorCalibration::ColorCorrectionModel m_model;
};

/// The color cameras of everydayModels.
inline QVector<Cameras::Emulation::CameraModel> supportedModels()
{
    QVector<Cameras::Emulation::CameraModel> models;
    for (const auto& model : Cameras::Emulation::everydayModels())
        if (!model.sensor.mono)
            models.append(model);
    return models;
}

/// The same camera with so few pixels that its frames take next to no time.
inline Cameras::Emulation::CameraModel reduced(Cameras::Emulation::CameraModel model)
{
    model.sensor.width = 480;
    model.sensor.height = 300;
    model.readoutTime = 1000.0;
    return model;
}
