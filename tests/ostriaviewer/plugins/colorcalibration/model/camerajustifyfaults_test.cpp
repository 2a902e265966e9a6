// SPDX-License-Identifier: Apache-2.0
// Tests of the camera adapter with cameras that lack or refuse something.
#include "baseexception.h"
#include "camerajustify.h"
#include "fullcamera.h"
#include "logrecorder.h"

#include <gtest/gtest.h>

#include <limits>

using ColorCalibration::CameraJustify;
using ColorCalibration::ColorAdjustment;
using ColorCalibration::ColorMatrix;

namespace {

using Operation = std::function<void(CameraJustify&)>;

void makeMissing(FakeCamera& camera, const QString& name)
{
    camera.features().remove(name);
}

void makeReadOnly(FakeCamera& camera, const QString& name)
{
    camera.features().change(name, [](FakeFeature& feature) { feature.writable = false; });
}

ColorAdjustment neutralAdjustment()
{
    ColorAdjustment adjustment;
    adjustment = 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1;
    return adjustment;
}

void writeIdentity(CameraJustify& justify)
{
    justify.WriteColorMatrix(dlib::identity_matrix<double>(3));
}

void writeNeutralAdjustment(CameraJustify& justify)
{
    justify.WriteColorAdjustment(neutralAdjustment());
}

struct Guard
{
    const char* feature;
    Operation operation;
    bool old;
};

/// Every write with a guard.
std::vector<Guard> guards()
{
    std::vector<Guard> all;
    for (const bool old : {true, false}) {
        for (const char* name : {"TvrHue", "TvrSaturation", "TvrBrightness", "TvrContrast"})
            all.push_back({name, &CameraJustify::SetHsbcNeutral, old});
        for (const char* name : {"BalanceWhiteAuto", "TonalRangeAuto", "TonalRangeEnable",
                                 "TvrContrastMode", "ExposureAuto", "GainAuto"})
            all.push_back({name, &CameraJustify::DisableAllAutoFunctions, old});
        for (const char* name : {"TestImageSelector", "TestPattern"})
            all.push_back({name, &CameraJustify::DisableTestImage, old});
        all.push_back({"DemosaicingMode", &CameraJustify::SetDemosaicingSimple, old});
        all.push_back({"PixelFormat", &CameraJustify::ActivateMonoPixelFormat, old});
    }
    all.push_back({"ColorAdjustmentEnable", &CameraJustify::SetColorAdjustmentNeutral, true});
    all.push_back({"ColorAdjustmentEnable", writeNeutralAdjustment, true});
    all.push_back({"ProcessedRawEnable", writeNeutralAdjustment, true});
    return all;
}

TEST(CameraJustifyGuards, SkipTheOneWriteAndNothingElse)
{
    for (const Guard& guard : guards()) {
        const auto makeCamera = [&] {
            return guard.old ? oldCamera() : newCamera();
        };
        const auto whole = makeCamera();
        CameraJustify wholeJustify(whole);
        guard.operation(wholeJustify);
        QStringList expected;
        for (const QString& write : whole->features().writes())
            if (!write.contains(QStringLiteral("%1 = ").arg(QLatin1String(guard.feature))))
                expected.append(write);
        ASSERT_LT(expected.size(), whole->features().writes().size()) << guard.feature;

        for (const auto& spoil : {makeMissing, makeReadOnly}) {
            const LogRecorder log;
            const auto camera = makeCamera();
            spoil(*camera, guard.feature);
            CameraJustify justify(camera);
            EXPECT_NO_THROW(guard.operation(justify)) << guard.feature;
            EXPECT_EQ(camera->features().writes(), expected) << guard.feature;
            EXPECT_TRUE(log.entries().isEmpty()) << guard.feature;
        }
    }
}

TEST(CameraJustifyGuards, ARefusalIsPassedOverWhereItIsOnlyTried)
{
    for (const char* name : {"BalanceWhiteAuto", "TonalRangeAuto", "TonalRangeEnable",
                             "TvrContrastMode", "ExposureAuto", "GainAuto"}) {
        const auto camera = newCamera();
        camera->features().change(name, [](FakeFeature& feature) { feature.refuses = true; });
        CameraJustify justify(camera);
        EXPECT_NO_THROW(justify.DisableAllAutoFunctions()) << name;
        EXPECT_EQ(camera->features().writes().size(), 5) << name;
    }
}

TEST(CameraJustifyGuards, ARefusalBehindAGuardRaises)
{
    for (const char* name : {"TestImageSelector", "TestPattern"}) {
        const auto camera = newCamera();
        camera->features().change(name, [](FakeFeature& feature) { feature.refuses = true; });
        CameraJustify justify(camera);
        EXPECT_THROW(justify.DisableTestImage(), GenICam::RuntimeException) << name;
    }
}

struct Need
{
    const char* feature;
    Operation operation;
    bool old;
};

/// Every write without a guard.
std::vector<Need> needs()
{
    const Operation whiteBalance = &CameraJustify::SetWhiteBalanceNeutral;
    const Operation gamma = &CameraJustify::SetGammaNeutral;
    const Operation srgb = [](CameraJustify& justify) {
        justify.WriteSrgbGamma(true);
    };
    const Operation black = &CameraJustify::SetBlackLevelNeutral;
    const Operation lut = &CameraJustify::DisableLut;
    return {{"BlackLevelSelector", black, true},
            {"BlackLevelSelector", black, false},
            {"BlackLevelRaw", black, true},
            {"BlackLevel", black, false},
            {"GammaSelector", gamma, true},
            {"Gamma", gamma, true},
            {"GammaEnable", gamma, true},
            {"Gamma", gamma, false},
            {"GammaSelector", srgb, true},
            {"GammaEnable", srgb, true},
            {"LightSourceSelector", writeIdentity, true},
            {"LUTSelector", lut, true},
            {"LUTEnable", lut, false},
            {"BalanceRatioSelector", whiteBalance, true},
            {"BalanceRatioAbs", whiteBalance, true},
            {"BalanceRatioSelector", whiteBalance, false},
            {"BalanceRatio", whiteBalance, false}};
}

TEST(CameraJustifyNeeds, RaiseWithoutTheParameter)
{
    for (const Need& need : needs())
        for (const auto& spoil : {makeMissing, makeReadOnly}) {
            const auto camera = need.old ? oldCamera() : newCamera();
            spoil(*camera, need.feature);
            CameraJustify justify(camera);
            EXPECT_THROW(need.operation(justify), GenICam::RuntimeException) << need.feature;
        }
}

TEST(CameraJustifyNeeds, WhatWasWrittenBeforeAFailureStays)
{
    const auto camera = oldCamera();
    camera->features().remove("GammaEnable");
    CameraJustify justify(camera);
    EXPECT_THROW(justify.WriteGamma(0.5, true), GenICam::RuntimeException);
    EXPECT_EQ(camera->features().writes(), (QStringList{"GammaSelector = User", "Gamma = 0.5"}));
}

TEST(CameraJustifyMatrix, IsSkippedOnAnOldCameraWithoutProcessedRaw)
{
    const auto camera = oldCamera();
    camera->features().remove("ProcessedRawEnable");
    CameraJustify justify(camera);
    justify.StoreInUserSet("UserSet1", true, false);
    camera->features().forget();
    writeIdentity(justify);
    EXPECT_EQ(camera->features().writes(),
              (QStringList{"UserSetSelector = UserSet1", "execute UserSetSave"}));
}

TEST(CameraJustifyMatrix, IsWrittenOnAnOldCameraWithAReadOnlyProcessedRaw)
{
    const auto camera = oldCamera();
    makeReadOnly(*camera, "ProcessedRawEnable");
    CameraJustify justify(camera);
    writeIdentity(justify);
    EXPECT_EQ(camera->features().writes().first(), "LightSourceSelector = Custom");
    EXPECT_EQ(camera->features().writes().size(), 19);
}

TEST(CameraJustifyMatrix, GoesOnWithoutAGainThatTheCameraRefuses)
{
    const auto camera = newCamera();
    makeMissing(*camera, "ColorTransformationValue");
    makeMissing(*camera, "ColorTransformationValueSelector");
    CameraJustify justify(camera);
    EXPECT_NO_THROW(writeIdentity(justify));
    EXPECT_EQ(camera->features().writes(), QStringList{"LightSourcePreset = Off"});
}

QStringList warningsOf(const LogRecorder& log)
{
    QStringList texts;
    for (const LogEntry& entry : log.entries()) {
        EXPECT_EQ(entry.level, 2);
        EXPECT_EQ(entry.category, "ostria.viewer.plugins.colorCalibration.cameraJustify");
        texts << entry.text;
    }
    return texts;
}

TEST(CameraJustifyMatrix, TellsOfAGainThatTheCameraRefuses)
{
    const LogRecorder log;
    const auto camera = newCamera();
    camera->features().change("ColorTransformationValue", [](FakeFeature& value) {
        value.value = 0.25;
        value.minimum = -1.0;
        value.maximum = 1.0;
    });
    ColorMatrix matrix = dlib::identity_matrix<double>(3);
    matrix(0, 1) = 1.5;
    CameraJustify justify(camera);
    justify.WriteColorMatrix(matrix);
    // One value stands for all nine here, so the one that was refused is still the first one.
    EXPECT_EQ(camera->features().writes().mid(1, 5),
              (QStringList{"try ColorTransformationValueSelector = Gain01",
                           "try ColorTransformationValueSelector = Gain02",
                           "try ColorTransformationValue = 0",
                           "try ColorTransformationValueSelector = Gain00",
                           "try ColorTransformationValue = 0.75"}));
    EXPECT_EQ(warningsOf(log),
              QStringList{
                  "The camera refuses Gain01 of the color matrix: it keeps 0.25 instead of 1.5."});
}

TEST(CameraJustifyMatrix, TellsNothingOfARefusedGainThatTheCameraHas)
{
    const LogRecorder log;
    const auto camera = newCamera();
    camera->features().change("ColorTransformationValue", [](FakeFeature& value) {
        value.value = 0.0;
        value.refuses = true;
    });
    CameraJustify justify(camera);
    writeIdentity(justify);
    EXPECT_EQ(
        warningsOf(log),
        (QStringList{"The camera refuses Gain00 of the color matrix: it keeps 0 instead of 1.",
                     "The camera refuses Gain11 of the color matrix: it keeps 0 instead of 1.",
                     "The camera refuses Gain22 of the color matrix: it keeps 0 instead of 1."}));
}

TEST(CameraJustifyMatrix, ClaimsNoValueThatItCannotRead)
{
    const LogRecorder log;
    const auto camera = newCamera();
    camera->features().change("ColorTransformationValue",
                              [](FakeFeature& value) { value.readable = false; });
    ColorMatrix matrix = dlib::zeros_matrix<double>(3, 3);
    matrix(0, 1) = 1.5;
    CameraJustify justify(camera);
    justify.WriteColorMatrix(matrix);
    EXPECT_EQ(warningsOf(log).value(0),
              "The camera does not tell Gain01 of the color matrix, which should be 1.5.");
}

TEST(CameraJustifyMatrix, TellsOfAGainThatTheCameraDoesNotKnow)
{
    const LogRecorder log;
    const auto camera = newCamera();
    camera->features().change("ColorTransformationValueSelector", [](FakeFeature& selector) {
        selector.entries = QStringList{"Gain00", "Gain01", "Gain02", "Gain10",
                                       "Gain11", "Gain20", "Gain21", "Gain22"};
    });
    CameraJustify justify(camera);
    writeIdentity(justify);
    EXPECT_EQ(warningsOf(log),
              QStringList{"The camera cannot select Gain12 of the color matrix; its value, 0, went "
                          "to the gain that was selected before, or is lost."});
}

TEST(CameraJustifyMatrix, RoundingIsNoRefusal)
{
    const LogRecorder log;
    const auto camera = newCamera();
    camera->features().change("ColorTransformationValue",
                              [](FakeFeature& value) { value.resolution = 1.0 / 64.0; });
    ColorMatrix matrix = dlib::identity_matrix<double>(3);
    matrix(1, 0) = 0.3;
    CameraJustify justify(camera);
    justify.WriteColorMatrix(matrix);
    EXPECT_EQ(warningsOf(log), QStringList());
}

/// Each group that asks for the version twice, with a camera whose answer changes in between.
TEST(CameraJustifyVersion, ThatChangesBetweenTwoQuestionsIsUnsupported)
{
    const std::vector<Operation> operations{
        [](CameraJustify& justify) { justify.SetBlackLevelNeutral(); },
        [](CameraJustify& justify) { justify.WriteGamma(1.0, true); },
        [](CameraJustify& justify) { writeIdentity(justify); },
        [](CameraJustify& justify) { justify.SetColorAdjustmentNeutral(); },
        [](CameraJustify& justify) { justify.WriteWhiteBalance(1.0, 1.0, 1.0); },
    };
    for (std::size_t i = 0; i < operations.size(); ++i) {
        const auto camera = newCamera();
        camera->parameters().nextVersions = {{2, 0, 0}, {1, 5, 1}};
        CameraJustify justify(camera);
        try {
            operations[i](justify);
            ADD_FAILURE() << i;
        } catch (const GenICam::RuntimeException& exception) {
            EXPECT_STREQ(exception.what(), "Camera SFNC version is unsupported.") << i;
        }
    }
}

TEST(CameraJustifyTestImage, ComesBackOnce)
{
    const auto camera = newCamera();
    camera->features().change("TestPattern", [](FakeFeature& one) { one.value = "Ramp"; });
    CameraJustify justify(camera);
    justify.DisableTestImage();
    camera->features().forget();
    justify.RestoreTestImage();
    justify.RestoreTestImage();
    EXPECT_EQ(camera->features().writes(), QStringList{"try TestPattern = Ramp"});
}

TEST(CameraJustifyTestImage, ThatCannotComeBackIsTold)
{
    const LogRecorder log;
    const auto camera = newCamera();
    camera->features().change("TestPattern", [](FakeFeature& one) { one.value = "Ramp"; });
    CameraJustify justify(camera);
    justify.DisableTestImage();
    camera->features().change("TestPattern", [](FakeFeature& one) { one.refuses = true; });
    justify.RestoreTestImage();
    EXPECT_EQ(warningsOf(log), QStringList{"The camera's test image stays off: TestPattern cannot "
                                           "be set to \"Ramp\" again."});
}

TEST(CameraJustifyMatrix, RaisesWhereThePresetExistsAndRefuses)
{
    const auto camera = newCamera();
    makeReadOnly(*camera, "LightSourcePreset");
    CameraJustify justify(camera);
    EXPECT_THROW(writeIdentity(justify), GenICam::RuntimeException);
    EXPECT_TRUE(camera->features().writes().isEmpty());
}

void expectEntry(const LogRecorder& log, const char* text)
{
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_EQ(log.entries().first().level, 0);
    EXPECT_EQ(log.entries().first().category,
              "ostria.viewer.plugins.colorCalibration.cameraJustify");
    EXPECT_EQ(log.entries().first().text, text);
}

TEST(CameraJustifyMatrix, NeutralLogsAMissingPresetAndGoesOn)
{
    const LogRecorder log;
    const auto camera = newCamera();
    camera->features().remove("LightSourcePreset");
    CameraJustify justify(camera);
    EXPECT_NO_THROW(justify.SetColorTransformationNeutral());
    EXPECT_EQ(camera->features().writes().size(), 18);
    expectEntry(log, "Couldn't get or write (Tvr)LightSourcePreset");
}

TEST(CameraJustifyMatrix, NeutralOnAnOldCameraKnowsNoPreset)
{
    const LogRecorder log;
    const auto camera = oldCamera();
    CameraJustify(camera).SetColorTransformationNeutral();
    EXPECT_TRUE(log.entries().isEmpty());
}

TEST(CameraJustifyAdjustment, LogsWhatItCouldNotWriteAndStoresAllTheSame)
{
    for (const char* name :
         {"ColorAdjustmentHue", "ColorAdjustmentSaturation", "ColorAdjustmentSelector"})
        for (const auto& spoil : {makeMissing, makeReadOnly}) {
            const auto camera = newCamera();
            spoil(*camera, name);
            CameraJustify justify(camera);
            justify.StoreInUserSet("UserSet1", true, false);
            justify.WriteSrgbGamma(false); // stores again, which is told once
            camera->features().forget();
            const LogRecorder log;
            EXPECT_NO_THROW(writeNeutralAdjustment(justify));
            EXPECT_EQ(camera->features().writes(),
                      (QStringList{"UserSetSelector = UserSet1", "execute UserSetSave"}));
            expectEntry(log, "Couldn't get or write one of the following parameters: "
                             "(Tvr)ColorAdjustmentSelector, (Tvr)ColorAdjustmentSaturation, "
                             "(Tvr)ColorAdjustmentSelector");
        }
}

TEST(CameraJustifyAdjustment, TakesTheMakersNamesWhereTheOthersAreMissing)
{
    const auto camera = newCamera();
    for (const char* name :
         {"ColorAdjustmentHue", "ColorAdjustmentSaturation", "ColorAdjustmentSelector"})
        camera->features().remove(name);
    camera->parameters().addFloat("TvrColorAdjustmentHue", 1.0);
    camera->parameters().addFloat("TvrColorAdjustmentSaturation", 2.0);
    camera->parameters().addEnumeration("TvrColorAdjustmentSelector");
    CameraJustify justify(camera);
    writeNeutralAdjustment(justify);
    EXPECT_EQ(camera->features().writes().mid(0, 3),
              (QStringList{"TvrColorAdjustmentSelector = Red", "TvrColorAdjustmentHue = 0",
                           "TvrColorAdjustmentSaturation = 1"}));
    EXPECT_EQ(camera->features().writes().size(), 18);
}

QString messageOf(const std::function<void()>& write)
{
    try {
        write();
    } catch (const Core::Exception::BaseException& exception) {
        return exception.getMessage();
    }
    return {};
}

QString noUsable(const QString& feature)
{
    return QStringLiteral("The measured colors give no usable %1, so the camera's was kept. Check "
                          "that the grid lies on the chart and that the chart is lit, then "
                          "calibrate again.")
        .arg(feature);
}

TEST(CameraJustifyNumbers, ThatAreNotFiniteReachNoCameraAndAreTold)
{
    for (const double bad :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity()}) {
        const auto camera = newCamera();
        CameraJustify justify(camera);
        ColorMatrix matrix = dlib::identity_matrix<double>(3);
        matrix(2, 1) = bad;
        ColorAdjustment hues = neutralAdjustment();
        hues(5) = bad;
        ColorAdjustment saturations = neutralAdjustment();
        saturations(11) = bad;
        EXPECT_EQ(messageOf([&] { justify.WriteColorMatrix(matrix); }),
                  noUsable("ColorTransformationValue"));
        EXPECT_EQ(messageOf([&] { justify.WriteColorAdjustment(hues); }),
                  noUsable("ColorAdjustmentHue"));
        EXPECT_EQ(messageOf([&] { justify.WriteColorAdjustment(saturations); }),
                  noUsable("ColorAdjustmentSaturation"));
        EXPECT_EQ(messageOf([&] { justify.WriteWhiteBalance(1.0, bad, 1.0); }),
                  noUsable("BalanceRatio"));
        EXPECT_EQ(messageOf([&] { justify.WriteGamma(bad, true); }), noUsable("Gamma"));
        EXPECT_TRUE(camera->features().writes().isEmpty());
    }
}

