// SPDX-License-Identifier: Apache-2.0
// Brings the gray patch to its target brightness.
#include "cameraautobrightnesshelper.h"

#include "baseexception.h"
#include "charttargets.h"
#include "logging.h"
#include "reportfailure.h"
#include "sfncgeneration.h"

#include <QThread>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ColorCalibration {
namespace {

constexpr double damping = 0.8;
constexpr double tolerancePercent = 10.0;
constexpr unsigned long settlingMs = 200;
constexpr int lockPollMs = 20;

void logStep(const QString& text)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(adapterLogCategory());
    Core::Logging::createLogEntry(Core::Logging::Debug, category, text);
}

/// Nothing moves any more where a write is refused, so that the run would never end.
Core::Exception::BaseException refusal(const char* what, double value)
{
    return Core::Exception::BaseException(
        QStringLiteral("The camera does not take the %1 %2.").arg(QLatin1String(what)).arg(value));
}

} // namespace

CameraAutoBrightnessHelper::CameraAutoBrightnessHelper(
    CalibrationInterface* calibration, Core::ParameterCollection::ParameterCollectionPtr parameters,
    QRecursiveMutex* lock)
    : m_calibration(calibration)
    , m_lock(lock)
    , m_parameters(std::move(parameters))
{}

CameraAutoBrightnessHelper::~CameraAutoBrightnessHelper() = default;

CameraAutoBrightnessHelper::Turn::Turn(CameraAutoBrightnessHelper& worker)
    : m_worker(worker)
{
    QRecursiveMutex* const lock = m_worker.m_lock;
    while (lock && !lock->tryLock(lockPollMs))
        if (m_worker.m_stopRequested)
            throw Stopped();
    if (m_worker.m_stopRequested) {
        if (lock)
            lock->unlock();
        throw Stopped();
    }
}

CameraAutoBrightnessHelper::Turn::~Turn()
{
    if (m_worker.m_lock)
        m_worker.m_lock->unlock();
}

void CameraAutoBrightnessHelper::stop()
{
    m_stopRequested = true;
    m_running = false;
}

void CameraAutoBrightnessHelper::doWork()
{
    m_running = true;
    m_gainScale = 1.0;
    try {
        if (!m_stopRequested)
            run();
    } catch (const Stopped&) {
        // Nothing more is written to the camera, that is all.
    } catch (...) {
        reportFailure(QStringLiteral("Autoadjust failed."),
                      QStringLiteral("CameraAutoBrightnessHelper::doWork"), adapterLogCategory());
    }
    m_running = false;
    emit AutoBrightnessFinished();
}

void CameraAutoBrightnessHelper::readLimits()
{
    const auto number = [this](const char* name) {
        return m_parameters->floatParameter(QLatin1String(name))->value();
    };
    if (isOldGeneration(*m_parameters)) {
        const auto integer = [this](const char* name) {
            return static_cast<double>(
                m_parameters->integerParameter(QLatin1String(name))->value());
        };
        m_gainScale = 10.0;
        m_gainLimits = {integer("AutoGainRawLowerLimit"), integer("AutoGainRawUpperLimit")};
        m_exposureLimits = {number("AutoExposureTimeAbsLowerLimit"),
                            number("AutoExposureTimeAbsUpperLimit")};
        return;
    }
    m_gainLimits = {number("AutoGainLowerLimit"), number("AutoGainUpperLimit")};
    m_exposureLimits = {number("AutoExposureTimeLowerLimit"), number("AutoExposureTimeUpperLimit")};
}

void CameraAutoBrightnessHelper::run()
{
    readLimits();
    double minimum = 0.0;
    double gain = 0.0;
    double maximum = 0.0;
    calibration()->GetGainRange(minimum, gain, maximum);
    // Exposure time alone may do where the gain stays higher than the lowest.
    calibration()->SetGain(minimum);
    // The first image may still have been exposed with the gain of before.
    QVector<QColor> discarded;
    calibration()->GetColorPatchValues(discarded, true);

    m_gainStage = false;
    bool reached = false;
    while (!m_stopRequested && m_running && !reached) {
        adjust();
        QThread::msleep(settlingMs);
        reached = std::abs(m_errorPercent) < tolerancePercent;
    }
}

void CameraAutoBrightnessHelper::adjust()
{
    const double ratio = ChartTargets().GrayPatchTargetLevel(false) / measurePeak();
    double gainMinimum = 0.0;
    double gain = 0.0;
    double gainMaximum = 0.0;
    calibration()->GetGainRange(gainMinimum, gain, gainMaximum);
    double exposureMinimum = 0.0;
    double exposure = 0.0;
    double exposureMaximum = 0.0;
    if (!calibration()->GetExposureTimeRange(exposureMinimum, exposure, exposureMaximum))
        throw Core::Exception::BaseException(
            QStringLiteral("The camera does not tell its exposure time."));

    m_errorPercent = (ratio - 1.0) * 100.0;
    if (m_gainStage)
        adjustGain(ratio, gain);
    else
        adjustExposure(ratio, gainMinimum, gain, exposure);
}

double CameraAutoBrightnessHelper::measurePeak()
{
    QVector<QColor> colors;
    calibration()->GetColorPatchValues(colors, true);
    const int index = ChartTargets().GrayPatchIndex();
    if (colors.size() <= index)
        throw Core::Exception::BaseException(
            QStringLiteral("The gray patch of the chart could not be measured."));
    const QColor& gray = colors.at(index);
    return std::max({static_cast<double>(gray.red()), static_cast<double>(gray.green()),
                     static_cast<double>(gray.blue()), 1.0});
}

bool CameraAutoBrightnessHelper::Limits::clamp(double& value) const
{
    if (value >= lowest && value <= highest)
        return false;
    value = std::min(std::max(value, lowest), highest);
    return true;
}

void CameraAutoBrightnessHelper::adjustExposure(double ratio, double gainMinimum, double gain,
                                                double exposure)
{
    if (gain > gainMinimum)
        calibration()->SetGain(gainMinimum);
    const double step = (ratio - 1.0) * damping;
    double newExposure = step * exposure + exposure;
    logStep(QStringLiteral("Error: %1, OldValue: %2, NewValue: %3")
                .arg(step)
                .arg(exposure)
                .arg(newExposure));
    m_gainStage = m_exposureLimits.clamp(newExposure);
    if (!calibration()->SetExposureTime(newExposure))
        throw refusal("exposure time", newExposure);
}

void CameraAutoBrightnessHelper::adjustGain(double ratio, double gain)
{
    const double added = std::log(ratio) * 10.0 * damping * m_gainScale;
    double newGain = gain + added;
    logStep(QStringLiteral("GainError: %1, OldValue: %2, NewValue: %3 Added: %4")
                .arg(ratio)
                .arg(gain)
                .arg(newGain)
                .arg(added));
    if (m_gainLimits.clamp(newGain))
        m_running = false;
    if (!calibration()->SetGain(newGain))
        throw refusal("gain", newGain);
}

} // namespace ColorCalibration
