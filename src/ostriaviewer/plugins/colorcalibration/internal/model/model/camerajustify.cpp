// SPDX-License-Identifier: Apache-2.0
// The one place that knows the names of camera parameters.
#include "camerajustify.h"

#include "baseexception.h"
#include "brightnessrun.h"
#include "colormatrixwriter.h"
#include "genicamexception.h"
#include "logging.h"
#include "parameterwrites.h"
#include "reportfailure.h"
#include "sfncgeneration.h"

#include <QMutexLocker>

#include <array>
#include <cmath>

using Core::CameraPoolComponents::CameraPtr;
using Core::ParameterCollection::ParameterCollectionPtr;
using Name = QLatin1String;

namespace ColorCalibration {
namespace {

constexpr int sectors = 6;

constexpr std::array<const char*, sectors> sectorNames{"Red",  "Yellow", "Green",
                                                       "Cyan", "Blue",   "Magenta"};

const Name processedRawEnable("@CameraDevice/ProcessedRawEnable");
const Name lightSourcePreset("@CameraDevice/LightSourcePreset|@CameraDevice/TvrLightSourcePreset");
const Name
    adjustmentEnable("@CameraDevice/ColorAdjustmentEnable|@CameraDevice/TvrColorAdjustmentEnable");
const Name adjustmentSelector(
    "@CameraDevice/ColorAdjustmentSelector|@CameraDevice/TvrColorAdjustmentSelector");
const Name adjustmentHue("@CameraDevice/ColorAdjustmentHue|@CameraDevice/TvrColorAdjustmentHue");
const Name adjustmentSaturation(
    "@CameraDevice/ColorAdjustmentSaturation|@CameraDevice/TvrColorAdjustmentSaturation");

void log(const QString& text, Core::Logging::ELogLevel level = Core::Logging::Debug)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(adapterLogCategory());
    Core::Logging::createLogEntry(level, category, text);
}

/// For collections that read the version from the camera each time it is asked for: an answer that
/// changes between two questions comes from a camera that is going away.
void requireNewGeneration(const Core::ParameterCollection::IParameterCollection& parameters)
{
    if (isOldGeneration(parameters))
        throw GenICam::RuntimeException("Camera SFNC version is unsupported.");
}

/// A computation that went wrong must leave the camera as it is.
/// \param feature  whose values they are
template <typename Values>
void requireFinite(const Values& values, Name feature)
{
    for (const double value : values)
        if (!std::isfinite(value))
            throw Core::Exception::BaseException(
                QStringLiteral("The measured colors give no usable %1, so the camera's was kept. "
                               "Check that the grid lies on the chart and that the chart is lit, "
                               "then calibrate again.")
                    .arg(feature));
}

} // namespace

CameraJustify::CameraJustify(CameraPtr camera, QObject* parent)
    : QObject(parent)
    , m_camera(std::move(camera))
{}

CameraJustify::~CameraJustify() = default;

ParameterCollectionPtr CameraJustify::parameters() const
{
    ParameterCollectionPtr collection =
        m_camera ? m_camera->parameterCollection() : ParameterCollectionPtr();
    if (!collection)
        throw Core::Exception::BaseException(
            QStringLiteral("The camera is closed or its connection is lost."));
    return collection;
}

void CameraJustify::SetBlackLevelNeutral()
{
    const ParameterCollectionPtr collection = parameters();
    const ParameterWrites write(collection);
    write.entry(Name("BlackLevelSelector"), Name("All"));
    if (isOldGeneration(*collection)) {
        write.verified(Name("BlackLevelRaw"), qint64{0});
        return;
    }
    requireNewGeneration(*collection);
    write.number(Name("BlackLevel"), 0.0);
}

void CameraJustify::SetGammaNeutral()
{
    WriteGamma(1.0, false);
}

void CameraJustify::WriteGamma(double gamma, bool enable)
{
    requireFinite(std::array<double, 1>{gamma}, Name("Gamma"));
    const ParameterCollectionPtr collection = parameters();
    const ParameterWrites write(collection);
    if (isOldGeneration(*collection)) {
        write.entry(Name("GammaSelector"), Name("User"));
        write.number(Name("Gamma"), gamma);
        write.verified(Name("GammaEnable"), enable);
    } else {
        requireNewGeneration(*collection);
        write.number(Name("Gamma"), gamma);
    }
    persistToUserSet();
}

