// SPDX-License-Identifier: Apache-2.0
// From light to the numbers of the sensor's converter.
#include "sensor.h"

#include "normaldeviates.h"
#include "requirement.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Cameras::Emulation {
namespace {

// ITU-R BT.709, the luminance of linear light with the primaries of sRGB.
constexpr std::array<double, 3> luminance = {0.2126, 0.7152, 0.0722};

void checkSize(const SensorModel& model)
{
    requireRange("The sensor's width", model.width, 8, 16384);
    requireRange("The sensor's height", model.height, 8, 16384);
    if (model.width % 2 != 0 || model.height % 2 != 0)
        throw std::invalid_argument("The sensor's width and height must be even.");
}

void check(const SensorModel& model)
{
    checkSize(model);
    requireRange("The full scale exposure", model.fullScaleExposure, 1e-3, 1e12);
    for (const double weight : model.crosstalk)
        requireRange("A crosstalk weight", weight, 0.0, 100.0);
    for (const double loss : model.nonLinearity)
        requireRange("The non-linearity", loss, 0.0, 0.5);
    requireRange("The vignetting", model.vignetting, 0.0, 1.0);
    requireRange("The full well", model.fullWell, 1.0, 1e9);
    requireRange("The conversion gain", model.conversionGain, 1e-6, 1e6);
    requireRange("The read noise", model.readNoise, 0.0, 1e6);
    requireRange("The pedestal", model.pedestal, 0.0, 2047.0);
    if (model.pedestal != std::floor(model.pedestal))
        throw std::invalid_argument("The pedestal must be a whole number of counts.");
}

std::size_t pixelIndex(const SensorModel& model, int x, int y)
{
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(model.width) +
           static_cast<std::size_t>(x);
}

} // namespace

// One frame's factors. Signals are shares of what takes the converter to full scale at 0 dB.
struct Sensor::Readout
{
    float exposure;
    float fullWell;
    float shotVariance; ///< for a signal of 1
    float readVariance;
    float pedestal;
    float countsPerSignal;
    bool rounding;

    float clipped(float signal) const
    {
        const float counts = pedestal + signal * countsPerSignal;
        const float positive = counts > 0.0F ? counts : 0.0F;
        return positive < static_cast<float>(fullScale) ? positive : static_cast<float>(fullScale);
    }

    float collected(float light, float nonLinearity) const
    {
        const float linear = light * exposure;
        const float loss = nonLinearity * (linear < 1.0F ? linear : 1.0F);
        const float bent = linear - linear * loss;
        return bent < fullWell ? bent : fullWell;
    }

    void addNoise(const float* deviates, int count, float* signal) const
    {
        for (int i = 0; i < count; ++i)
            signal[i] += std::sqrt(signal[i] * shotVariance + readVariance) * deviates[i];
    }

    void convert(int count, float* raw) const
    {
        if (rounding)
            for (int i = 0; i < count; ++i)
                raw[i] = static_cast<float>(static_cast<int>(clipped(raw[i]) + 0.5F));
        else
            for (int i = 0; i < count; ++i)
                raw[i] = clipped(raw[i]);
    }
};

Sensor::Sensor(const SensorModel& model)
    : m_model(model)
{
    check(model);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < model.width; ++x) {
            const auto channel = static_cast<std::size_t>(model.mono ? 0 : filterAt(x, y));
            const double loss = model.nonLinearityEnabled ? model.nonLinearity[channel] : 0.0;
            m_nonLinearity[static_cast<std::size_t>(y)].push_back(static_cast<float>(loss));
        }
    m_deviates.resize(static_cast<std::size_t>(model.width));
}

double Sensor::falloff(int x, int y) const
{
    if (!m_model.vignettingEnabled)
        return 1.0;
    const double fromCenterX = x + 0.5 - m_model.width / 2.0;
    const double fromCenterY = y + 0.5 - m_model.height / 2.0;
    const double halfDiagonalSquared =
        (double(m_model.width) * m_model.width + double(m_model.height) * m_model.height) / 4.0;
    const double share =
        (fromCenterX * fromCenterX + fromCenterY * fromCenterY) / halfDiagonalSquared;
    return 1.0 - m_model.vignetting * share;
}

std::array<double, 3> Sensor::responsivity(int x, int y) const
{
    if (m_model.mono)
        return luminance;
    const auto row = static_cast<std::size_t>(3 * filterAt(x, y));
    return {m_model.crosstalk[row], m_model.crosstalk[row + 1], m_model.crosstalk[row + 2]};
}

void Sensor::expose(const LightImage& light)
{
    m_signal.resize(pixelIndex(m_model, 0, m_model.height));
    for (int y = 0; y < m_model.height; ++y)
        for (int x = 0; x < m_model.width; ++x) {
            const std::array<double, 3> weights = responsivity(x, y);
            const float* rgb = light.at(x, y);
            const double seen = weights[0] * rgb[0] + weights[1] * rgb[1] + weights[2] * rgb[2];
            m_signal[pixelIndex(m_model, x, y)] = static_cast<float>(falloff(x, y) * seen);
        }
}

Sensor::Readout Sensor::readout(double exposureTime, double gain) const
{
    const double countsPerSignal = fullScale - m_model.pedestal;
    const double electronsPerSignal = countsPerSignal / m_model.conversionGain;
    const double readNoise = m_model.readNoise / electronsPerSignal;
    Readout result{};
    result.exposure = static_cast<float>(exposureTime / m_model.fullScaleExposure);
    result.fullWell = static_cast<float>(m_model.fullWell / electronsPerSignal);
    result.shotVariance = static_cast<float>(1.0 / electronsPerSignal);
    result.readVariance = static_cast<float>(readNoise * readNoise);
    result.pedestal = static_cast<float>(m_model.pedestal);
    result.countsPerSignal = static_cast<float>(countsPerSignal * std::pow(10.0, gain / 20.0));
    result.rounding = m_model.roundingEnabled;
    return result;
}

void Sensor::readRow(double exposureTime, double gain, std::uint64_t frame, int x, int y, int count,
                     float* raw)
{
    const Readout factors = readout(exposureTime, gain);
    const float* light = m_signal.data() + pixelIndex(m_model, x, y);
    const float* nonLinearity = m_nonLinearity[static_cast<std::size_t>(y % 2)].data() + x;
    for (int i = 0; i < count; ++i)
        raw[i] = factors.collected(light[i], nonLinearity[i]);
    if (m_model.noiseEnabled) {
        normalDeviates(m_model.noiseSeed, frame, x, y, count, m_deviates.data());
        factors.addNoise(m_deviates.data(), count, raw);
    }
    factors.convert(count, raw);
}

} // namespace Cameras::Emulation
