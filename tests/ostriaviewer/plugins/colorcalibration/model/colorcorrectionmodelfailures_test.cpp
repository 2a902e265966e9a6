// SPDX-License-Identifier: Apache-2.0
// Tests of what the model logs and answers when the camera fails.
#include "baseexception.h"
#include "colorcalibrationv1.h"
#include "expectedwrites.h"
#include "modeltest.h"
#include "patchcolorconversion.h"
#include "stepkey.h"

#include <QBuffer>
#include <QImage>
#include <QSignalSpy>

#include <stdexcept>

namespace {

using Model = ColorCalibration::ColorCorrectionModel;

struct Failing
{
    const char* function;
    const char* message;
    std::function<bool(Model&)> operation;
    const char* call; ///< the camera's call that fails
};

std::vector<Failing> failures()
{
    return {
        {"GrabImage", "Error: Failed to grab image.",
         [](Model& model) {
             QImage image;
             return model.GrabImage(image, true);
         },
         "grab"},
        {"LoadSettings", "Error: Load settings to camera failed.",
         [](Model& model) { return model.LoadSettings("text"); }, "load"},
        {"LoadSettings", "Error: Load settings to camera failed.",
         [](Model& model) { return model.LoadSettings("text"); }, "stop"},
        {"LoadSettings", "Error: Load settings to camera failed.",
         [](Model& model) {
             QBuffer file;
             file.setData("Gamma\t1\n");
             file.open(QIODevice::ReadOnly);
             return model.LoadSettingsFromDevice(&file);
         },
         "load"},
        {"SetNeutralSettings", "Error: Set neutral camera settings failed.",
         [](Model& model) { return model.SetNeutralSettings(); }, "Gamma"},
        {"SetNeutralSettings", "Error: Set neutral camera settings failed.",
         [](Model& model) { return model.SetNeutralSettings(); }, "stop"},
        {"RestoreSettingsBackup", "Error: Restore of camera settings failed.",
         [](Model& model) { return model.RestoreSettingsBackup(false); }, "load"},
        {"RestoreSettingsBackup", "Error: Restore of camera settings failed.",
         [](Model& model) { return model.RestoreSettingsBackup(true); }, "stop"},
        // A backup that fails leaves none.
        {"CreateSettingsBackup", "Error: Backup of camera settings failed.",
         [](Model& model) { return model.CreateSettingsBackup(false); }, "save"},
        {"CreateSettingsBackup", "Error: Backup of camera settings failed.",
         [](Model& model) { return model.CreateSettingsBackup(true); }, "stop"},
        {"ExecuteCalibrationAndApply", "Calibration failed.",
         [](Model& model) { return model.ExecuteCalibrationAndApply(); }, "Gamma"},
        {"ExecuteCalibrationAndApply", "Calibration failed.",
         [](Model& model) { return model.ExecuteCalibrationAndApply(); }, "stop"},
        {"ExecuteWhitebalance", "Whitebalance failed!",
         [](Model& model) { return model.ExecuteWhitebalance(); }, "BalanceRatio"},
        {"ExecuteWhitebalance", "Whitebalance failed!",
         [](Model& model) { return model.ExecuteWhitebalance(); }, "grab"},
        {"ExecuteWhitebalance", "Whitebalance failed!",
         [](Model& model) { return model.ExecuteWhitebalance(); }, "stop"},
    };
}

/// Operations without a message of their own: the second entry stands alone. Those that are missing
/// here work on what the model has measured, and ask neither camera nor file: GetGridPosition,
/// SetGridPosition, GetColorPatchTrapezoids, the initial, the target and the current colors, the
/// initial image. Nothing short of the end of memory makes them fail.
std::vector<Failing> failuresWithoutMessage()
{
    return {
        {"StopGrabbing", "", [](Model& model) { return model.StopGrabbing(); }, "stop"},
        {"GetColorPatchValues", "",
         [](Model& model) {
             QVector<QColor> colors;
             return model.GetColorPatchValues(colors, true) > 0;
         },
         "grab"},
        {"GetColorPatchValues", "",
         [](Model& model) { return model.ApplyInitialColorPatchValues(); }, "grab"},
        {"ApplyInitialCameraImageAndPatchValues", "",
         [](Model& model) { return model.ApplyInitialCameraImageAndPatchValues(); }, "grab"},
        {"SetGain", "", [](Model& model) { return model.SetGain(1.0); }, "Gain"},
        {"GetGain", "", [](Model& model) { return model.GetGain() > -1.0; }, "read value of Gain"},
        {"SetExposureTime", "", [](Model& model) { return model.SetExposureTime(20.0); },
         "ExposureTime"},
        {"GetExposureTime", "", [](Model& model) { return model.GetExposureTime() > -1.0; },
         "read value of ExposureTime"},
        {"GetExposureTimeRange", "",
         [](Model& model) {
             double a = 0.0;
             return model.GetExposureTimeRange(a, a, a);
         },
         "read maximum of ExposureTime"},
        {"GetGainRange", "",
         [](Model& model) {
             double a = 0.0;
             return model.GetGainRange(a, a, a);
         },
         "read maximum of Gain"},
        // Nothing is answered by these.
        {"ActivateMonoImage", "",
         [](Model& model) {
             model.ActivateMonoImage();
             return false;
         },
         "features"},
        {"DisableAutoFunctions", "",
         [](Model& model) {
             model.DisableAutoFunctions();
             return false;
         },
         "features"},
    };
}

/// What a file's driver does when the file goes away while it is read.
template <typename Exception>
class BrokenFile : public QIODevice
{
public:
    explicit BrokenFile(const Exception& exception)
        : m_exception(exception)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

protected:
    qint64 readData(char* /*data*/, qint64 /*size*/) override { throw m_exception; }
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    Exception m_exception;
};

class ModelFailureTest : public ModelTest
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(open());
        ASSERT_TRUE(m_model.CreateSettingsBackup(false));
        ASSERT_TRUE(m_model.CreateSettingsBackup(true));
        ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    }
    void TearDown() override
    {
        m_camera->features().beforeCall = nullptr;
        EXPECT_TRUE(m_model.Close());
    }

    template <typename Exception>
    QStringList entriesOf(const Failing& failing, const Exception& exception)
    {
        const LogRecorder log;
        m_camera->features().beforeCall = [&](const QString& call) {
            if (call.startsWith(QLatin1String(failing.call)))
                throw exception;
        };
        EXPECT_NO_THROW(EXPECT_FALSE(failing.operation(m_model))) << failing.function;
        return modelEntries(log);
    }

    /// Texts of entries that must come from the model, at level 2.
    static QStringList modelEntries(const LogRecorder& log)
    {
        QStringList texts;
        for (const LogEntry& entry : log.entries()) {
            EXPECT_EQ(entry.level, 2);
            EXPECT_EQ(entry.category,
                      "ostria.viewer.plugins.colorCalibration.colorCorrectionModel");
            texts << entry.text;
        }
        return texts;
    }

    void expectWords(const Failing& failing)
    {
        EXPECT_EQ(entriesOf(failing, Core::Exception::BaseException("the host's")),
                  expected(failing, ":the host's"));
        EXPECT_EQ(entriesOf(failing, std::runtime_error("the library's")),
                  expected(failing, ": the library's"));
        EXPECT_EQ(entriesOf(failing, 'x'), expected(failing, ": Unspecified exception occurred."));
    }

    static QStringList expected(const Failing& failing, const QString& tail)
    {
        QStringList lines{
            QStringLiteral("ColorCorrectionModelImpl::%1%2").arg(failing.function, tail)};
        if (*failing.message)
            lines.prepend(failing.message);
        return lines;
    }
};

