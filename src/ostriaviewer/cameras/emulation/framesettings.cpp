// SPDX-License-Identifier: Apache-2.0
// What an emulated camera's feature values mean for a frame.
#include "framesettings.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;
using Matrix = std::array<double, 9>;

// The camera's own correction of its sensor under a light; rows add up to 1.
constexpr Matrix daylightMatrix = {1.62, -0.52, -0.10, -0.34, 1.62, -0.28, -0.05, -0.58, 1.63};
constexpr Matrix tungstenMatrix = {1.48, -0.30, -0.18, -0.42, 1.70, -0.28, -0.02, -0.92, 1.94};

// The first of the names that the camera has.
QString present(const FeatureValues& values, std::initializer_list<const char*> names)
{
    for (const char* name : names)
        if (values.table().find(QString::fromLatin1(name)))
            return QString::fromLatin1(name);
    return {};
}

double first(const FeatureValues& values, std::initializer_list<const char*> names,
             double defaultValue, int cell = 0)
{
    return values.value(present(values, names), cell, defaultValue);
}

bool isOn(const FeatureValues& values, const QString& name)
{
    return values.value(name) != 0.0;
}

void setRegion(const FeatureValues& values, PipelineSettings& settings)
{
    const auto whole = [&values](const char* name) {
        return static_cast<int>(values.value(QString::fromLatin1(name)));
    };
    settings.offsetX = whole("OffsetX");
    settings.offsetY = whole("OffsetY");
    settings.width = whole("Width");
    settings.height = whole("Height");
}

void setBrightness(const FeatureValues& values, PipelineSettings& settings)
{
    constexpr double dbPerRawStep = 0.1;
    settings.exposureTime = first(values, {"ExposureTime", "ExposureTimeAbs"}, 0.0);
    settings.gain = values.table().find(QStringLiteral("GainRaw"))
                        ? values.value(QStringLiteral("GainRaw")) * dbPerRawStep
                        : values.value(QStringLiteral("Gain"));
    settings.blackLevel = first(values, {"BlackLevel", "BlackLevelRaw"}, 0.0);
    for (int channel = 0; channel < 3; ++channel)
        settings.balanceRatio[static_cast<std::size_t>(channel)] =
            first(values, {"BalanceRatio", "BalanceRatioAbs"}, 1.0, channel);
}

// Old cameras need "Custom" for the user's matrix, on the others it stands while no preset does.
void setMatrix(const FeatureValues& values, PipelineSettings& settings)
{
    const QString userMatrix = QStringLiteral("ColorTransformationValue");
    if (!values.table().find(userMatrix))
        return;
    const QString selector = QStringLiteral("LightSourceSelector");
    int source = static_cast<int>(
        first(values, {"LightSourcePreset", "TvrLightSourcePreset"}, 0.0)); // 0 is the user's
    settings.colorMatrixEnabled = true;
    if (values.table().find(selector)) {
        source = static_cast<int>(values.value(selector)) - 1;
        settings.colorMatrixEnabled = source >= 0;
    }
    if (source == 1)
        settings.colorMatrix = daylightMatrix;
    else if (source == 2)
        settings.colorMatrix = tungstenMatrix;
    else
        for (int gain = 0; gain < 9; ++gain)
            // Without the selector there is the first gain alone; the others are those of identity.
            settings.colorMatrix[static_cast<std::size_t>(gain)] =
                values.value(userMatrix, gain, gain % 4 == 0 ? 1.0 : 0.0);
}

void setAdjustment(const FeatureValues& values, PipelineSettings& settings)
{
    const QString enable = present(values, {"ColorAdjustmentEnable", "TvrColorAdjustmentEnable"});
    const QString hue = present(values, {"ColorAdjustmentHue", "TvrColorAdjustmentHue"});
    const QString saturation =
        present(values, {"ColorAdjustmentSaturation", "TvrColorAdjustmentSaturation"});
    settings.sectorsEnabled = !hue.isEmpty() && (enable.isEmpty() || isOn(values, enable));
    for (int sector = 0; sector < 6; ++sector) {
        const auto position = static_cast<std::size_t>(sector);
        settings.sectorHue[position] = values.value(hue, sector);
        settings.sectorSaturation[position] = values.value(saturation, sector, 1.0);
    }
    settings.hue = values.value(QStringLiteral("TvrHue"));
    settings.saturation = values.value(QStringLiteral("TvrSaturation"), 0, 1.0);
    settings.brightness = values.value(QStringLiteral("TvrBrightness"));
    settings.contrast = values.value(QStringLiteral("TvrContrast"));
}

void setLookUpTable(const FeatureValues& values, PipelineSettings& settings)
{
    settings.lutEnabled = isOn(values, QStringLiteral("LUTEnable"));
    if (!settings.lutEnabled)
        return;
    const QString name = QStringLiteral("LUTValue");
    settings.lut.resize(4096);
    for (int i = 0; i < 4096; ++i)
        settings.lut[static_cast<std::size_t>(i)] =
            static_cast<std::uint16_t>(values.value(name, i));
}

