// SPDX-License-Identifier: Apache-2.0
// The one place that knows the names of camera parameters.
#include "camerajustify.h"

#include "baseexception.h"
#include "brightnessrun.h"
#include "genicamexception.h"
#include "logging.h"
#include "parameterwrites.h"
#include "reportfailure.h"
#include "sfncgeneration.h"

#include <QMutexLocker>

#include <array>
#include <cmath>
#include <utility>

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
const QString cameraNodeMap = QStringLiteral("@CameraDevice");

void log(const QString& text, Core::Logging::ELogLevel level = Core::Logging::Debug)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(adapterLogCategory());
    Core::Logging::createLogEntry(level, category, text);
}

/// The camera is asked once more: an answer that changes between two questions comes from a camera
/// that is going away.
void requireNewGeneration(const Core::ParameterCollection::IParameterCollection& parameters)
{
    if (isOldGeneration(parameters))
        throw GenICam::RuntimeException("Camera SFNC version is unsupported.");
}

/// A computation that went wrong must leave the camera as it is.
template <typename Values>
void requireFinite(const Values& values)
{
    for (const double value : values)
        if (!std::isfinite(value))
            throw Core::Exception::BaseException(
                QStringLiteral("A value for the camera is not a finite number."));
}

/// Writes the nine gains of the colour transformation.
class MatrixWriter
{
public:
    explicit MatrixWriter(Core::ParameterCollection::IParameterCollection& parameters)
        : m_selector(parameters.enumerationParameter(
              Name("@CameraDevice/ColorTransformationValueSelector")))
        , m_value(parameters.floatParameter(Name("@CameraDevice/ColorTransformationValue")))
    {}

    void writeRow(const ColorMatrix& matrix, int row) const
    {
        const int first = row == 0 ? 1 : 0;
        const int second = row == 2 ? 1 : 2;
        const double a = writeGain(row, first, matrix(row, first));
        const double b = writeGain(row, second, matrix(row, second));
        writeGain(row, row, 1.0 - a - b);
    }

private:
    /// \return  what the camera has made of it
    double writeGain(int row, int column, double gain) const
    {
        m_selector->trySetValue(QStringLiteral("Gain%1%2").arg(row).arg(column));
        m_value->trySetValue(gain);
        return m_value->valueOrDefault(0.0);
    }

    Core::ParameterCollection::EnumerationParameterPtr m_selector;
    Core::ParameterCollection::FloatParameterPtr m_value;
};

} // namespace

CameraJustify::CameraJustify(const CameraPtr& camera, QObject* parent)
    : QObject(parent)
    , m_camera(camera)
{}

CameraJustify::~CameraJustify() = default;

ParameterCollectionPtr CameraJustify::parameters() const
{
    const ParameterCollectionPtr collection =
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
    requireFinite(matrix);
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
    if (hasTransformation) {
        const MatrixWriter writer(*collection);
        for (int row = 0; row < 3; ++row)
            writer.writeRow(matrix, row);
    }
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
    requireFinite(adjustment);
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
    requireFinite(std::array<double, 3>{red, green, blue});
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
    const ParameterWrites write(parameters());
    write.guardedEntry(Name("TestImageSelector"), Name("Off"));
    write.guardedEntry(Name("TestPattern"), Name("Off"));
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
    connect(m_brightnessRun->worker(), &CameraAutoBrightnessHelper::AutoBrightnessFinished, this,
            &CameraJustify::AutoBrightnessFinished);
    m_brightnessRun->start();
}

void CameraJustify::StopAutoBrightness()
{
    const QMutexLocker guard(&m_brightnessRunMutex);
    m_brightnessRun.reset();
}

QString& CameraJustify::backup(bool initial)
{
    return initial ? m_initialBackup : m_backup;
}

void CameraJustify::CreateBackup(bool initial)
{
    backup(initial).clear();
    backup(initial) = SaveFeaturesToString();
}

void CameraJustify::RestoreBackup(bool initial)
{
    if (backup(initial).isEmpty())
        return;
    applyFeatures(backup(initial),
                  "Not all settings of the camera came back; the first that did not: %1");
}

QString CameraJustify::BackupText(bool initial) const
{
    return initial ? m_initialBackup : m_backup;
}

QString CameraJustify::SaveFeaturesToString()
{
    QString text;
    parameters()->saveFeatures(text, cameraNodeMap);
    return text;
}

void CameraJustify::LoadFeaturesFromString(const QString& text)
{
    applyFeatures(text, "Not all settings were loaded; the first that was not: %1");
}

void CameraJustify::applyFeatures(const QString& text, const char* remark)
{
    QString errors;
    parameters()->loadFeatures(text, errors, cameraNodeMap);
    if (!errors.isEmpty())
        log(QString::fromLatin1(remark).arg(errors.section(QLatin1Char('\n'), 0, 0)),
            Core::Logging::Warning);
}

void CameraJustify::StoreInUserSet(const QString& name, bool store, bool setAsDefault)
{
    const auto start = parameters()->enumerationParameter(Name("UserSetDefault"));
    const QString startBefore = start->isReadable() ? start->value() : QString();
    const UserSetChoice before = std::exchange(m_userSet, {name, store, setAsDefault});
    try {
        persistToUserSet();
    } catch (...) {
        m_userSet = before;
        if (setAsDefault && !startBefore.isEmpty())
            start->trySetValue(startBefore);
        throw;
    }
}

void CameraJustify::persistToUserSet()
{
    if (!m_userSet.isArmed)
        return;
    const ParameterCollectionPtr collection = parameters();
    collection->enumerationParameter(Name("UserSetSelector"))->setValue(m_userSet.name);
    if (m_userSet.isDefault)
        collection->enumerationParameter(Name("UserSetDefault"))->setValue(m_userSet.name);
    collection->commandParameter(Name("UserSetSave"))->execute();
}

} // namespace ColorCalibration