TEST_F(ModelFailureTest, EachOperationHasItsWords)
{
    for (const auto& list : {failures(), failuresWithoutMessage()})
        for (const Failing& failing : list)
            expectWords(failing);
}

TEST_F(ModelFailureTest, EachChangeThatCannotBeReadHasItsWordsAndIsNotTold)
{
    const QSignalSpy exposures(&m_model, &Model::ExposureTimeValueChanged);
    const QSignalSpy gains(&m_model, &Model::GainValueChanged);
    const auto changeOf = [this](const char* feature) {
        return [this, feature](Model&) {
            m_camera->parameters().emitChanged(feature);
            return false;
        };
    };
    expectWords({"onExposureChanged", "", changeOf("ExposureTime"), "read value of ExposureTime"});
    expectWords({"onGainChanged", "", changeOf("Gain"), "read value of Gain"});
    m_camera->features().beforeCall = nullptr;
    ASSERT_TRUE(m_model.Close());
    use(oldCamera());
    ASSERT_TRUE(open());
    expectWords({"onGainRawChanged", "", changeOf("GainRaw"), "read value of GainRaw"});
    EXPECT_EQ(exposures.count(), 0);
    EXPECT_EQ(gains.count(), 0);
}

TEST_F(ModelFailureTest, ASettingsFileThatCannotBeReadHasItsWordsAndChangesNothing)
{
    const Failing failing{"LoadSettingsFromDevice", "", nullptr, ""};
    const auto entriesOfBroken = [this](const auto& exception) {
        const LogRecorder log;
        BrokenFile<std::decay_t<decltype(exception)>> file(exception);
        EXPECT_FALSE(m_model.LoadSettingsFromDevice(&file));
        return modelEntries(log);
    };
    m_camera->features().forget();
    EXPECT_EQ(entriesOfBroken(Core::Exception::BaseException("the host's")),
              expected(failing, ":the host's"));
    EXPECT_EQ(entriesOfBroken(std::runtime_error("the library's")),
              expected(failing, ": the library's"));
    EXPECT_EQ(entriesOfBroken('x'), expected(failing, ": Unspecified exception occurred."));
    EXPECT_EQ(writes(), QStringList());
}

