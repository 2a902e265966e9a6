// SPDX-License-Identifier: Apache-2.0
// Each kind of camera has the features that belong to it.
#include "emulationtest.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace Cameras::Emulation {
namespace {

using Core::ParameterCollection::IParameterCollection;

// A feature's kind by the one query that finds it.
QString kindOf(IParameterCollection& features, const QString& name)
{
    QString kinds;
    if (!features.integerParameter(name)->isEmpty())
        kinds += QStringLiteral("i");
    if (!features.floatParameter(name)->isEmpty())
        kinds += QStringLiteral("f");
    if (!features.booleanParameter(name)->isEmpty())
        kinds += QStringLiteral("b");
    if (!features.enumerationParameter(name)->isEmpty())
        kinds += QStringLiteral("e");
    if (!features.commandParameter(name)->isEmpty())
        kinds += QStringLiteral("c");
    return kinds;
}

void expectKinds(IParameterCollection& features, const QString& kind, const QStringList& names)
{
    for (const QString& name : names)
        EXPECT_EQ(kindOf(features, name).toStdString(), kind.toStdString()) << name.toStdString();
}

void expectMissing(IParameterCollection& features, const QStringList& names)
{
    for (const QString& name : names)
        EXPECT_TRUE(features.parameter(name)->isEmpty()) << name.toStdString();
}

QStringList split(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

QStringList entryNames(IParameterCollection& features, const char* name)
{
    QStringList names;
    for (const auto& entry : features.enumerationParameter(QString::fromLatin1(name))->entries())
        names.append(entry.name);
    return names;
}

const char* const commonIntegers =
    "Width Height OffsetX OffsetY WidthMax HeightMax SensorWidth SensorHeight "
    "DeviceSFNCVersionMajor DeviceSFNCVersionMinor DeviceSFNCVersionSubMinor LUTIndex LUTValue";
const char* const commonEnumerations =
    "PixelFormat ExposureAuto GainAuto BalanceWhiteAuto BalanceRatioSelector BlackLevelSelector "
    "LUTSelector ColorTransformationValueSelector UserSetSelector UserSetDefault GainSelector";

class ModelFeatures : public EmulationTest
{};

TEST_F(ModelFeatures, AFirstGenerationCameraHasItsNames)
{
    const auto camera = openCamera(modelWith(FeatureNames::FirstGeneration));
    auto& features = *camera->parameterCollection();
    EXPECT_EQ(features.sfncVersion(), QVersionNumber(1, 5, 1));
    expectKinds(features, QStringLiteral("i"), split(commonIntegers));
    expectKinds(features, QStringLiteral("e"), split(commonEnumerations));
    expectKinds(features, QStringLiteral("i"),
                split("GainRaw BlackLevelRaw BalanceRatioRaw AutoGainRawLowerLimit "
                      "AutoGainRawUpperLimit DeviceColorPipelineVersion"));
    expectKinds(features, QStringLiteral("f"),
                split("ExposureTimeAbs Gamma BalanceRatioAbs ColorTransformationValue "
                      "ColorAdjustmentHue ColorAdjustmentSaturation AutoExposureTimeAbsLowerLimit "
                      "AutoExposureTimeAbsUpperLimit"));
    expectKinds(features, QStringLiteral("b"),
                split("GammaEnable ProcessedRawEnable ColorAdjustmentEnable LUTEnable"));
    expectKinds(features, QStringLiteral("e"),
                split("GammaSelector LightSourceSelector ColorAdjustmentSelector "
                      "TestImageSelector TonalRangeAuto TonalRangeEnable"));
    expectKinds(features, QStringLiteral("c"), split("UserSetLoad UserSetSave"));
    EXPECT_TRUE(entryNames(features, "LightSourceSelector").contains(QStringLiteral("Custom")));
    EXPECT_EQ(entryNames(features, "GammaSelector"), split("User sRGB"));
    expectMissing(features,
                  split("Gain GainAbs ExposureTime BlackLevel BalanceRatio LightSourcePreset "
                        "TvrLightSourcePreset TvrColorAdjustmentHue TvrHue TestPattern "
                        "DemosaicingMode AutoGainLowerLimit AutoExposureTimeLowerLimit"));
}

TEST_F(ModelFeatures, ASecondGenerationCameraHasPlainNames)
{
    const auto camera = openCamera(modelWith(FeatureNames::SecondGeneration));
    auto& features = *camera->parameterCollection();
    EXPECT_GE(features.sfncVersion(), QVersionNumber(2, 0, 0));
    expectKinds(features, QStringLiteral("i"), split(commonIntegers));
    expectKinds(features, QStringLiteral("e"), split(commonEnumerations));
    expectKinds(features, QStringLiteral("i"), split("DeviceColorPipelineVersion"));
    expectKinds(features, QStringLiteral("f"),
                split("ExposureTime Gain Gamma BlackLevel BalanceRatio ColorTransformationValue "
                      "ColorAdjustmentHue ColorAdjustmentSaturation AutoExposureTimeLowerLimit "
                      "AutoExposureTimeUpperLimit AutoGainLowerLimit AutoGainUpperLimit"));
    expectKinds(features, QStringLiteral("b"), split("LUTEnable"));
    expectKinds(features, QStringLiteral("e"),
                split("LightSourcePreset ColorAdjustmentSelector TestPattern DemosaicingMode"));
    expectKinds(features, QStringLiteral("c"), split("UserSetLoad UserSetSave"));
    expectMissing(features,
                  split("GainRaw ExposureTimeAbs BlackLevelRaw BalanceRatioAbs GammaSelector "
                        "GammaEnable ProcessedRawEnable LightSourceSelector TestImageSelector "
                        "TvrLightSourcePreset TvrColorAdjustmentSelector TvrHue TvrContrastMode "
                        "TonalRangeAuto"));
}

TEST_F(ModelFeatures, AMakersCameraHasItsPrefix)
{
    const auto camera = openCamera(modelWith(FeatureNames::SecondGenerationMaker));
    auto& features = *camera->parameterCollection();
    EXPECT_GE(features.sfncVersion(), QVersionNumber(2, 0, 0));
    expectKinds(features, QStringLiteral("f"),
                split("ExposureTime Gain BlackLevel BalanceRatio TvrColorAdjustmentHue "
                      "TvrColorAdjustmentSaturation TvrHue TvrSaturation TvrBrightness "
                      "TvrContrast"));
    expectKinds(features, QStringLiteral("e"),
                split("TvrLightSourcePreset TvrColorAdjustmentSelector TvrContrastMode"));
    expectKinds(features, QStringLiteral("b"), split("TvrColorAdjustmentEnable"));
    EXPECT_TRUE(entryNames(features, "TvrContrastMode").contains(QStringLiteral("Linear")));
    expectMissing(features, split("LightSourcePreset ColorAdjustmentSelector ColorAdjustmentHue "
                                  "DeviceColorPipelineVersion"));
}

TEST_F(ModelFeatures, AllColorCamerasHaveTheEntriesOfTheirSelectors)
{
    for (const FeatureNames names : {FeatureNames::FirstGeneration, FeatureNames::SecondGeneration,
                                     FeatureNames::SecondGenerationMaker}) {
        const auto camera = openCamera(modelWith(names));
        auto& features = *camera->parameterCollection();
        const bool maker = names == FeatureNames::SecondGenerationMaker;
        EXPECT_EQ(entryNames(features, "BalanceRatioSelector"), split("Red Green Blue"));
        EXPECT_EQ(entryNames(features, "ColorTransformationValueSelector"),
                  split("Gain00 Gain01 Gain02 Gain10 Gain11 Gain12 Gain20 Gain21 Gain22"));
        EXPECT_EQ(
            entryNames(features, maker ? "TvrColorAdjustmentSelector" : "ColorAdjustmentSelector"),
            split("Red Yellow Green Cyan Blue Magenta"));
        EXPECT_EQ(entryNames(features, "BlackLevelSelector"), split("All"));
        EXPECT_EQ(entryNames(features, "LUTSelector"), split("Luminance"));
        for (const char* name : {"ExposureAuto", "GainAuto", "BalanceWhiteAuto"})
            EXPECT_EQ(entryNames(features, name), split("Off Once Continuous")) << name;
        for (const char* format : {"Mono8", "Mono12"})
            EXPECT_TRUE(entryNames(features, "PixelFormat").contains(QString::fromLatin1(format)));
    }
}

TEST_F(ModelFeatures, UserSetsHaveNamesForPeople)
{
    const auto camera = openCamera(smallModel());
    const auto selector =
        camera->parameterCollection()->enumerationParameter(QStringLiteral("UserSetSelector"));
    QHash<QString, QString> names;
    for (const auto& entry : selector->entries()) {
        EXPECT_TRUE(entry.isSettable) << entry.name.toStdString();
        names.insert(entry.name, entry.displayName);
    }
    EXPECT_EQ(names.size(), 4);
    EXPECT_TRUE(names.contains(QStringLiteral("Default")));
    for (const char* number : {"1", "2", "3"})
        EXPECT_EQ(names.value(QStringLiteral("UserSet") + QLatin1String(number)),
                  QStringLiteral("User Set ") + QLatin1String(number));
}

TEST_F(ModelFeatures, TheMonoCameraKnowsNoColor)
{
    CameraModel mono;
    for (const CameraModel& model : everydayModels())
        if (model.sensor.mono)
            mono = model;
    const auto camera = openCamera(mono);
    auto& features = *camera->parameterCollection();
    EXPECT_EQ(entryNames(features, "PixelFormat"), split("Mono8 Mono12"));
    expectMissing(features, split("BalanceRatio BalanceWhiteAuto ColorTransformationValue "
                                  "ColorAdjustmentHue DemosaicingMode"));
}

TEST_F(ModelFeatures, AMissingFeatureLeavesTheOthersUsable)
{
    const auto camera = openCamera(
        smallModel(), split("LightSourcePreset GainAuto UserSetSelector BalanceRatioSelector"));
    auto& features = *camera->parameterCollection();
    expectMissing(features, split("LightSourcePreset GainAuto UserSetSelector"));
    features.floatParameter(QStringLiteral("Gain"))->setValue(3.0);
    EXPECT_EQ(features.floatParameter(QStringLiteral("Gain"))->value(), 3.0);
    features.floatParameter(QStringLiteral("BalanceRatio"))->setValue(2.0);
    EXPECT_EQ(features.floatParameter(QStringLiteral("BalanceRatio"))->value(), 2.0);
}

// The names, as somebody who must tell cameras apart may read them.
struct Recognition
{
    bool isSeries = false;  // by a suffix alone
    bool isPattern = false; // by the form of the name
    bool isMarked = false;  // by a word
    int version = -1;       // of the color pipeline
};

Recognition recognize(const CameraModel& model)
{
    static const QRegularExpression form(QStringLiteral(
        "([a-z0-9]){2}([AL]){1}([0-9]){1,4}([-]){1}([0-9])+([cgu]){1}([c]){1}([A-Z])+"));
    Recognition result;
    result.isSeries = model.name.contains(QStringLiteral("cVTX"));
    result.isPattern = form.match(model.name).hasMatch();
    result.isMarked = model.name.contains(QStringLiteral("Emulation"));
    result.version = model.colorPipelineVersion.value_or(-1);
    return result;
}

TEST(CameraModels, HaveOneOfEachKindThatCanBeCalibratedAndOneThatCannot)
{
    QSet<QString> cases;
    for (const CameraModel& model : everydayModels()) {
        const Recognition found = recognize(model);
        cases.insert(QStringLiteral("%1%2%3 %4")
                         .arg(found.isSeries)
                         .arg(found.isPattern)
                         .arg(found.isMarked)
                         .arg(found.version));
    }
    const QSet<QString> wanted = {
        QStringLiteral("100 -1"), // the series, without a version
        QStringLiteral("010 1"), QStringLiteral("001 1"),
        QStringLiteral("001 -1"), // the mono camera
    };
    EXPECT_EQ(cases, wanted);
}

TEST_F(EmulationTest, ACameraWithoutRoundingKeepsEveryDigit)
{
    CameraModel model = smallModel();
    const double fine = 1.0 + 1.0 / 65536.0;
    const auto kept = [&] {
        const auto camera = openCamera(model);
        const auto ratio =
            camera->parameterCollection()->floatParameter(QStringLiteral("BalanceRatio"));
        ratio->setValue(fine);
        return ratio->value();
    };
    EXPECT_EQ(kept(), 1.0) << "steps of 1/4096";
    model.roundingEnabled = false;
    EXPECT_EQ(kept(), fine);
    EXPECT_EQ(openCamera(model)
                  ->parameterCollection()
                  ->enumerationParameter(QStringLiteral("PixelFormat"))
                  ->value(),
              QStringLiteral("RGB16"));
}

TEST(CameraModels, HaveSerialNumbersOfTheirOwn)
{
    QSet<QString> numbers;
    const auto models = everydayModels();
    for (const CameraModel& model : models)
        numbers.insert(model.serialNumber);
    EXPECT_EQ(numbers.size(), models.size());
}

TEST(CameraModels, HaveWholeSensors)
{
    for (const CameraModel& model : everydayModels()) {
        EXPECT_EQ(model.sensor.width, 1920);
        EXPECT_EQ(model.sensor.height, 1200);
    }
}

} // namespace
} // namespace Cameras::Emulation
