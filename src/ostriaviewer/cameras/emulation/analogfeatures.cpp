// SPDX-License-Identifier: Apache-2.0
// Which features a camera model has: exposure, gain, black level, gamma, lookup table.
#include "modelfeatures.h"

namespace Cameras::Emulation {
namespace {

constexpr double shortestExposure = 20.0;     // microseconds
constexpr double longestExposure = 1000000.0; // microseconds
constexpr double highestGain = 24.0;          // dB
constexpr double rawStepsPerDb = 10.0;
constexpr double highestBlackLevel = 255.0; // 12-bit counts
constexpr int lookUpTableSize = 4096;

QStringList autoModes()
{
    return {QStringLiteral("Off"), QStringLiteral("Once"), QStringLiteral("Continuous")};
}

Condition unlessOff(const QString& automatic)
{
    return {automatic, {0}, true};
}

// The range that an automatic function keeps to; neither end may pass the other.
void addAutoLimits(FeatureTable& table, const QString& name, bool whole, const Bound& lowest,
                   double lower, const Bound& highest, double upper)
{
    const QString lowerName = name + QStringLiteral("LowerLimit");
    const QString upperName = name + QStringLiteral("UpperLimit");
    if (whole) {
        table.integer(lowerName, lower, lowest, {0.0, upperName});
        table.integer(upperName, upper, {0.0, lowerName}, highest);
    } else {
        table.floating(lowerName, lower, lowest, {0.0, upperName}, 10);
        table.floating(upperName, upper, {0.0, lowerName}, highest, 10);
    }
}

void addExposure(FeatureTable& table, bool first)
{
    const QString exposureAuto = QStringLiteral("ExposureAuto");
    table.enumeration(QStringLiteral("ExposureMode"), QStringList{QStringLiteral("Timed")});
    table.enumeration(exposureAuto, autoModes());
    table
        .floating(first ? QStringLiteral("ExposureTimeAbs") : QStringLiteral("ExposureTime"),
                  10000.0, {shortestExposure}, {longestExposure}, 1)
        .lockedBy(unlessOff(exposureAuto))
        .inUnit(QStringLiteral("us"));
    addAutoLimits(
        table, first ? QStringLiteral("AutoExposureTimeAbs") : QStringLiteral("AutoExposureTime"),
        false, {shortestExposure}, 100.0, {longestExposure}, longestExposure);
}

void addGain(FeatureTable& table, bool first)
{
    const QString gainAuto = QStringLiteral("GainAuto");
    const QString gainSelector = QStringLiteral("GainSelector");
    table.enumeration(gainAuto, autoModes());
    table.selector(gainSelector, {QStringLiteral("All")});
    if (first) {
        const double highest = highestGain * rawStepsPerDb;
        table.integer(QStringLiteral("GainRaw"), 0, {0.0}, {highest})
            .selectedBy(gainSelector)
            .lockedBy(unlessOff(gainAuto));
        addAutoLimits(table, QStringLiteral("AutoGainRaw"), true, {0.0}, 0.0, {highest}, highest);
        return;
    }
    table.floating(QStringLiteral("Gain"), 0, {0.0}, {highestGain}, 10)
        .selectedBy(gainSelector)
        .lockedBy(unlessOff(gainAuto))
        .inUnit(QStringLiteral("dB"));
    addAutoLimits(table, QStringLiteral("AutoGain"), false, {0.0}, 0.0, {highestGain}, highestGain);
}

void addBlackLevel(FeatureTable& table, bool first)
{
    const QString selector = QStringLiteral("BlackLevelSelector");
    table.selector(selector, {QStringLiteral("All")});
    if (first)
        table.integer(QStringLiteral("BlackLevelRaw"), 16, {0.0}, {highestBlackLevel})
            .selectedBy(selector);
    else
        table.floating(QStringLiteral("BlackLevel"), 0.0, {0.0}, {highestBlackLevel}, 16)
            .selectedBy(selector);
}

void addGamma(FeatureTable& table, bool first)
{
    if (first) {
        table.boolean(QStringLiteral("GammaEnable"), false);
        table.enumeration(QStringLiteral("GammaSelector"),
                          {QStringLiteral("User"), QStringLiteral("sRGB")});
    }
    table.floating(QStringLiteral("Gamma"), 1.0, {0.25}, {4.0}, 100000);
}

void addLookUpTable(FeatureTable& table)
{
    QVector<double> identity(lookUpTableSize);
    for (int i = 0; i < lookUpTableSize; ++i)
        identity[i] = i;
    const QString selector = QStringLiteral("LUTSelector");
    table.beginCategory(QStringLiteral("LUTControl"));
    table.selector(selector, {QStringLiteral("Luminance")});
    table.boolean(QStringLiteral("LUTEnable"), false).selectedBy(selector);
    table.index(QStringLiteral("LUTIndex"), lookUpTableSize);
    table.integer(QStringLiteral("LUTValue"), 0, {0.0}, {lookUpTableSize - 1.0})
        .selectedBy(QStringLiteral("LUTIndex"))
        .from(identity)
        .notStreamed();
}

// They keep what is written; the emulated pixels have no such stage.
void addTonalRange(FeatureTable& table)
{
    table.beginCategory(QStringLiteral("TonalRangeControl"));
    table.enumeration(QStringLiteral("TonalRangeEnable"),
                      {QStringLiteral("Off"), QStringLiteral("On")});
    table.enumeration(QStringLiteral("TonalRangeAuto"), autoModes());
}

} // namespace

void addAcquisitionFeatures(FeatureTable& table, const CameraModel& model)
{
    const bool first = model.names == FeatureNames::FirstGeneration;
    table.beginCategory(QStringLiteral("AcquisitionControl"));
    table.boolean(QStringLiteral("AcquisitionFrameRateEnable"), false);
    table
        .floating(first ? QStringLiteral("AcquisitionFrameRateAbs")
                        : QStringLiteral("AcquisitionFrameRate"),
                  30.0, {0.1}, {200.0}, 1000)
        .inUnit(QStringLiteral("Hz"));
    addExposure(table, first);
}

void addAnalogFeatures(FeatureTable& table, const CameraModel& model)
{
    const bool first = model.names == FeatureNames::FirstGeneration;
    table.beginCategory(QStringLiteral("AnalogControl"));
    addGain(table, first);
    addBlackLevel(table, first);
    addGamma(table, first);
    addLookUpTable(table);
    if (first)
        addTonalRange(table);
}

} // namespace Cameras::Emulation
