// SPDX-License-Identifier: Apache-2.0
// Tests of measuring, white balance and calibration by the model.
#include "colorcalibrationv1.h"
#include "expectedwrites.h"
#include "modeltest.h"
#include "patchcolorconversion.h"
#include "stepkey.h"

#include <QSignalSpy>

#include <functional>

using namespace ColorCalibration;

namespace {

using Model = ColorCorrectionModel;

/// What the engine makes of colours.
struct Outcome
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    ColorMatrix matrix;
    ColorAdjustment adjustment;
};

Outcome calibrate(const PatchColors& colors)
{
    ColorCalibrationV1 engine;
    engine.SetStepColors(StepKey::Original, colors);
    engine.ExecuteAll();
    Outcome outcome;
    engine.GetWhiteBalance(outcome.red, outcome.green, outcome.blue);
    engine.GetColorMatrix(outcome.matrix);
    engine.GetColorAdjustment(outcome.adjustment);
    return outcome;
}

std::string text(const QStringList& lines)
{
    return lines.join(QLatin1Char('\n')).toStdString();
}

class ModelCalibrationTest : public ModelTest
{
protected:
    PatchColors measured()
    {
        QVector<QColor> colors;
        m_model.GetColorPatchValues(colors, true);
        return toPatchColors(colors, false);
    }

    /// Colours of which each is told from all others; all of one brightness apart from red.
    static PatchColors numbered(double base)
    {
        PatchColors colors;
        for (int patch = 0; patch < PatchCount; ++patch)
            setRow(colors, patch, base + patch, 20.0, 10.0);
        return colors;
    }
};

TEST_F(ModelCalibrationTest, PatchValuesAreThoseOfTheImage)
{
    ASSERT_TRUE(open());
    const PatchColors expected = castColors();
    QVector<QColor> colors;
    ASSERT_EQ(m_model.GetColorPatchValues(colors, true), 24);
    for (int patch = 0; patch < PatchCount; ++patch) {
        // 16 bits are read as shares of 65536; the drawn value was cut to whole steps.
        EXPECT_NEAR(colors[patch].redF(), expected(patch, 0) / 256.0, 3e-5) << patch;
        EXPECT_NEAR(colors[patch].greenF(), expected(patch, 1) / 256.0, 3e-5) << patch;
        EXPECT_NEAR(colors[patch].blueF(), expected(patch, 2) / 256.0, 3e-5) << patch;
    }
}

TEST_F(ModelCalibrationTest, PatchValuesTakeANewImageUnlessTheCameraGrabs)
{
    ASSERT_TRUE(open());
    showChart(*m_camera, numbered(30.0));
    QVector<QColor> first;
    ASSERT_EQ(m_model.GetColorPatchValues(first, false), 24);
    EXPECT_EQ(m_camera->grabRequests, 1);

    m_camera->grabbing = true;
    showChart(*m_camera, numbered(90.0));
    m_camera->deliver();
    QVector<QColor> again;
    ASSERT_EQ(m_model.GetColorPatchValues(again, false), 24);
    EXPECT_EQ(again, first) << "the list of the last measurement";

    QVector<QColor> fresh;
    ASSERT_EQ(m_model.GetColorPatchValues(fresh, true), 24);
    EXPECT_NE(fresh, first);
    EXPECT_EQ(m_camera->grabRequests, 1) << "a camera that grabs is asked for nothing";
}

TEST_F(ModelCalibrationTest, ATransientFailureOfTheGrabLeavesTheLastImage)
{
    ASSERT_TRUE(open());
    QVector<QColor> first;
    ASSERT_EQ(m_model.GetColorPatchValues(first, true), 24);
    m_camera->delivery = Delivery::Refused;
    QVector<QColor> again;
    EXPECT_EQ(m_model.GetColorPatchValues(again, true), 24);
    EXPECT_EQ(again, first);
}

