// SPDX-License-Identifier: Apache-2.0
// Tests of what the camera adapter writes, in which order, under which names.
#include "camerajustify.h"

#include "fullcamera.h"
#include "logrecorder.h"

#include <gtest/gtest.h>

using ColorCalibration::CameraJustify;
using ColorCalibration::ColorAdjustment;
using ColorCalibration::ColorMatrix;

namespace {

using Operation = std::function<void(CameraJustify&)>;

QStringList writesOf(const QSharedPointer<FakeCamera>& camera, const Operation& operation)
{
    CameraJustify justify(camera);
    camera->features().forget();
    operation(justify);
    return camera->features().writes();
}

/// As a test's message shows it best.
std::string text(const QStringList& lines)
{
    return lines.join(QLatin1Char('\n')).toStdString();
}

void expectWrites(const QSharedPointer<FakeCamera>& camera, const Operation& operation,
                  const QStringList& expected)
{
    EXPECT_EQ(text(writesOf(camera, operation)), text(expected));
}

ColorMatrix someMatrix()
{
    ColorMatrix matrix;
    matrix = 9.0, -0.25, 0.5, 0.125, 9.0, -0.5, 0.75, 0.5, 9.0;
    return matrix;
}

const QStringList matrixGains{
    "try ColorTransformationValueSelector = Gain01", "try ColorTransformationValue = -0.25",
    "try ColorTransformationValueSelector = Gain02", "try ColorTransformationValue = 0.5",
    "try ColorTransformationValueSelector = Gain00", "try ColorTransformationValue = 0.75",
    "try ColorTransformationValueSelector = Gain10", "try ColorTransformationValue = 0.125",
    "try ColorTransformationValueSelector = Gain12", "try ColorTransformationValue = -0.5",
    "try ColorTransformationValueSelector = Gain11", "try ColorTransformationValue = 1.375",
    "try ColorTransformationValueSelector = Gain20", "try ColorTransformationValue = 0.75",
    "try ColorTransformationValueSelector = Gain21", "try ColorTransformationValue = 0.5",
    "try ColorTransformationValueSelector = Gain22", "try ColorTransformationValue = -0.25"};

const QStringList identityGains{
    "try ColorTransformationValueSelector = Gain01", "try ColorTransformationValue = 0",
    "try ColorTransformationValueSelector = Gain02", "try ColorTransformationValue = 0",
    "try ColorTransformationValueSelector = Gain00", "try ColorTransformationValue = 1",
    "try ColorTransformationValueSelector = Gain10", "try ColorTransformationValue = 0",
    "try ColorTransformationValueSelector = Gain12", "try ColorTransformationValue = 0",
    "try ColorTransformationValueSelector = Gain11", "try ColorTransformationValue = 1",
    "try ColorTransformationValueSelector = Gain20", "try ColorTransformationValue = 0",
    "try ColorTransformationValueSelector = Gain21", "try ColorTransformationValue = 0",
    "try ColorTransformationValueSelector = Gain22", "try ColorTransformationValue = 1"};

ColorAdjustment someAdjustment()
{
    ColorAdjustment adjustment;
    adjustment = 1, 2, 3, 4, 5, 6, 1.25, 1.5, 1.75, 2, 2.25, 2.5;
    return adjustment;
}

const QStringList adjustmentWrites{
    "ColorAdjustmentSelector = Red",    "ColorAdjustmentHue = 1",
    "ColorAdjustmentSaturation = 1.25", "ColorAdjustmentSelector = Yellow",
    "ColorAdjustmentHue = 2",           "ColorAdjustmentSaturation = 1.5",
    "ColorAdjustmentSelector = Green",  "ColorAdjustmentHue = 3",
    "ColorAdjustmentSaturation = 1.75", "ColorAdjustmentSelector = Cyan",
    "ColorAdjustmentHue = 4",           "ColorAdjustmentSaturation = 2",
    "ColorAdjustmentSelector = Blue",   "ColorAdjustmentHue = 5",
    "ColorAdjustmentSaturation = 2.25", "ColorAdjustmentSelector = Magenta",
    "ColorAdjustmentHue = 6",           "ColorAdjustmentSaturation = 2.5"};

TEST(CameraJustify, NeutralBlackLevelHasTheNamesOfItsGeneration)
{
    const Operation neutral = &CameraJustify::SetBlackLevelNeutral;
    expectWrites(oldCamera(), neutral, {"BlackLevelSelector = All", "BlackLevelRaw = 0 verified"});
    expectWrites(newCamera(), neutral, {"BlackLevelSelector = All", "BlackLevel = 0"});
}

TEST(CameraJustify, GammaHasSelectorAndSwitchOnOldCamerasAlone)
{
    const Operation write = [](CameraJustify& justify) {
        justify.WriteGamma(0.45, true);
    };
    expectWrites(oldCamera(), write,
                 {"GammaSelector = User", "Gamma = 0.45", "GammaEnable = true verified"});
    expectWrites(newCamera(), write, {"Gamma = 0.45"});
}

TEST(CameraJustify, NeutralGammaIsOneAndOff)
{
    const Operation neutral = &CameraJustify::SetGammaNeutral;
    expectWrites(oldCamera(), neutral,
                 {"GammaSelector = User", "Gamma = 1", "GammaEnable = false verified"});
    expectWrites(newCamera(), neutral, {"Gamma = 1"});
}

TEST(CameraJustify, SrgbGammaIsAnOldCamerasAffair)
{
    for (const bool enable : {true, false}) {
        const Operation write = [enable](CameraJustify& justify) {
            justify.WriteSrgbGamma(enable);
        };
        expectWrites(oldCamera(), write,
                     {"GammaSelector = sRGB",
                      enable ? "GammaEnable = true verified" : "GammaEnable = false verified"});
        expectWrites(newCamera(), write, {});
    }
}

TEST(CameraJustify, MatrixWritesTheDiagonalLastInEachRow)
{
    const Operation write = [](CameraJustify& justify) {
        justify.WriteColorMatrix(someMatrix());
    };
    expectWrites(oldCamera(), write,
                 QStringList{"ProcessedRawEnable = true verified", "LightSourceSelector = Custom"} +
                     matrixGains);
    expectWrites(newCamera(), write, QStringList{"LightSourcePreset = Off"} + matrixGains);
}

TEST(CameraJustify, MatrixNamesCarryTheNodeMap)
{
    const auto camera = newCamera();
    writesOf(camera, [](CameraJustify& justify) { justify.WriteColorMatrix(someMatrix()); });
    EXPECT_EQ(text(camera->parameters().lookups()),
              "@CameraDevice/LightSourcePreset|@CameraDevice/TvrLightSourcePreset\n"
              "@CameraDevice/ColorTransformationValueSelector\n"
              "@CameraDevice/ColorTransformationValue");
}

TEST(CameraJustify, MatrixTakesTheMakersPresetWhereTheOtherIsMissing)
{
    const auto camera = newCamera();
    camera->features().remove("LightSourcePreset");
    camera->parameters().addEnumeration("TvrLightSourcePreset");
    expectWrites(
        camera, [](CameraJustify& justify) { justify.WriteColorMatrix(someMatrix()); },
        QStringList{"TvrLightSourcePreset = Off"} + matrixGains);
}

TEST(CameraJustify, MatrixDiagonalFollowsFromWhatTheCameraKept)
{
    const auto camera = newCamera();
    constexpr double step = 1.0 / 256.0;
    camera->parameters().addFloat("ColorTransformationValue", 0.0, -8.0, 8.0, step);
    ColorMatrix matrix;
    matrix = 0.0, 0.1, 0.2, 0.3, 0.0, -0.7, 0.01, 0.99, 0.0;
    const QStringList writes =
        writesOf(camera, [&](CameraJustify& justify) { justify.WriteColorMatrix(matrix); });
    // 0.1 is kept as 26/256, 0.2 as 51/256, 0.3 as 77/256, -0.7 as -179/256, 0.01 as 3/256 and
    // 0.99 as 253/256.
    EXPECT_TRUE(
        writes.contains(QStringLiteral("try ColorTransformationValue = %1").arg(179.0 / 256.0)));
    const QString second = QStringLiteral("try ColorTransformationValue = %1").arg(358.0 / 256.0);
    EXPECT_EQ(writes.at(writes.indexOf("try ColorTransformationValueSelector = Gain11") + 1),
              second);
    EXPECT_EQ(writes.last(), QStringLiteral("try ColorTransformationValue = 0"));
}

TEST(CameraJustify, MatrixDiagonalMayBeNegative)
{
    const auto camera = newCamera();
    ColorMatrix matrix = dlib::identity_matrix<double>(3);
    matrix(0, 1) = 0.75;
    matrix(0, 2) = 0.75;
    const QStringList writes =
        writesOf(camera, [&](CameraJustify& justify) { justify.WriteColorMatrix(matrix); });
    EXPECT_EQ(writes.at(6), "try ColorTransformationValue = -0.5");
}

TEST(CameraJustify, NeutralMatrixIsTheIdentity)
{
    const Operation neutral = &CameraJustify::SetColorTransformationNeutral;
    expectWrites(oldCamera(), neutral,
                 QStringList{"ProcessedRawEnable = true verified", "LightSourceSelector = Custom"} +
                     identityGains);
    expectWrites(newCamera(), neutral,
                 QStringList{"LightSourcePreset = Off"} + identityGains +
                     QStringList{"LightSourcePreset = Off"});
}

TEST(CameraJustify, AdjustmentGoesThroughTheSixSectors)
{
    const Operation write = [](CameraJustify& justify) {
        justify.WriteColorAdjustment(someAdjustment());
    };
    expectWrites(
        oldCamera(), write,
        QStringList{"ProcessedRawEnable = true verified", "ColorAdjustmentEnable = true verified"} +
            adjustmentWrites);
    expectWrites(newCamera(), write, adjustmentWrites);
}

TEST(CameraJustify, AdjustmentHasAlternativesWithTheNodeMap)
{
    const auto camera = oldCamera();
    writesOf(camera,
             [](CameraJustify& justify) { justify.WriteColorAdjustment(someAdjustment()); });
    EXPECT_EQ(text(camera->parameters().lookups()),
              "@CameraDevice/ProcessedRawEnable\n"
              "@CameraDevice/ColorAdjustmentEnable|@CameraDevice/TvrColorAdjustmentEnable\n"
              "@CameraDevice/ColorAdjustmentHue|@CameraDevice/TvrColorAdjustmentHue\n"
              "@CameraDevice/ColorAdjustmentSaturation|@CameraDevice/TvrColorAdjustmentSaturation\n"
              "@CameraDevice/ColorAdjustmentSelector|@CameraDevice/TvrColorAdjustmentSelector");
}

TEST(CameraJustify, NeutralAdjustmentSwitchesOffOrWritesNeutralSectors)
{
    const Operation neutral = &CameraJustify::SetColorAdjustmentNeutral;
    expectWrites(oldCamera(), neutral, {"ColorAdjustmentEnable = false verified"});
    QStringList expected;
    for (const char* sector : {"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta"})
        expected << QStringLiteral("ColorAdjustmentSelector = %1").arg(QLatin1String(sector))
                 << "ColorAdjustmentHue = 0"
                 << "ColorAdjustmentSaturation = 1";
    expectWrites(newCamera(), neutral, expected);
}

TEST(CameraJustify, WhiteBalanceGoesRedBlueGreen)
{
    const Operation write = [](CameraJustify& justify) {
        justify.WriteWhiteBalance(1.25, 1.5, 2.0);
    };
    expectWrites(oldCamera(), write,
                 {"BalanceRatioSelector = Red", "BalanceRatioAbs = 1.25",
                  "BalanceRatioSelector = Blue", "BalanceRatioAbs = 2",
                  "BalanceRatioSelector = Green", "BalanceRatioAbs = 1.5"});
    expectWrites(newCamera(), write,
                 {"BalanceRatioSelector = Red", "BalanceRatio = 1.25",
                  "BalanceRatioSelector = Blue", "BalanceRatio = 2", "BalanceRatioSelector = Green",
                  "BalanceRatio = 1.5"});
}

TEST(CameraJustify, NeutralWhiteBalanceIsOneThrice)
{
    expectWrites(newCamera(), &CameraJustify::SetWhiteBalanceNeutral,
                 {"BalanceRatioSelector = Red", "BalanceRatio = 1", "BalanceRatioSelector = Blue",
                  "BalanceRatio = 1", "BalanceRatioSelector = Green", "BalanceRatio = 1"});
}

TEST(CameraJustify, SmallGroupsHaveTheirOrder)
{
    for (const auto& camera : {oldCamera(), newCamera()}) {
        expectWrites(camera, &CameraJustify::SetHsbcNeutral,
                     {"TvrHue = 0", "TvrSaturation = 1", "TvrBrightness = 0", "TvrContrast = 0"});
        expectWrites(camera, &CameraJustify::DisableLut,
                     {"LUTSelector = Luminance", "LUTEnable = false verified"});
        expectWrites(camera, &CameraJustify::SetDemosaicingSimple, {"DemosaicingMode = Simple"});
        expectWrites(camera, &CameraJustify::DisableTestImage,
                     {"TestImageSelector = Off", "TestPattern = Off"});
        expectWrites(camera, &CameraJustify::DisableExposureAndGainAuto,
                     {"try ExposureAuto = Off", "try GainAuto = Off"});
        expectWrites(camera, &CameraJustify::DisableAllAutoFunctions,
                     {"try BalanceWhiteAuto = Off", "try TonalRangeAuto = Off",
                      "try TonalRangeEnable = Off", "try TvrContrastMode = Linear",
                      "try ExposureAuto = Off", "try GainAuto = Off"});
    }
}

TEST(CameraJustify, MonoFormatEndsOnTheBestOneThatThereIs)
{
    struct Case
    {
        QStringList formats;
        QString expected;
    };
    for (const Case& one :
         {Case{{"BayerRG8", "Mono8", "Mono12"}, "Mono12"}, Case{{"BayerRG8", "Mono8"}, "Mono8"},
          Case{{"BayerRG8", "Mono12"}, "Mono12"}, Case{{"BayerRG8", "RGB8"}, "BayerRG8"}}) {
        const auto camera = newCamera();
        camera->parameters().addEnumeration("PixelFormat", one.formats);
        CameraJustify(camera).ActivateMonoPixelFormat();
        EXPECT_EQ(camera->features().get("PixelFormat").value.toString(), one.expected);
    }
}

TEST(CameraJustify, TheLimitBetweenTheGenerationsIsTwoPointZero)
{
    const Operation neutral = &CameraJustify::SetBlackLevelNeutral;
    for (const QVersionNumber& old : {QVersionNumber(1, 5, 1), QVersionNumber(1, 9, 9)})
        expectWrites(oldCamera(old), neutral,
                     {"BlackLevelSelector = All", "BlackLevelRaw = 0 verified"});
    for (const QVersionNumber& young : {QVersionNumber(2, 0, 0), QVersionNumber(2, 3, 0)})
        expectWrites(newCamera(young), neutral, {"BlackLevelSelector = All", "BlackLevel = 0"});
}

const QStringList storing{"UserSetSelector = UserSet2", "UserSetDefault = UserSet2",
                          "execute UserSetSave"};

TEST(CameraJustify, StoresInAUserSetAtOnceAndAfterEachLaterGroup)
{
    const std::vector<Operation> groups{
        [](CameraJustify& justify) { justify.WriteGamma(1.0, true); },
        [](CameraJustify& justify) { justify.WriteSrgbGamma(true); },
        [](CameraJustify& justify) { justify.WriteColorMatrix(someMatrix()); },
        [](CameraJustify& justify) { justify.WriteColorAdjustment(someAdjustment()); },
        [](CameraJustify& justify) {
            justify.WriteWhiteBalance(1.0, 1.0, 1.0);
        }};
    for (const auto& camera : {oldCamera(), newCamera()}) {
        CameraJustify justify(camera);
        camera->features().forget();
        justify.StoreInUserSet("UserSet2", true, true);
        EXPECT_EQ(text(camera->features().writes()), text(storing));
        for (const Operation& group : groups) {
            camera->features().forget();
            group(justify);
            EXPECT_EQ(text(camera->features().writes().mid(camera->features().writes().size() - 3)),
                      text(storing));
        }
    }
}

TEST(CameraJustify, StoresWithoutADefaultAndNotAtAllWhenDisarmed)
{
    const auto camera = newCamera();
    expectWrites(camera,
                 [](CameraJustify& justify) { justify.StoreInUserSet("UserSet3", true, false); },
                 {"UserSetSelector = UserSet3", "execute UserSetSave"});
    expectWrites(camera,
                 [](CameraJustify& justify) { justify.StoreInUserSet("UserSet3", false, true); },
                 {});
}

TEST(CameraJustify, GroupsThatDoNotStoreLeaveTheUserSetAlone)
{
    const auto camera = newCamera();
    CameraJustify justify(camera);
    justify.StoreInUserSet("UserSet2", true, true);
    camera->features().forget();
    justify.SetBlackLevelNeutral();
    justify.SetHsbcNeutral();
    justify.DisableLut();
    justify.SetDemosaicingSimple();
    justify.DisableAllAutoFunctions();
    EXPECT_FALSE(camera->features().writes().contains("execute UserSetSave"));
}

TEST(CameraJustify, BackupsAreTwoAndComeBackAsTheyWere)
{
    const auto camera = newCamera();
    CameraJustify justify(camera);
    camera->parameters().addFloat("Gamma", 1.0);
    justify.CreateBackup(false);
    camera->parameters().addFloat("Gamma", 2.0);
    justify.CreateBackup(true);
    camera->parameters().addFloat("Gamma", 3.0);
    justify.RestoreBackup(false);
    EXPECT_EQ(camera->features().get("Gamma").value.toDouble(), 1.0);
    justify.RestoreBackup(true);
    EXPECT_EQ(camera->features().get("Gamma").value.toDouble(), 2.0);
    EXPECT_TRUE(camera->features().writes().contains("save @CameraDevice"));
    EXPECT_TRUE(camera->features().writes().last().startsWith("load @CameraDevice: "));
}

TEST(CameraJustify, AnEmptyBackupRestoresNothing)
{
    expectWrites(newCamera(),
                 [](CameraJustify& justify) {
                     justify.RestoreBackup(false);
                     justify.RestoreBackup(true);
                 },
                 {});
}

} // namespace
