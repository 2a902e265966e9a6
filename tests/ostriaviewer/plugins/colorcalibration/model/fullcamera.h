// SPDX-License-Identifier: Apache-2.0
// Fake cameras with every feature that the calibration writes.
#pragma once

#include "fakecamera.h"

/// What both generations have.
inline void addCommonFeatures(FakeParameterCollection& parameters)
{
    for (const char* name :
         {"BlackLevelSelector", "BalanceRatioSelector", "ColorTransformationValueSelector",
          "ColorAdjustmentSelector", "LUTSelector", "DemosaicingMode", "BalanceWhiteAuto",
          "TonalRangeAuto", "TonalRangeEnable", "TvrContrastMode", "ExposureAuto", "GainAuto",
          "TestImageSelector", "TestPattern", "UserSetSelector", "UserSetDefault"})
        parameters.addEnumeration(QLatin1String(name));
    parameters.addEnumeration(
        QStringLiteral("PixelFormat"),
        {QStringLiteral("BayerRG8"), QStringLiteral("Mono8"), QStringLiteral("Mono12")});
    for (const char* name :
         {"Gamma", "ColorTransformationValue", "ColorAdjustmentHue", "ColorAdjustmentSaturation",
          "TvrHue", "TvrSaturation", "TvrBrightness", "TvrContrast"})
        parameters.addFloat(QLatin1String(name), 0.25);
    parameters.addBoolean(QStringLiteral("LUTEnable"), true);
    parameters.addCommand(QStringLiteral("UserSetSave"));
    parameters.addInteger(QStringLiteral("Width"), 120);
    parameters.addInteger(QStringLiteral("Height"), 80);
}

inline QSharedPointer<FakeCamera> oldCamera(const QVersionNumber& version = {1, 5, 1})
{
    auto camera = QSharedPointer<FakeCamera>::create(version);
    FakeParameterCollection& parameters = camera->parameters();
    addCommonFeatures(parameters);
    parameters.addInteger(QStringLiteral("BlackLevelRaw"), 7);
    parameters.addInteger(QStringLiteral("GainRaw"), 300, 100, 2400);
    parameters.addFloat(QStringLiteral("ExposureTimeAbs"), 1000.0, 10.0, 100000.0);
    parameters.addFloat(QStringLiteral("BalanceRatioAbs"), 1.5);
    parameters.addEnumeration(QStringLiteral("GammaSelector"));
    parameters.addEnumeration(QStringLiteral("LightSourceSelector"));
    parameters.addBoolean(QStringLiteral("GammaEnable"), true);
    parameters.addBoolean(QStringLiteral("ProcessedRawEnable"), false);
    parameters.addBoolean(QStringLiteral("ColorAdjustmentEnable"), true);
    parameters.addInteger(QStringLiteral("AutoGainRawLowerLimit"), 1);
    parameters.addInteger(QStringLiteral("AutoGainRawUpperLimit"), 24);
    parameters.addFloat(QStringLiteral("AutoExposureTimeAbsLowerLimit"), 10.0);
    parameters.addFloat(QStringLiteral("AutoExposureTimeAbsUpperLimit"), 100000.0);
    return camera;
}

inline QSharedPointer<FakeCamera> newCamera(const QVersionNumber& version = {2, 0, 0})
{
    auto camera = QSharedPointer<FakeCamera>::create(version);
    FakeParameterCollection& parameters = camera->parameters();
    addCommonFeatures(parameters);
    parameters.addFloat(QStringLiteral("BlackLevel"), 2.0);
    parameters.addFloat(QStringLiteral("Gain"), 3.0, 0.0, 24.0);
    parameters.addFloat(QStringLiteral("ExposureTime"), 1000.0, 10.0, 100000.0);
    parameters.addFloat(QStringLiteral("BalanceRatio"), 1.5);
    parameters.addEnumeration(QStringLiteral("LightSourcePreset"));
    parameters.addFloat(QStringLiteral("AutoGainLowerLimit"), 0.0);
    parameters.addFloat(QStringLiteral("AutoGainUpperLimit"), 24.0);
    parameters.addFloat(QStringLiteral("AutoExposureTimeLowerLimit"), 10.0);
    parameters.addFloat(QStringLiteral("AutoExposureTimeUpperLimit"), 100000.0);
    return camera;
}
