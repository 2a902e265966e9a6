// SPDX-License-Identifier: Apache-2.0
// The wizard's order of calls, made without a window.
#include "calibrationsequence.h"

#include "exposuresearch.h"
#include "grid.h"
#include "icamerainfo.h"
#include "patchcolorconversion.h"
#include "patchcolors.h"
#include "patchdeltas.h"
#include "pixelformat.h"

#include <QEventLoop>
#include <QImage>
#include <QTimer>

#include <cmath>
#include <utility>

using ColorCalibration::ColorCorrectionModel;
using Core::CameraPoolComponents::CameraPtr;
using Core::CameraPoolComponents::ICameraInfo;

namespace ColorCalibrate {
namespace {

/// How far the gray patch may be from its goal, in percent, as the wizard's gauge has it.
constexpr double usableDeviation = 20.0;
constexpr int cancelPollMs = 100;

/// A run from above the limit of exposure ends there, too bright, and one from near the goal too
/// dark, before the gain has its turn; the next one goes on from there.
constexpr int mostBrightnessRuns = 3;

/// Further off than this on average, what was measured is hardly the chart.
constexpr double usableDeltaE = 8.0;

/// By how much a calibration may leave a camera worse that was calibrated before: noise alone.
constexpr double usableLoss = 1.0;

/// Why the automatic brightness has ended, without the entry that only says that it has.
QString reasonsOf(QStringList failures)
{
    failures.removeAll(QStringLiteral("Autoadjust failed."));
    return failures.join(QLatin1Char(' '));
}

} // namespace

CalibrationSequence::CalibrationSequence(ColorCorrectionModel& model,
                                         std::function<void(const QString& step)> progress,
                                         std::function<bool()> isCancelled,
                                         std::function<void(const QString& warning)> warn)
    : m_model(model)
    , m_progress(std::move(progress))
    , m_isCancelled(std::move(isCancelled))
    , m_warn(std::move(warn))
{}

SequenceResult CalibrationSequence::run(const CameraPtr& camera, const SequenceOptions& options)
{
    m_camera.reset();
    m_gridBefore.reset();
    m_isLost = false;
    QObject receiver;
    QObject::connect(&m_model, &ColorCorrectionModel::cameraRemoved, &receiver,
                     [this] { m_isLost = true; });
    QObject::connect(&m_model, &ColorCorrectionModel::Gray80PercentHitRateChanged, &receiver,
                     [this](double value) { m_hitRate = value; });
    try {
        open(camera);
        return calibrateOpened(options);
    } catch (...) {
        giveBack();
        throw;
    }
}

void CalibrationSequence::giveBack()
{
    m_model.StopGrabbing();
    m_model.RestoreSettingsBackup(false);
    // Closing keeps the grid for the next time, and this one may be to blame.
    if (m_gridBefore)
        m_model.SetGridPosition(*m_gridBefore);
    m_model.Close();
    m_camera.reset();
}

SequenceResult CalibrationSequence::calibrateOpened(const SequenceOptions& options)
{
    placeGrid(options);
    makeNeutral(options);
    if (options.adjustExposure)
        adjustBrightness(options);
    calibrate();
    SequenceResult result = measureOutcome();
    requireChart(result);
    stopIfCancelled();
    return result;
}

void CalibrationSequence::step(const char* name, const std::function<bool()>& call,
                               const char* failure)
{
    stopIfCancelled();
    m_progress(QLatin1String(name));
    m_log.clear();
    if (call())
        return;
    stopIfCancelled();
    throw CommandError(withReason(QLatin1String(failure)));
}

QString CalibrationSequence::withReason(const QString& message) const
{
    const QString reason = m_log.lastFailure();
    return reason.isEmpty() ? message : QStringLiteral("%1 (%2)").arg(message, reason);
}

void CalibrationSequence::settingsStep(const char* name, const std::function<bool()>& call,
                                       const char* failure)
{
    step(name, call, failure);
    for (const QString& refusal : m_log.failures())
        m_warn(refusal);
}

void CalibrationSequence::imageStep(const char* name, const std::function<bool()>& call,
                                    const char* failure)
{
    const auto callWithImage = [&] {
        const quint64 before = m_model.TakenImages();
        const bool succeeded = call();
        if (m_model.TakenImages() != before)
            return succeeded;
        stopIfCancelled();
        throw CommandError(
            withReason(QStringLiteral("the camera delivered no image at the step \"%1\"; check its "
                                      "cable, trigger and exposure time, and try again")
                           .arg(QLatin1String(name))));
    };
    step(name, callWithImage, failure);
}

void CalibrationSequence::stopIfCancelled() const
{
    if (m_isCancelled())
        throw Cancelled();
    // The word of the loss may still be on its way.
    if (m_isLost || (m_camera && !m_camera->isOpen()))
        throw CommandError(QStringLiteral("the camera has been disconnected"));
}

void CalibrationSequence::open(const CameraPtr& camera)
{
    // One that was open before and has closed has been lost.
    if (camera->isOpen())
        m_camera = camera;
    const auto info = camera.dynamicCast<ICameraInfo>();
    if (info)
        info->clearLastError();
    stopIfCancelled();
    m_progress(QStringLiteral("Opening the camera"));
    if (!m_model.Open(camera)) {
        stopIfCancelled();
        // The camera speaks of the way to it, the model of what failed behind that.
        const QString ownWords = info ? info->lastErrorText() : QString();
        throw CommandError(QStringLiteral("the camera could not be opened for calibration: %1")
                               .arg(ownWords.isEmpty() ? m_model.OpeningFailure() : ownWords));
    }
    m_camera = camera;
    m_gridBefore = m_model.GetGridPosition();
    // Before anything is changed, the exposure time included.
    step(
        "Keeping the camera's settings",
        [this] {
            m_model.StopGrabbing();
            return m_model.CreateSettingsBackup(false);
        },
        "the camera's settings could not be read");
    requireColor(*camera);
    requireBrightness();
}

// Whoever has neither would be told of a bad image.
void CalibrationSequence::requireBrightness()
{
    double lowest = 0.0;
    double value = 0.0;
    double highest = 0.0;
    const char* const name = "Looking for exposure time and gain";
    step(
        name, [&] { return m_model.GetExposureTimeRange(lowest, value, highest); },
        "it has no exposure time that can be read: ExposureTime, or ExposureTimeAbs in older "
        "cameras");
    step(
        name, [&] { return m_model.GetGainRange(lowest, value, highest); },
        "it has no gain that can be read: Gain or GainAbs, or GainRaw in older cameras");
}

void CalibrationSequence::placeGrid(const SequenceOptions& options)
{
    QImage image;
    // The very first image has 200 ms, whatever the exposure time is.
    const auto grab = [&] {
        return m_model.GrabImage(image, false) || m_model.GrabImage(image, false);
    };
    imageStep("Taking the first image", grab, "the camera delivered no image");
    if (options.grid) {
        requireInside(*options.grid, image.size());
        m_model.SetGridPosition(*options.grid);
        return;
    }
    ExposureSearch search(m_model, options.adjustExposure);
    const auto takeAnother = [&] {
        imageStep("Taking an image of another exposure time", grab,
                  "the camera delivered no image");
    };
    // In the dark noise passes for a chart, in glare what is left of the picture does.
    while (search.moveFrom(lightOf(image)))
        takeAnother();
    try {
        step(
            "Finding the chart", [&] { return m_model.SetGridPosition(findGrid(image)); },
            "the grid could not be set");
    } catch (const CommandError& error) {
        stopIfCancelled();
        throw CommandError(QString::fromUtf8(error.what()) + advice(lightOf(image)));
    }
}

void CalibrationSequence::makeNeutral(const SequenceOptions& options)
{
    step(
        "Keeping the camera's settings",
        [this] {
            m_model.StopGrabbing();
            return m_model.CreateSettingsBackup(true);
        },
        "the camera's settings could not be read");
    if (!options.previousSettings.isEmpty())
        settingsStep(
            "Loading previous settings",
            [&] { return m_model.LoadSettings(options.previousSettings); },
            "could not load previous settings");
    step(
        "Setting neutral settings", [this] { return m_model.SetNeutralSettings(); },
        "unable to set neutral settings");
    balanceWhite(options.adjustExposure);
    m_model.ActivateMonoImage();
    m_model.DisableAutoFunctions();
    readBrightness(options.adjustExposure);
}

// Writing back what was read shows whether it can be written at all.
void CalibrationSequence::readBrightness(bool writesBack)
{
    double lowest = 0.0;
    double value = 0.0;
    double highest = 0.0;
    step(
        "Reading exposure time and gain",
        [&] {
            return m_model.GetExposureTimeRange(lowest, value, highest) &&
                   (!writesBack || m_model.SetExposureTime(value));
        },
        "no initial parameters (min, max, value) for exposure time available");
    step(
        "Reading exposure time and gain",
        [&] {
            return m_model.GetGainRange(lowest, value, highest) &&
                   (!writesBack || m_model.SetGain(value));
        },
        "no initial parameters (min, max, value) for gain value available");
}

void CalibrationSequence::balanceWhite(bool mayChangeExposure)
{
    ExposureSearch search(m_model, mayChangeExposure);
    for (;;) {
        const quint64 imagesBefore = m_model.TakenImages();
        try {
            imageStep(
                "Balancing white", [this] { return m_model.ExecuteWhitebalance(); },
                "the calibration process failed because the image is either too bright or too "
                "dark; adjust the brightness and try again");
            return;
        } catch (const CommandError& error) {
            stopIfCancelled();
            if (m_model.TakenImages() == imagesBefore)
                throw;
            const Light light = lightOf(m_hitRate);
            if (!search.moveFrom(light))
                throw CommandError(QString::fromUtf8(error.what()) + advice(light));
        }
    }
}

void CalibrationSequence::adjustBrightness(const SequenceOptions& options)
{
    QString failure;
    for (int run = 0; run < mostBrightnessRuns; ++run) {
        const Brightness before = brightness();
        runBrightness(options);
        failure = reasonsOf(m_log.failures());
        // The worker ends by its limits too, and its last write comes after its last image.
        imageStep(
            "Checking brightness",
            [this] {
                QVector<QColor> colors;
                return m_model.GetColorPatchValues(colors, true) > 0;
            },
            "the gray patch could not be measured; is the whole chart in the image?");
        if (std::abs(m_hitRate - 100.0) < usableDeviation)
            return;
        // What has not moved stands at its limits.
        if (!failure.isEmpty() || brightness() == before)
            break;
    }
    throw CommandError(
        QStringLiteral("the gray patch stands at %1 percent of its target brightness and could not "
                       "be brought nearer by exposure time and gain; is the grid on the chart, and "
                       "the light neither too weak nor too strong?")
            .arg(m_hitRate, 0, 'f', 0) +
        (failure.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(failure)));
}

CalibrationSequence::Brightness CalibrationSequence::brightness() const
{
    return {m_model.GetExposureTime(), m_model.GetGain()};
}

void CalibrationSequence::runBrightness(const SequenceOptions& options)
{
    QEventLoop loop;
    QTimer poll;
    QTimer limit;
    limit.setSingleShot(true);
    bool hasFinished = false;
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (m_isCancelled() || m_isLost)
            loop.quit();
    });
    const auto onFinished = [&] {
        hasFinished = true;
        loop.quit();
    };
    QObject::connect(&m_model, &ColorCorrectionModel::AutoAdjustGray80PercentPatchFinished, &loop,
                     onFinished, Qt::QueuedConnection);
    step(
        "Adjusting brightness",
        [&] {
            if (!m_model.AutoAdjustGray80PercentPatch())
                return false;
            poll.start(cancelPollMs);
            limit.start(options.longestBrightnessRun);
            loop.exec();
            return hasFinished;
        },
        "the automatic brightness could not be started, or came to no end; does the camera's image "
        "follow its exposure time and gain?");
    stopIfCancelled();
}