TEST(CameraJustifyClosed, RaisesInEveryOperation)
{
    const auto camera = newCamera();
    camera->withParameters = false;
    CameraJustify justify(camera);
    const std::vector<Operation> operations{
        &CameraJustify::SetBlackLevelNeutral,
        &CameraJustify::SetGammaNeutral,
        &CameraJustify::SetColorTransformationNeutral,
        &CameraJustify::SetHsbcNeutral,
        &CameraJustify::DisableLut,
        &CameraJustify::SetColorAdjustmentNeutral,
        &CameraJustify::SetWhiteBalanceNeutral,
        &CameraJustify::SetDemosaicingSimple,
        &CameraJustify::DisableAllAutoFunctions,
        &CameraJustify::DisableExposureAndGainAuto,
        &CameraJustify::DisableTestImage,
        &CameraJustify::ActivateMonoPixelFormat,
        [](CameraJustify& closed) { closed.WriteSrgbGamma(true); },
        [](CameraJustify& closed) { closed.StartAutoBrightness(nullptr); },
        [](CameraJustify& closed) { closed.CreateBackup(true); },
        [](CameraJustify& closed) { closed.StoreInUserSet("UserSet1", true, true); },
        writeIdentity,
        writeNeutralAdjustment};
    for (const Operation& operation : operations)
        EXPECT_THROW(operation(justify), Core::Exception::BaseException);
}

} // namespace