void CameraJustify::WriteSrgbGamma(bool enable)
{
    const ParameterCollectionPtr collection = parameters();
    if (isOldGeneration(*collection)) {
        const ParameterWrites write(collection);
        write.entry(Name("GammaSelector"), Name("sRGB"));
        write.verified(Name("GammaEnable"), enable);
    }
    persistToUserSet();
}

void CameraJustify::WriteColorMatrix(const ColorMatrix& matrix)
{
    requireFinite(matrix, Name("ColorTransformationValue"));
    const ParameterCollectionPtr collection = parameters();
    const ParameterWrites write(collection);
    bool hasTransformation = true;
    if (isOldGeneration(*collection)) {
        hasTransformation = !collection->booleanParameter(processedRawEnable)->isEmpty();
        if (hasTransformation) {
            write.guardedVerified(processedRawEnable, true);
            write.entry(Name("@CameraDevice/LightSourceSelector"), Name("Custom"));
        }
    } else {
        requireNewGeneration(*collection);
        const auto preset = collection->enumerationParameter(lightSourcePreset);
        if (!preset->isEmpty())
            preset->setValue(Name("Off"));
    }
    const ColorMatrixWriter writer(*collection);
    if (hasTransformation)
        writer.write(matrix);
    const bool isLost = !hasTransformation || writer.isMissing();
    if (isLost && matrix != ColorMatrix(dlib::identity_matrix<double>(3)))
        log(Name("The camera has no color matrix, so the computed one is not in the camera, and "
                 "its colors stay less exact than they could be."),
            Core::Logging::Warning);
    persistToUserSet();
}

void CameraJustify::SetColorTransformationNeutral()
{
    WriteColorMatrix(dlib::identity_matrix<double>(3));
    const ParameterCollectionPtr collection = parameters();
    if (isOldGeneration(*collection))
        return;
    if (!ParameterWrites(collection).guardedEntry(lightSourcePreset, Name("Off")))
        log(Name("Couldn't get or write (Tvr)LightSourcePreset"));
}

void CameraJustify::WriteColorAdjustment(const ColorAdjustment& adjustment)
{
    requireFinite(dlib::rowm(adjustment, dlib::range(0, sectors - 1)), Name("ColorAdjustmentHue"));
    requireFinite(dlib::rowm(adjustment, dlib::range(sectors, 2 * sectors - 1)),
                  Name("ColorAdjustmentSaturation"));
    const ParameterCollectionPtr collection = parameters();
    if (isOldGeneration(*collection)) {
        const ParameterWrites write(collection);
        write.guardedVerified(processedRawEnable, true);
        write.guardedVerified(adjustmentEnable, true);
    }
    const auto hue = collection->floatParameter(adjustmentHue);
    const auto saturation = collection->floatParameter(adjustmentSaturation);
    const auto selector = collection->enumerationParameter(adjustmentSelector);
    if (isUsable(*hue) && isUsable(*saturation) && isUsable(*selector)) {
        for (int sector = 0; sector < sectors; ++sector) {
            selector->setValue(Name(sectorNames[static_cast<std::size_t>(sector)]));
            hue->setValue(adjustment(sector));
            saturation->setValue(adjustment(sectors + sector));
        }
    } else {
        log(Name("Couldn't get or write one of the following parameters: "
                 "(Tvr)ColorAdjustmentSelector, (Tvr)ColorAdjustmentSaturation, "
                 "(Tvr)ColorAdjustmentSelector"));
    }
    persistToUserSet();
}

void CameraJustify::SetColorAdjustmentNeutral()
{
    const ParameterCollectionPtr collection = parameters();
    if (isOldGeneration(*collection)) {
        ParameterWrites(collection).guardedVerified(adjustmentEnable, false);
        return;
    }
    requireNewGeneration(*collection);
    ColorAdjustment neutral;
    neutral = 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1;
    WriteColorAdjustment(neutral);
}

void CameraJustify::SetWhiteBalanceNeutral()
{
    WriteWhiteBalance(1.0, 1.0, 1.0);
}