// A contrast along a curve takes the place of the straight one, which clips at both ends.
void bendContrast(const FeatureValues& values, PipelineSettings& settings)
{
    if (!isOn(values, QStringLiteral("TvrContrastMode")) || settings.lutEnabled)
        return;
    settings.lutEnabled = true;
    settings.lut.resize(4096);
    for (std::size_t i = 0; i < settings.lut.size(); ++i) {
        const double x = static_cast<double>(i) / 4095.0;
        const double bent = x + settings.contrast * x * (1.0 - x) * (2.0 * x - 1.0);
        settings.lut[i] = static_cast<std::uint16_t>(std::lround(bent * 4095.0));
    }
    settings.contrast = 0.0;
}

void setGamma(const FeatureValues& values, PipelineSettings& settings)
{
    settings.gamma = values.value(QStringLiteral("Gamma"), 0, 1.0);
    const QString enable = QStringLiteral("GammaEnable");
    const bool enabled = !values.table().find(enable) || isOn(values, enable);
    const bool isSrgb = isOn(values, QStringLiteral("GammaSelector"));
    if (enabled && isSrgb)
        settings.gammaCurve = GammaCurve::Srgb;
    else if (enabled && settings.gamma != 1.0)
        settings.gammaCurve = GammaCurve::User;
}

} // namespace

PixelType wantedPixelType(const FeatureValues& values)
{
    // A color camera without a choice has the format that it leaves the factory with.
    return static_cast<PixelType>(static_cast<int>(
        values.value(QStringLiteral("PixelFormat"), 0, static_cast<double>(PixelType::RGB8))));
}

bool isProcessedRaw(const FeatureValues& values)
{
    const PixelType type = wantedPixelType(values);
    return isOn(values, QStringLiteral("ProcessedRawEnable")) &&
           (type == PixelType::BayerRG8 || type == PixelType::BayerRG12);
}

PipelineSettings pipelineSettings(const FeatureValues& values)
{
    PipelineSettings settings;
    setRegion(values, settings);
    setBrightness(values, settings);
    setMatrix(values, settings);
    setAdjustment(values, settings);
    setLookUpTable(values, settings);
    bendContrast(values, settings);
    setGamma(values, settings);
    if (isOn(values, QStringLiteral("DemosaicingMode")))
        settings.demosaicing = Demosaicing::HighQuality;
    settings.testImage = static_cast<TestImage>(
        static_cast<int>(first(values, {"TestPattern", "TestImageSelector"}, 0.0)));
    settings.pixelFormat = isProcessedRaw(values) ? PixelType::RGB8 : wantedPixelType(values);
    return settings;
}

Ostria::COstriaImage toMosaic(const Ostria::COstriaImage& rgb, PixelType type)
{
    if (rgb.pixelType() != PixelType::RGB8 ||
        (type != PixelType::BayerRG8 && type != PixelType::BayerRG12))
        throw std::invalid_argument("A mosaic is sampled from RGB8.");
    Ostria::COstriaImage mosaic(type, rgb.width(), rgb.height());
    std::uint8_t* out = mosaic.writableData();
    const bool wide = type == PixelType::BayerRG12;
    for (int y = 0; y < rgb.height(); ++y) {
        const std::uint8_t* in = rgb.data() + static_cast<std::size_t>(y) * rgb.stride();
        std::uint8_t* row = out + static_cast<std::size_t>(y) * mosaic.stride();
        for (int x = 0; x < rgb.width(); ++x) {
            const int value = in[3 * x + x % 2 + y % 2]; // red, green over green, blue
            if (wide) {
                const int stretched = value << 4 | value >> 4;
                row[2 * x] = static_cast<std::uint8_t>(stretched);
                row[2 * x + 1] = static_cast<std::uint8_t>(stretched >> 8);
            } else {
                row[x] = static_cast<std::uint8_t>(value);
            }
        }
    }
    return mosaic;
}

qint64 payloadSize(const FeatureValues& values)
{
    const Ostria::PixelTypeInfo* info = Ostria::pixelTypeInfo(wantedPixelType(values));
    const double pixels =
        values.value(QStringLiteral("Width")) * values.value(QStringLiteral("Height"));
    return info ? static_cast<qint64>(pixels * info->bitsPerPixel / 8.0) : 0;
}

std::chrono::microseconds exposureTime(const FeatureValues& values)
{
    return std::chrono::microseconds(
        std::llround(first(values, {"ExposureTime", "ExposureTimeAbs"}, 0.0)));
}

std::chrono::microseconds framePeriod(const FeatureValues& values, double readoutTime)
{
    double period = readoutTime;
    if (isOn(values, QStringLiteral("AcquisitionFrameRateEnable")))
        period = std::max(
            period, 1e6 / first(values, {"AcquisitionFrameRate", "AcquisitionFrameRateAbs"}, 1.0));
    return std::max(std::chrono::microseconds(std::llround(period)), exposureTime(values));
}

} // namespace Cameras::Emulation