TEST_F(ModelCalibrationTest, NothingIsMeasuredOnAnImageOfOtherSettings)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(true));
    const QVector<std::function<bool()>> changes{
        [this] { return m_model.SetNeutralSettings(); },
        [this] { return m_model.RestoreSettingsBackup(true); },
        [this] { return m_model.LoadSettings("Gamma\t1\n"); },
    };
    for (const auto& change : changes) {
        m_camera->delivery = Delivery::AtOnce;
        ASSERT_TRUE(m_model.ApplyInitialCameraImageAndPatchValues());
        ASSERT_TRUE(change());
        m_camera->delivery = Delivery::Refused;
        EXPECT_FALSE(m_model.ApplyInitialColorPatchValues());
        QVector<QColor> colors;
        EXPECT_EQ(m_model.GetColorPatchValues(colors, true), 0);
    }
}

TEST_F(ModelCalibrationTest, ImagesAreCountedWhenTheyArrive)
{
    ASSERT_TRUE(open());
    const quint64 before = m_model.TakenImages();
    QVector<QColor> colors;
    m_model.GetColorPatchValues(colors, true);
    EXPECT_EQ(m_model.TakenImages(), before + 1);
    m_camera->delivery = Delivery::Refused;
    m_model.GetColorPatchValues(colors, true);
    EXPECT_EQ(m_model.TakenImages(), before + 1);
}

TEST_F(ModelCalibrationTest, AnotherCameraIsNeverMeasuredOnTheImageOfTheFirst)
{
    ASSERT_TRUE(open());
    QVector<QColor> colors;
    ASSERT_EQ(m_model.GetColorPatchValues(colors, true), 24);
    ASSERT_TRUE(m_model.Close());
    use(newCamera());
    ASSERT_TRUE(open());
    m_camera->delivery = Delivery::Refused;
    colors.clear();
    EXPECT_EQ(m_model.GetColorPatchValues(colors, true), 0);
    EXPECT_FALSE(m_model.ApplyInitialColorPatchValues());
    EXPECT_FALSE(m_model.ApplyInitialCameraImageAndPatchValues());
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelCalibrationTest, GrabImageGivesACopyForTheScreenAndTheHitRate)
{
    ASSERT_TRUE(open());
    PatchColors colors = castColors();
    setRow(colors, 19, 20.0, 151.0, 40.0);
    showChart(*m_camera, colors);
    const QSignalSpy rate(&m_model, &Model::Gray80PercentHitRateChanged);
    QImage image;
    ASSERT_TRUE(m_model.GrabImage(image, true));
    EXPECT_EQ(image.size(), QSize(120, 80));
    // The second patch of the last row: 151 / 256 is shown by its high byte.
    EXPECT_EQ(qGreen(image.pixel(36, 64)), 151);
    ASSERT_EQ(rate.count(), 1);
    EXPECT_EQ(rate.first().first().toDouble(), 100.0) << "151 / 256 * 255 is cut to 150";
    showChart(*m_camera, numbered(0.0));
    QImage next;
    ASSERT_TRUE(m_model.GrabImage(next, true));
    EXPECT_EQ(qGreen(image.pixel(36, 64)), 151) << "the first image does not change";
}

TEST_F(ModelCalibrationTest, TheHitRateOfAWhitePatchIsNotLimited)
{
    ASSERT_TRUE(open());
    PatchColors colors = castColors();
    dlib::set_rowm(colors, 19) = 255.0;
    showChart(*m_camera, colors);
    const QSignalSpy rate(&m_model, &Model::Gray80PercentHitRateChanged);
    QImage image;
    ASSERT_TRUE(m_model.GrabImage(image, false));
    EXPECT_DOUBLE_EQ(rate.first().first().toDouble(), 254.0 * 100.0 / 150.0);
    EXPECT_EQ(m_camera->timeouts(), QVector<int>{-1});
}

