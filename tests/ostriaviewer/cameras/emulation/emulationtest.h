// SPDX-License-Identifier: Apache-2.0
// What tests of emulated cameras share: cameras with a settings folder of the test's own.
#pragma once

#include "cameramodel.h"
#include "emulatedcamera.h"
#include "iparametercollection.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Cameras::Emulation {

inline CameraModel modelWith(FeatureNames names)
{
    for (const CameraModel& model : everydayModels())
        if (model.names == names && !model.sensor.mono)
            return model;
    return {};
}

/// A model whose frames are made in no time.
inline CameraModel smallModel(FeatureNames names = FeatureNames::SecondGeneration)
{
    CameraModel model = modelWith(names);
    model.sensor.width = 96;
    model.sensor.height = 64;
    model.readoutTime = 100.0;
    return model;
}

class EmulationTest : public testing::Test
{
protected:
    QSharedPointer<EmulatedCamera> makeCamera(const CameraModel& model,
                                              const QStringList& missingFeatures = {}) const
    {
        EmulationOptions options;
        options.settingsFolder = m_folder.path();
        options.missingFeatures = missingFeatures;
        return EmulatedCamera::create(model, options);
    }

    QSharedPointer<EmulatedCamera> openCamera(const CameraModel& model,
                                              const QStringList& missingFeatures = {}) const
    {
        const auto camera = makeCamera(model, missingFeatures);
        EXPECT_TRUE(camera->open()) << camera->lastErrorText().toStdString();
        return camera;
    }

    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

} // namespace Cameras::Emulation
