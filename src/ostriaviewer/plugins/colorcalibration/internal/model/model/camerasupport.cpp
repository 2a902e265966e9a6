// SPDX-License-Identifier: Apache-2.0
// Which cameras can be calibrated.
#include "camerasupport.h"

#include "guarded.h"

#include <QRegularExpression>

namespace ColorCalibration {
namespace {

constexpr qint64 knownPipelineVersion = 1;

bool isCandidate(const QString& modelName)
{
    static const QRegularExpression series(QStringLiteral(
        "([a-z0-9]){2}([AL]){1}([0-9]){1,4}([-]){1}([0-9])+([cgu]){1}([c]){1}([A-Z])+"));
    return series.match(modelName).hasMatch() || modelName.contains(QLatin1String("Emulation"));
}

} // namespace

bool isCameraSupported(const Core::CameraPoolComponents::CameraInfoPtr& camera,
                       Plugin::ParameterCollectionPool::IParameterService* parameters)
{
    if (!camera)
        return false;
    const QString modelName = camera->modelName();
    if (modelName.contains(QLatin1String("cVTX")))
        return true;
    if (!isCandidate(modelName) || !parameters)
        return false;
    return guarded("", "isCameraSupported", false, [&] {
        const auto collection = parameters->parameterCollection(camera);
        if (!collection)
            return false;
        const auto version =
            collection->integerParameter(QStringLiteral("DeviceColorPipelineVersion"));
        return version && !version->isEmpty() && version->isAvailable() &&
               version->value() == knownPipelineVersion;
    });
}

} // namespace ColorCalibration