TEST_F(ModelCalibrationTest, WithoutAUsablePatchTheGrabSucceedsAndNoRateIsReported)
{
    ASSERT_TRUE(open());
    m_model.SetGridPosition(TrapezoidPoints({900, 900}, {950, 900}, {900, 950}, {950, 950}));
    const QSignalSpy rate(&m_model, &Model::Gray80PercentHitRateChanged);
    QImage image;
    EXPECT_TRUE(m_model.GrabImage(image, true));
    EXPECT_EQ(rate.count(), 0);
    EXPECT_FALSE(m_model.ApplyInitialColorPatchValues());
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelCalibrationTest, InitialImageAndColorsAreKept)
{
    ASSERT_TRUE(open());
    EXPECT_TRUE(m_model.ApplyInitialCameraImageAndPatchValues());
    QVector<QColor> initial;
    EXPECT_EQ(m_model.GetInitialColorPatchValues(initial), 24);
    showChart(*m_camera, numbered(50.0));
    QVector<QColor> now;
    m_model.GetColorPatchValues(now, true);
    QVector<QColor> later;
    EXPECT_EQ(m_model.GetInitialColorPatchValues(later), 24);
    EXPECT_EQ(later, initial);
    EXPECT_NE(now, initial);
    QImage image;
    EXPECT_TRUE(m_model.GetInitialCameraImage(image));
    EXPECT_EQ(image.size(), QSize(120, 80));
    m_camera->delivery = Delivery::Refused;
    EXPECT_FALSE(m_model.ApplyInitialCameraImageAndPatchValues());
    later.clear();
    m_model.GetInitialColorPatchValues(later);
    EXPECT_EQ(later, initial);
}

TEST_F(ModelCalibrationTest, CurrentColorsAreThoseOfTheLastFullMeasurement)
{
    ASSERT_TRUE(open());
    EXPECT_TRUE(m_model.ApplyInitialColorPatchValues());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    showChart(*m_camera, numbered(70.0));
    QVector<QColor> fresh;
    m_model.GetColorPatchValues(fresh, true);
    QVector<QColor> current;
    EXPECT_EQ(m_model.GetCurrentColorPatchValues(current), 24);
    EXPECT_EQ(current, fresh);
}

TEST_F(ModelCalibrationTest, WhiteBalanceWritesTheRatiosOfTheImage)
{
    ASSERT_TRUE(open());
    const Outcome expected = calibrate(measured());
    m_camera->grabbing = true;
    m_camera->features().forget();
    EXPECT_TRUE(m_model.ExecuteWhitebalance());
    EXPECT_FALSE(m_camera->grabbing);
    EXPECT_EQ(text(writes()),
              text(balanceWrites("BalanceRatio", expected.red, expected.green, expected.blue)));
    EXPECT_GT(expected.red, 1.0) << "there is a cast to remove";
}

TEST_F(ModelCalibrationTest, WhiteBalanceFailsWhereNothingCanBeMeasured)
{
    for (const double level : {0.0, 255.0}) {
        const LogRecorder log;
        open();
        PatchColors colors;
        colors = level;
        showChart(*m_camera, colors);
        m_camera->features().forget();
        EXPECT_FALSE(m_model.ExecuteWhitebalance()) << level;
        EXPECT_TRUE(writes().isEmpty());
        ASSERT_EQ(log.entries().size(), 2);
        EXPECT_EQ(log.entries().first().text, "Whitebalance failed!");
    }
}

TEST_F(ModelCalibrationTest, WhiteBalanceWithoutAnImageSaysSo)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.SetNeutralSettings());
    // Longer on its way than the first image may be.
    m_camera->delivery = Delivery::Never;
    m_camera->features().forget();
    EXPECT_FALSE(m_model.ExecuteWhitebalance());
    EXPECT_TRUE(writes().isEmpty());
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Whitebalance failed!",
                           "2 ColorCorrectionModelImpl::ExecuteWhitebalance:The camera delivered "
                           "no image in time, so there was nothing to measure. Check its cable, "
                           "trigger and exposure time, and try again; the first image has 200 ms, "
                           "each later one 5 s."}));
    m_camera->delivery = Delivery::AtOnce;
    EXPECT_TRUE(m_model.ExecuteWhitebalance());
}