TEST_F(ModelFailureTest, BrightnessThatCannotStartHasItsWords)
{
    // Open, but without features.
    m_camera->withParameters = false;
    EXPECT_FALSE(m_model.AutoAdjustGray80PercentPatch());
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Autoadjust failed.",
                           "2 ColorCorrectionModelImpl::AutoAdjustGray80PercentPatch:The camera "
                           "is closed or its connection is lost."}));
}

TEST_F(ModelFailureTest, AFailedCalibrationLeavesWhatItHasWritten)
{
    m_camera->features().forget();
    m_camera->features().change("Gamma", [](FakeFeature& one) { one.refuses = true; });
    EXPECT_FALSE(m_model.ExecuteCalibrationAndApply());
    // The engine by itself, on the colors that were measured.
    QVector<QColor> measured;
    ASSERT_EQ(m_model.GetColorPatchValues(measured, true), 24);
    ColorCalibration::ColorCalibrationV1 engine;
    engine.SetStepColors(ColorCalibration::StepKey::Original,
                         ColorCalibration::toPatchColors(measured, false));
    engine.ExecuteAll();
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    engine.GetWhiteBalance(red, green, blue);
    ColorCalibration::ColorMatrix matrix;
    engine.GetColorMatrix(matrix);
    ColorCalibration::ColorAdjustment adjustment;
    engine.GetColorAdjustment(adjustment);
    EXPECT_EQ(writes(), balanceWrites("BalanceRatio", red, green, blue) +
                            QStringList{"LightSourcePreset = Off"} + gainWrites(matrix) +
                            sectorWrites(adjustment));
}

TEST_F(ModelFailureTest, DetectedValuesThatCannotComeBackAreLogged)
{
    ASSERT_TRUE(m_model.StoreDetectedExposureAndGain());
    m_camera->withParameters = false;
    EXPECT_FALSE(m_model.RestoreDetectedExposureAndGain());
    EXPECT_EQ(logTexts(), QStringList{"2 ColorCorrectionModelImpl::RestoreDetectedExposureAndGain:"
                                      "The camera is closed or its connection is lost."});
}

TEST_F(ModelTest, TheGridsPositionThatCannotBeReadOrStoredIsLogged)
{
    const auto refuseWidth = [](const QString& call) {
        if (call == "read value of Width")
            throw std::runtime_error("no width");
    };
    m_camera->features().beforeCall = refuseWidth;
    EXPECT_TRUE(open()) << "a grid alone is no reason to refuse a camera";
    EXPECT_TRUE(m_model.Close());
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Failed to restore old grid position.",
                           "2 ColorCorrectionModelImpl::restoreLastGridPosition: no width",
                           "2 Failed to restore old grid position.",
                           "2 ColorCorrectionModelImpl::storeLastGridPosition: no width"}));
}

} // namespace