void CameraJustify::WriteWhiteBalance(double red, double green, double blue)
{
    requireFinite(std::array<double, 3>{red, green, blue}, Name("BalanceRatio"));
    const ParameterCollectionPtr collection = parameters();
    const auto selector = collection->enumerationParameter(Name("BalanceRatioSelector"));
    const bool old = isOldGeneration(*collection);
    if (!old)
        requireNewGeneration(*collection);
    const auto ratio =
        collection->floatParameter(old ? Name("BalanceRatioAbs") : Name("BalanceRatio"));
    selector->setValue(Name("Red"));
    ratio->setValue(red);
    selector->setValue(Name("Blue"));
    ratio->setValue(blue);
    selector->setValue(Name("Green"));
    ratio->setValue(green);
    persistToUserSet();
}

void CameraJustify::SetHsbcNeutral()
{
    const ParameterWrites write(parameters());
    write.guardedNumber(Name("TvrHue"), 0.0);
    write.guardedNumber(Name("TvrSaturation"), 1.0);
    write.guardedNumber(Name("TvrBrightness"), 0.0);
    write.guardedNumber(Name("TvrContrast"), 0.0);
}

void CameraJustify::DisableLut()
{
    const ParameterWrites write(parameters());
    write.entry(Name("LUTSelector"), Name("Luminance"));
    write.verified(Name("LUTEnable"), false);
}

void CameraJustify::SetDemosaicingSimple()
{
    ParameterWrites(parameters()).guardedEntry(Name("DemosaicingMode"), Name("Simple"));
}

void CameraJustify::DisableAllAutoFunctions()
{
    const ParameterWrites write(parameters());
    write.tryEntry(Name("BalanceWhiteAuto"), Name("Off"));
    write.tryEntry(Name("TonalRangeAuto"), Name("Off"));
    write.tryEntry(Name("TonalRangeEnable"), Name("Off"));
    write.tryEntry(Name("TvrContrastMode"), Name("Linear"));
    DisableExposureAndGainAuto();
}

void CameraJustify::DisableExposureAndGainAuto()
{
    const ParameterWrites write(parameters());
    write.tryEntry(Name("ExposureAuto"), Name("Off"));
    write.tryEntry(Name("GainAuto"), Name("Off"));
}

void CameraJustify::DisableTestImage()
{
    const ParameterCollectionPtr collection = parameters();
    const ParameterWrites write(collection);
    for (const Name name : {Name("TestImageSelector"), Name("TestPattern")}) {
        const auto before = collection->enumerationParameter(name);
        const QString entry = before->isReadable() ? before->value() : QString();
        if (write.guardedEntry(name, Name("Off")) && !entry.isEmpty() && entry != Name("Off"))
            m_testImages.append({name, entry});
    }
}

void CameraJustify::RestoreTestImage()
{
    const auto replaced = std::exchange(m_testImages, {});
    for (const auto& [name, entry] : replaced)
        if (!parameters()->enumerationParameter(name)->trySetValue(entry))
            log(QStringLiteral(
                    "The camera's test image stays off: %1 cannot be set to \"%2\" again.")
                    .arg(name, entry),
                Core::Logging::Warning);
}

void CameraJustify::ActivateMonoPixelFormat()
{
    const ParameterWrites write(parameters());
    write.tryEntry(Name("PixelFormat"), Name("Mono8"));
    write.tryEntry(Name("PixelFormat"), Name("Mono12"));
}

void CameraJustify::StartAutoBrightness(CalibrationInterface* calibration, QRecursiveMutex* lock)
{
    const QMutexLocker guard(&m_brightnessRunMutex);
    StopAutoBrightness();
    m_brightnessRun = std::make_unique<BrightnessRun>(calibration, parameters(), lock);
    // The word of a run that is replaced may still be under way.
    connect(m_brightnessRun->worker(), &CameraAutoBrightnessHelper::AutoBrightnessFinished, this,
            [this, run = ++m_brightnessRuns] {
                if (run == m_brightnessRuns)
                    emit AutoBrightnessFinished();
            });
    m_brightnessRun->start();
}

void CameraJustify::StopAutoBrightness()
{
    const QMutexLocker guard(&m_brightnessRunMutex);
    m_brightnessRun.reset();
}

} // namespace ColorCalibration
