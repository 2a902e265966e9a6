// SPDX-License-Identifier: Apache-2.0
// Which features a color camera model has: white balance, matrix, color adjustment.
#include "modelfeatures.h"

#include "pixeltype.h"

namespace Cameras::Emulation {
namespace {

constexpr int ratioSteps = 4096;
constexpr double highestRawRatio = 65535.0;
constexpr int matrixSteps = 256;
constexpr int adjustmentSteps = 128;

QStringList colors()
{
    return {QStringLiteral("Red"),  QStringLiteral("Yellow"), QStringLiteral("Green"),
            QStringLiteral("Cyan"), QStringLiteral("Blue"),   QStringLiteral("Magenta")};
}

Condition whileRaw()
{
    return {QStringLiteral("PixelFormat"),
            {static_cast<qint64>(Ostria::PixelType::BayerRG8),
             static_cast<qint64>(Ostria::PixelType::BayerRG12)}};
}

void addWhiteBalance(FeatureTable& table, bool first)
{
    const QString selector = QStringLiteral("BalanceRatioSelector");
    const QString ratio =
        first ? QStringLiteral("BalanceRatioAbs") : QStringLiteral("BalanceRatio");
    const QString raw = QStringLiteral("BalanceRatioRaw");
    table.enumeration(
        QStringLiteral("BalanceWhiteAuto"),
        {QStringLiteral("Off"), QStringLiteral("Once"), QStringLiteral("Continuous")});
    table.selector(selector,
                   {QStringLiteral("Red"), QStringLiteral("Green"), QStringLiteral("Blue")});
    FeatureDefinition& value =
        table.floating(ratio, 1.0, {0.0}, {highestRawRatio / ratioSteps}, ratioSteps)
            .selectedBy(selector);
    if (first) {
        value.linkedTo(raw, ratioSteps);
        table.integer(raw, ratioSteps, {0.0}, {highestRawRatio})
            .selectedBy(selector)
            .linkedTo(ratio, 1.0 / ratioSteps);
    }
}

void addLightSource(FeatureTable& table, FeatureNames names)
{
    if (names == FeatureNames::FirstGeneration) {
        table.boolean(QStringLiteral("ProcessedRawEnable"), false).onlyWhile(whileRaw());
        table.enumeration(QStringLiteral("LightSourceSelector"),
                          {QStringLiteral("Off"), QStringLiteral("Custom"),
                           QStringLiteral("Daylight"), QStringLiteral("Tungsten")});
        return;
    }
    table.enumeration(
        names == FeatureNames::SecondGeneration ? QStringLiteral("LightSourcePreset")
                                                : QStringLiteral("TvrLightSourcePreset"),
        {QStringLiteral("Off"), QStringLiteral("Daylight5000K"), QStringLiteral("Tungsten2800K")});
}

void addMatrix(FeatureTable& table)
{
    const QString selector = QStringLiteral("ColorTransformationValueSelector");
    QStringList gains;
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            gains.append(QStringLiteral("Gain%1%2").arg(row).arg(column));
    table.selector(QStringLiteral("ColorTransformationSelector"), {QStringLiteral("RGBtoRGB")});
    table.selector(selector, gains);
    table
        .floating(QStringLiteral("ColorTransformationValue"), 0.0, {-8.0}, {2047.0 / matrixSteps},
                  matrixSteps)
        .selectedBy(selector)
        .from({1, 0, 0, 0, 1, 0, 0, 0, 1});
}

void addColorAdjustment(FeatureTable& table, FeatureNames names)
{
    const QString name = names == FeatureNames::SecondGenerationMaker
                             ? QStringLiteral("TvrColorAdjustment")
                             : QStringLiteral("ColorAdjustment");
    const QString selector = name + QStringLiteral("Selector");
    if (names != FeatureNames::SecondGeneration)
        table.boolean(name + QStringLiteral("Enable"), names != FeatureNames::FirstGeneration);
    table.selector(selector, colors());
    table
        .floating(name + QStringLiteral("Hue"), 0.0, {-4.0}, {511.0 / adjustmentSteps},
                  adjustmentSteps)
        .selectedBy(selector);
    table
        .floating(name + QStringLiteral("Saturation"), 1.0, {0.0}, {511.0 / adjustmentSteps},
                  adjustmentSteps)
        .selectedBy(selector);
}

void addHueSaturationBrightnessContrast(FeatureTable& table)
{
    table.enumeration(QStringLiteral("TvrContrastMode"),
                      {QStringLiteral("Linear"), QStringLiteral("SCurve")});
    table.floating(QStringLiteral("TvrHue"), 0.0, {-180.0}, {180.0}, 64);
    table.floating(QStringLiteral("TvrSaturation"), 1.0, {0.0}, {2.0}, 64);
    table.floating(QStringLiteral("TvrBrightness"), 0.0, {-1.0}, {1.0}, 64);
    table.floating(QStringLiteral("TvrContrast"), 0.0, {-1.0}, {1.0}, 64);
}

// The better demosaicing needs an output that is demosaiced.
void addDemosaicing(FeatureTable& table)
{
    Condition whileProcessed = whileRaw();
    whileProcessed.negated = true;
    table.enumeration(QStringLiteral("DemosaicingMode"),
                      QVector<EntryDefinition>{
                          {QStringLiteral("Simple"), 0, {}, {}},
                          {QStringLiteral("HighQuality"), 1, {}, whileProcessed},
                      });
}

} // namespace

void addColorFeatures(FeatureTable& table, const CameraModel& model)
{
    table.beginCategory(QStringLiteral("ColorControl"));
    addWhiteBalance(table, model.names == FeatureNames::FirstGeneration);
    addLightSource(table, model.names);
    addMatrix(table);
    addColorAdjustment(table, model.names);
    if (model.names == FeatureNames::SecondGenerationMaker)
        addHueSaturationBrightnessContrast(table);
    if (model.names != FeatureNames::FirstGeneration)
        addDemosaicing(table);
}

} // namespace Cameras::Emulation
