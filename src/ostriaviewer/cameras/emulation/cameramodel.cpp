// SPDX-License-Identifier: Apache-2.0
// The camera models that can be emulated.
#include "cameramodel.h"

namespace Cameras::Emulation {
namespace {

const QVersionNumber sfnc1(1, 5, 1);
const QVersionNumber sfnc2(2, 3, 0);

CameraModel model(const char* name, const char* serialNumber, FeatureNames names,
                  std::optional<int> pipelineVersion)
{
    CameraModel result;
    result.name = QString::fromLatin1(name);
    result.serialNumber = QString::fromLatin1(serialNumber);
    result.names = names;
    result.sfncVersion = names == FeatureNames::FirstGeneration ? sfnc1 : sfnc2;
    result.colorPipelineVersion = pipelineVersion;
    result.sensor.noiseSeed = result.serialNumber.toULongLong();
    return result;
}

} // namespace

QVector<CameraModel> everydayModels()
{
    CameraModel first = model("Emulation 1920-40c", "90010001", FeatureNames::FirstGeneration, 1);
    first.readoutTime = 25000.0;
    first.sensor.fullWell = 384000.0;
    first.sensor.conversionGain = 0.011;
    first.sensor.readNoise = 14.0;
    first.sensor.crosstalk = {0.73, 0.21, 0.06, 0.22, 0.62, 0.16, 0.05, 0.27, 0.68};

    const CameraModel second =
        model("emA1920-60ucEMU", "90010002", FeatureNames::SecondGeneration, 1);

    CameraModel maker =
        model("Emulated-60cVTX", "90010003", FeatureNames::SecondGenerationMaker, {});
    maker.sensor.crosstalk = {0.74, 0.20, 0.06, 0.16, 0.70, 0.14, 0.05, 0.20, 0.75};

    CameraModel mono = model("Emulation 1920-60m", "90010004", FeatureNames::SecondGeneration, {});
    mono.sensor.mono = true;
    return {first, second, maker, mono};
}

} // namespace Cameras::Emulation
