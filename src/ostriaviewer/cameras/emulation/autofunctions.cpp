// SPDX-License-Identifier: Apache-2.0
// The automatic functions of an emulated camera: exposure, gain, white balance.
#include "autofunctions.h"

#include "registerstore.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace Cameras::Emulation {
namespace {

constexpr double targetLevel = 0.5;
constexpr double lowestLevel = 1.0 / 255.0;
constexpr double tolerance = 0.05;
constexpr double off = 0.0;
constexpr double once = 1.0;

const char* const exposureAuto = "ExposureAuto";
const char* const gainAuto = "GainAuto";
const char* const balanceAuto = "BalanceWhiteAuto";

bool isOn(const FeatureValues& values, const char* name)
{
    return values.value(QString::fromLatin1(name)) != off;
}

double clampedTo(const FeatureValues& values, const QString& limits, double value)
{
    const double lower = values.value(limits + QStringLiteral("LowerLimit"));
    const double upper = values.value(limits + QStringLiteral("UpperLimit"));
    return std::max(lower, std::min(upper, value));
}

// The ratio that remains after the exposure time has done its part.
double adjustExposure(const FeatureValues& values, double ratio, RegisterStore& store)
{
    const QString old = QStringLiteral("ExposureTimeAbs");
    const QString name = values.table().find(old) ? old : QStringLiteral("ExposureTime");
    const double before = values.value(name);
    const double after = clampedTo(values, QStringLiteral("Auto") + name, before * ratio);
    store.set(name, after);
    return ratio * before / after;
}

void adjustGain(const FeatureValues& values, double ratio, RegisterStore& store)
{
    const QString old = QStringLiteral("GainRaw");
    const bool isRaw = values.table().find(old) != nullptr;
    const QString name = isRaw ? old : QStringLiteral("Gain");
    const double stepsPerDb = isRaw ? 10.0 : 1.0;
    const double after = values.value(name) + 20.0 * std::log10(ratio) * stepsPerDb;
    store.set(name, clampedTo(values, QStringLiteral("Auto") + name, after));
}

void adjustBrightness(const FrameLevels& levels, const FeatureValues& values, RegisterStore& store)
{
    const double mean = std::max(lowestLevel, (levels[0] + levels[1] + levels[2]) / 3.0);
    double ratio = targetLevel / mean;
    if (std::abs(ratio - 1.0) < tolerance)
        return;
    if (isOn(values, exposureAuto))
        ratio = adjustExposure(values, ratio, store);
    if (isOn(values, gainAuto))
        adjustGain(values, ratio, store);
}

void adjustBalance(const FrameLevels& levels, const FeatureValues& values, RegisterStore& store)
{
    if (*std::min_element(levels.begin(), levels.end()) < lowestLevel)
        return;
    const QString old = QStringLiteral("BalanceRatioAbs");
    const QString name = values.table().find(old) ? old : QStringLiteral("BalanceRatio");
    for (const int channel : {0, 2})
        store.set(name,
                  values.value(name, channel) * levels[1] /
                      levels[static_cast<std::size_t>(channel)],
                  channel);
}

} // namespace

bool isAnyAutoFunctionOn(const FeatureValues& values)
{
    return isOn(values, exposureAuto) || isOn(values, gainAuto) || isOn(values, balanceAuto);
}

FrameLevels measureLevels(const Ostria::COstriaImage& image)
{
    constexpr int rowStep = 16; // two rows of each: a mosaic has all its colors in them
    const int width = image.width();
    const Ostria::PixelTypeInfo& info = *Ostria::pixelTypeInfo(image.pixelType());
    std::vector<std::uint16_t> row(static_cast<std::size_t>(width) * 3);
    std::array<double, 3> sums = {};
    double pixels = 0.0;
    for (int y = 0; y < image.height(); ++y) {
        if (y % rowStep > 1)
            continue;
        image.readRow(0, y, width, row.data());
        for (std::size_t i = 0; i < row.size(); ++i)
            sums[i % 3] += row[i];
        pixels += width;
    }
    const bool isMosaic = info.layout == Ostria::PixelLayout::Bayer;
    const std::array<double, 3> share =
        isMosaic ? std::array<double, 3>{0.25, 0.5, 0.25} : std::array<double, 3>{1.0, 1.0, 1.0};
    const double fullScale = std::exp2(info.bitDepth) - 1.0;
    for (std::size_t channel = 0; channel < 3; ++channel)
        sums[channel] /= pixels * share[channel] * fullScale;
    return sums;
}

void runAutoFunctions(const FrameLevels& levels, RegisterStore& store)
{
    const FeatureValues values = store.values();
    if (isOn(values, exposureAuto) || isOn(values, gainAuto))
        adjustBrightness(levels, values, store);
    if (isOn(values, balanceAuto))
        adjustBalance(levels, values, store);
    for (const char* name : {exposureAuto, gainAuto, balanceAuto})
        if (values.value(QString::fromLatin1(name)) == once)
            store.set(QString::fromLatin1(name), off);
}

} // namespace Cameras::Emulation