TEST_F(ModelCalibrationTest, CalibrationWritesItsOutcomeInOrder)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    const Outcome expected = calibrate(measured());
    const QSignalSpy finished(&m_model, &Model::CalibrationFinished);
    m_camera->features().forget();
    EXPECT_TRUE(m_model.ExecuteCalibrationAndApply());
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(text(writes()),
              text(balanceWrites("BalanceRatio", expected.red, expected.green, expected.blue) +
                   QStringList{"LightSourcePreset = Off"} + gainWrites(expected.matrix) +
                   sectorWrites(expected.adjustment) + QStringList{"Gamma = 0.45"}));
}

TEST_F(ModelCalibrationTest, CalibrationOfAnOldCameraEndsWithItsSrgbGamma)
{
    use(oldCamera());
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    const Outcome expected = calibrate(measured());
    m_camera->features().forget();
    EXPECT_TRUE(m_model.ExecuteCalibrationAndApply());
    EXPECT_EQ(
        text(writes()),
        text(balanceWrites("BalanceRatioAbs", expected.red, expected.green, expected.blue) +
             QStringList{"ProcessedRawEnable = true verified", "LightSourceSelector = Custom"} +
             gainWrites(expected.matrix) +
             QStringList{"ProcessedRawEnable = true verified",
                         "ColorAdjustmentEnable = true verified"} +
             sectorWrites(expected.adjustment) +
             QStringList{"GammaSelector = User", "Gamma = 0.45", "GammaEnable = true verified",
                         "GammaSelector = sRGB", "GammaEnable = true verified"}));
}

TEST_F(ModelCalibrationTest, MissingColorsReachTheEngineAsBlack)
{
    ASSERT_TRUE(open());
    // Draws the lower right corner out of the image until the last patch alone has too few pixels.
    QVector<QColor> colors;
    for (int offset = 0; offset < 60 && colors.size() != 23; ++offset) {
        m_model.SetGridPosition(
            TrapezoidPoints({12, 8}, {108, 8}, {12, 72}, {108 + offset, 72 + offset}));
        colors.clear();
        m_model.GetColorPatchValues(colors, true);
    }
    ASSERT_EQ(colors.size(), 23);
    PatchColors padded;
    padded = 0.0;
    for (int patch = 0; patch < 23; ++patch)
        setRow(padded, patch, colors[patch].redF() * 255.0, colors[patch].greenF() * 255.0,
               colors[patch].blueF() * 255.0);
    const Outcome expected = calibrate(padded);
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    m_camera->features().forget();
    EXPECT_TRUE(m_model.ExecuteCalibrationAndApply());
    EXPECT_EQ(text(writes().mid(7, 18)), text(gainWrites(expected.matrix)));
}

TEST_F(ModelCalibrationTest, AMirroredGridCalibratesTheWrongColorsWithoutAWord)
{
    ASSERT_TRUE(open());
    m_model.SetGridPosition(TrapezoidPoints({108, 8}, {12, 8}, {108, 72}, {12, 72}));
    EXPECT_TRUE(m_model.ApplyInitialColorPatchValues());
    EXPECT_TRUE(m_model.ExecuteCalibrationAndApply());
    EXPECT_EQ(text(logTexts()), "");
}

TEST_F(ModelCalibrationTest, AGridBesideTheChartCalibratesTheWrongColorsWithoutAWord)
{
    ASSERT_TRUE(open());
    // The first column lies beside the chart by half of it, and all others on two patches each.
    m_model.SetGridPosition(TrapezoidPoints({4, 8}, {100, 8}, {4, 72}, {100, 72}));
    EXPECT_TRUE(m_model.ApplyInitialColorPatchValues());
    EXPECT_TRUE(m_model.ExecuteCalibrationAndApply());
    EXPECT_EQ(text(logTexts()), "");
}

