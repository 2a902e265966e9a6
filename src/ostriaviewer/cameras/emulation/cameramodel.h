// SPDX-License-Identifier: Apache-2.0
// The camera models that can be emulated.
#pragma once

#include "sensormodel.h"

#include <QString>
#include <QVector>
#include <QVersionNumber>

#include <optional>

namespace Cameras::Emulation {

/// Which names a model's features have.
enum class FeatureNames {
    FirstGeneration,      ///< SFNC 1.x: raw gain and black level, "Abs" values
    SecondGeneration,     ///< SFNC 2.x
    SecondGenerationMaker ///< SFNC 2.x, color features with the maker's prefix "Tvr"
};

/// What distinguishes a model. A plain value; reentrant.
struct CameraModel
{
    QString name;
    QString serialNumber; ///< unique among the models; names the file of the user sets
    FeatureNames names = FeatureNames::SecondGeneration;
    QVersionNumber sfncVersion;
    std::optional<int> colorPipelineVersion; ///< none: no such feature
    double readoutTime = 16667.0;            ///< microseconds, the shortest time between frames
    SensorModel sensor;

    /// Off for analysis: features keep every digit that is written, and colors leave with 16 bits.
    bool roundingEnabled = true;
};

/// The cameras that a user sees: color cameras of each kind of feature names, and a mono camera.
QVector<CameraModel> everydayModels();

} // namespace Cameras::Emulation