void CalibrationSequence::calibrate()
{
    const auto restoreExposure = [this] {
        return m_model.RestoreDetectedExposureAndGain();
    };
    const char* const exposureFailure = "couldn't restore detected exposure and gain values";
    m_model.StopGrabbing();
    step(
        "Storing exposure time and gain", [this] { return m_model.StoreDetectedExposureAndGain(); },
        "couldn't store detected exposure and gain values");
    settingsStep(
        "Restoring the settings before calibration",
        [this] { return m_model.RestoreSettingsBackup(true); },
        "couldn't restore preneutral camera settings");
    step("Restoring exposure time and gain", restoreExposure, exposureFailure);
    imageStep(
        "Taking the image before calibration",
        [this] { return m_model.ApplyInitialCameraImageAndPatchValues(); },
        "couldn't apply initial camera image or set original patch color values");
    step(
        "Setting neutral settings", [this] { return m_model.SetNeutralSettings(); },
        "unable to set neutral settings");
    step("Restoring exposure time and gain", restoreExposure, exposureFailure);
    imageStep(
        "Measuring the patches", [this] { return m_model.ApplyInitialColorPatchValues(); },
        "couldn't apply initial values");
    m_measuredHitRate = m_hitRate;
    try {
        settingsStep(
            "Calibrating", [this] { return m_model.ExecuteCalibrationAndApply(); },
            "calibration process failed; is the grid on the chart, and the image neither too "
            "bright nor too dark?");
    } catch (const CommandError& error) {
        stopIfCancelled();
        throw CommandError(QString::fromUtf8(error.what()) + advice(lightOf(m_hitRate)));
    }
}