TEST_F(ModelCalibrationTest, AGrayImageCannotBeCalibratedAndChangesNothing)
{
    ASSERT_TRUE(open());
    PatchColors gray;
    gray = 120.0;
    showChart(*m_camera, gray);
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    const QSignalSpy finished(&m_model, &Model::CalibrationFinished);
    m_camera->features().forget();
    EXPECT_FALSE(m_model.ExecuteCalibrationAndApply());
    EXPECT_EQ(finished.count(), 0);
    EXPECT_TRUE(writes().isEmpty());
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Calibration failed.",
                           "2 ColorCorrectionModelImpl::ExecuteCalibrationAndApply: Cannot "
                           "determine hue sector on gray image"}));
}

TEST_F(ModelCalibrationTest, WithoutMeasuredColorsCalibrationFails)
{
    ASSERT_TRUE(open());
    m_camera->features().forget();
    EXPECT_FALSE(m_model.ExecuteCalibrationAndApply());
    EXPECT_TRUE(writes().isEmpty());
    EXPECT_EQ(logTexts().first(), "2 Calibration failed.");
}

TEST_F(ModelCalibrationTest, TargetsCarryTheDisplaysCurve)
{
    QVector<QColor> targets;
    m_model.GetTargetColorPatchValues(targets);
    const PatchColors linear = ChartTargets().TargetColors();
    for (int patch = 0; patch < PatchCount; ++patch) {
        // IEC 61966-2-1
        const double value = linear(patch, 1) / 255.0;
        const double curve =
            value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1.0 / 2.4) - 0.055;
        EXPECT_NEAR(targets[patch].greenF(), curve, 2e-4) << patch;
    }
}

TEST_F(ModelCalibrationTest, OwesNothingOnceItIsKeptAndAllWithTheNextChange)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    const QVector<std::function<bool()>> changes{
        [this] { return m_model.SetNeutralSettings(); },
        [this] { return m_model.LoadSettings("Gamma\t1\n"); },
        [this] { return m_model.ExecuteWhitebalance(); },
    };
    for (const auto& change : changes) {
        ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
        ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
        EXPECT_FALSE(m_model.IsBackupOwed());
        ASSERT_TRUE(change());
        EXPECT_TRUE(m_model.IsBackupOwed());
    }
}

TEST_F(ModelCalibrationTest, ThatFailsBetweenItsWritesOwesTheBackup)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    const auto refuse = [this](bool refuses) {
        m_camera->features().change("Gamma", [&](FakeFeature& one) { one.refuses = refuses; });
    };
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    refuse(true);
    EXPECT_FALSE(m_model.ExecuteCalibrationAndApply());
    EXPECT_TRUE(m_model.IsBackupOwed()) << "without neutral settings before it";
    refuse(false);
    EXPECT_TRUE(m_model.ExecuteCalibrationAndApply());
    EXPECT_FALSE(m_model.IsBackupOwed());
    refuse(true);
    EXPECT_FALSE(m_model.ExecuteCalibrationAndApply());
    EXPECT_TRUE(m_model.IsBackupOwed()) << "what it has left is not the one that was kept";
}

TEST_F(ModelCalibrationTest, ThatIsTakenBackInPartOwesTheBackup)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.CreateSettingsBackup(false));
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    m_camera->features().change("Gamma", [](FakeFeature& one) { one.refuses = true; });
    EXPECT_TRUE(m_model.RestoreSettingsBackup(false));
    EXPECT_TRUE(m_model.IsBackupOwed());
}

TEST_F(ModelCalibrationTest, IsKeptForOneOpeningOnly)
{
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.ApplyInitialColorPatchValues());
    ASSERT_TRUE(m_model.ExecuteCalibrationAndApply());
    ASSERT_TRUE(m_model.Close());
    m_camera->features().change("TestPattern", [](FakeFeature& one) { one.value = "Ramp"; });
    ASSERT_TRUE(open());
    EXPECT_EQ(m_camera->features().get("TestPattern").value, "Off");
    ASSERT_TRUE(m_model.Close());
    EXPECT_EQ(m_camera->features().get("TestPattern").value, "Ramp");
}

} // namespace
