// SPDX-License-Identifier: Apache-2.0
// Which cameras can be calibrated.
#include "camerasupport.h"

#include "reportfailure.h"

#include <QRegularExpression>

#include <utility>

namespace ColorCalibration {

using Core::CameraPoolComponents::CameraInfoPtr;
using Plugin::ParameterCollectionPool::IParameterService;

namespace {

constexpr qint64 knownPipelineVersion = 1;

bool isCandidate(const QString& modelName)
{
    static const QRegularExpression series(QStringLiteral(
        "([a-z0-9]){2}([AL]){1}([0-9]){1,4}([-]){1}([0-9])+([cgu]){1}([c]){1}([A-Z])+"));
    return series.match(modelName).hasMatch() || modelName.contains(QLatin1String("Emulation"));
}

/// Throws what the camera's feature throws.
bool canBeCalibrated(const CameraInfoPtr& camera, IParameterService* parameters)
{
    if (!camera)
        return false;
    const QString modelName = camera->modelName();
    if (modelName.contains(QLatin1String("cVTX")))
        return true;
    if (!isCandidate(modelName) || !parameters)
        return false;
    const auto collection = parameters->parameterCollection(camera);
    if (!collection)
        return false;
    const auto version = collection->integerParameter(QStringLiteral("DeviceColorPipelineVersion"));
    return version && !version->isEmpty() && version->isAvailable() &&
           version->value() == knownPipelineVersion;
}

} // namespace

bool isCameraSupported(const CameraInfoPtr& camera, IParameterService* parameters)
{
    return CameraSupport().isSupported(camera, parameters);
}

bool CameraSupport::isSupported(const CameraInfoPtr& camera, IParameterService* parameters)
{
    if (m_camera != camera) {
        m_camera = camera;
        m_isTold = false;
    }
    try {
        return canBeCalibrated(camera, parameters);
    } catch (...) {
        if (!std::exchange(m_isTold, true))
            reportFailure({}, QStringLiteral("isCameraSupported: %1").arg(camera->displayName()),
                          modelLogCategory());
        return false;
    }
}

} // namespace ColorCalibration