SequenceResult CalibrationSequence::measureOutcome()
{
    SequenceResult result;
    imageStep(
        "Measuring the outcome",
        [&] {
            QVector<QColor> fresh;
            m_model.GetColorPatchValues(fresh, true);
            m_model.GetCurrentColorPatchValues(result.currentColors);
            m_model.GetInitialColorPatchValues(result.initialColors);
            return result.currentColors.size() == ColorCalibration::PatchCount &&
                   result.initialColors.size() == ColorCalibration::PatchCount;
        },
        "the patches could not be measured; is the whole chart in the image, and large enough?");
    step(
        "Collecting the results",
        [&] {
            result.results = m_model.GetCalibrationResultsJson();
            return !result.results.isEmpty();
        },
        "the settings before and after calibration could not be read");
    result.grid = m_model.GetGridPosition();
    return result;
}

/// The model calibrates whatever the grid lies on; a chart comes out near to its targets.
void CalibrationSequence::requireChart(const SequenceResult& result)
{
    const double before =
        deltasToTargets(ColorCalibration::toPatchColors(result.initialColors, true)).meanDeltaE();
    const double after =
        deltasToTargets(ColorCalibration::toPatchColors(result.currentColors, true)).meanDeltaE();
    if (after < usableDeltaE && after < before + usableLoss)
        return;
    throw CommandError(
        QStringLiteral("the patches are off their targets by a mean Delta E of %1 after "
                       "calibration, %2 before; is the grid on the chart, and the chart evenly lit "
                       "and neither too bright nor too dark?")
            .arg(after, 0, 'f', 1)
            .arg(before, 0, 'f', 1) +
        adviceOnBrightness() + adviceOnPixelFormat(*m_camera));
}

QString CalibrationSequence::adviceOnBrightness() const
{
    if (std::abs(m_measuredHitRate - 100.0) < usableDeviation)
        return {};
    return QStringLiteral("; the gray patch stood at %1 percent of its target brightness, which "
                          "automatic exposure sees to")
        .arg(m_measuredHitRate, 0, 'f', 0);
}

} // namespace ColorCalibrate
