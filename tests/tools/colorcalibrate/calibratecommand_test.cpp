// SPDX-License-Identifier: Apache-2.0
// "list" and "calibrate" on the emulated cameras.
#include "calibrationsequence.h"
#include "cameras.h"
#include "command.h"
#include "commandtest.h"
#include "emulatedcamera.h"
#include "emulatedhost.h"
#include "patchcolorconversion.h"
#include "patchdeltas.h"
#include "saving.h"
#include "settingsguard.h"

#include <QColor>
#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSettings>

#include <chrono>
#include <new>
#include <numeric>
#include <ostream>

using namespace ColorCalibrate;
using Cameras::Emulation::EmulatedCamera;

namespace {

class CalibrateCommand : public CommandTest
{
protected:
    static QJsonArray listed()
    {
        const Outcome outcome = runTool({QStringLiteral("list"), QStringLiteral("--json")});
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        return QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).array();
    }

    static QStringList namesOf(bool supported)
    {
        QStringList names;
        for (const QJsonValue& camera : listed())
            if (camera.toObject().value(QStringLiteral("supported")).toBool() == supported)
                names.append(camera.toObject().value(QStringLiteral("name")).toString());
        return names;
    }

    static Outcome calibrate(const QString& camera, const QStringList& options = {})
    {
        return runTool(
            QStringList{QStringLiteral("calibrate"), QStringLiteral("--camera"), camera} + options);
    }

    static QJsonObject calibrateJson(const QString& camera, const QStringList& options = {})
    {
        const Outcome outcome = calibrate(camera, options + QStringList{QStringLiteral("--json")});
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        return QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).object();
    }
};

/// One camera, with the settings that it has before anybody touches them, run through the sequence.
class FaultyCamera : public CalibrateCommand, public testing::WithParamInterface<const char*>
{
protected:
    FaultyCamera()
    {
        m_camera = m_cameras.all().at(1).dynamicCast<EmulatedCamera>();
        EXPECT_TRUE(m_camera->open());
        // Bright enough to be calibrated as it stands.
        m_camera->parameterCollection()
            ->floatParameter(QStringLiteral("ExposureTime"))
            ->setValue(20000.0);
        m_model.SetCameraStatusService(m_cameras.statusService());
        m_model.SetCameraControlService(m_cameras.controlService());
    }

    QString settings() const
    {
        QString text;
        m_camera->parameterCollection()->saveFeatures(text, QStringLiteral("@CameraDevice"));
        return text.section(QLatin1Char('\n'), 4);
    }

    QString runAndFail(const std::function<bool()>& isCancelled = [] { return false; })
    {
        CalibrationSequence sequence(
            m_model, [this](const QString& step) { m_steps.append(step); }, isCancelled);
        SequenceOptions options;
        options.adjustExposure = false;
        try {
            sequence.run(m_camera, options);
        } catch (const CommandError& error) {
            return QString::fromUtf8(error.what());
        }
        return {};
    }

    ToolCameras m_cameras;
    QSharedPointer<EmulatedCamera> m_camera;
    ColorCalibration::ColorCorrectionModel m_model;
    QStringList m_steps;
};

} // namespace

TEST_F(CalibrateCommand, ListsCamerasThatCanAndCannotBeCalibrated)
{
    EXPECT_GE(namesOf(true).size(), 3);
    EXPECT_GE(namesOf(false).size(), 1);
    for (const QJsonValue& camera : listed())
        EXPECT_EQ(
            camera.toObject().keys(),
            QStringList({QStringLiteral("backend"), QStringLiteral("model"), QStringLiteral("name"),
                         QStringLiteral("sfnc"), QStringLiteral("supported")}));
    const Outcome table = runTool({QStringLiteral("list")});
    EXPECT_EQ(table.code, 0);
    for (const QString& name : namesOf(true) + namesOf(false))
        EXPECT_TRUE(QString::fromStdString(table.out).contains(name)) << table.out;
}

TEST_F(CalibrateCommand, BringsEveryCameraNearTheChart)
{
    for (const QString& camera : namesOf(true)) {
        SCOPED_TRACE(camera.toStdString());
        const QJsonObject json = calibrateJson(camera);
        const auto meanDeltaE = [&](const char* when) {
            return json.value(QLatin1String(when))
                .toObject()
                .value(QStringLiteral("meanDeltaE"))
                .toDouble(1e9);
        };
        EXPECT_LE(meanDeltaE("after"), 3.0);
        EXPECT_LE(meanDeltaE("after"), meanDeltaE("before") / 3.0);
        EXPECT_EQ(json.value(QStringLiteral("camera")).toString(), camera);
        EXPECT_EQ(json.value(QStringLiteral("grid")).toArray().size(), 4);
        EXPECT_EQ(json.value(QStringLiteral("gamma")).toDouble(), 0.45);
        EXPECT_EQ(json.value(QStringLiteral("whiteBalance")).toArray().size(), 3);
    }
}

// With noise a run is a draw, and which one depends on how many frames the automatic brightness has
// let pass: GraysOfManyCalibrations asks what holds for those.
TEST_F(CalibrateCommand, KeepsGraysGray)
{
    for (auto camera : supportedModels()) {
        camera.sensor.noiseEnabled = false;
        EmulatedHost host(camera);
        ASSERT_TRUE(host.camera().open());
        CalibrationSequence sequence(
            host.model(), [](const QString&) {}, [] { return false; });
        const SequenceResult result = sequence.run(host.pointer(), {});
        const Deltas deltas =
            deltasToTargets(ColorCalibration::toPatchColors(result.currentColors, true));
        const auto& deltaC = deltas.deltaC;
        EXPECT_LE(std::accumulate(deltaC.begin() + 18, deltaC.end(), 0.0) / 6.0, 1.5)
            << camera.name.toStdString();
    }
}

TEST_F(CalibrateCommand, IsQuietWhereNobodyLooksOn)
{
    EXPECT_EQ(calibrate(namesOf(true).first()).err, "");
}

TEST_F(CalibrateCommand, RefusesCamerasItCannotCalibrateOrFind)
{
    expectFailure(calibrate(namesOf(false).first()), 1, {QStringLiteral("cannot be calibrated")});
    expectFailure(calibrate(QStringLiteral("no such camera")), 1,
                  {QStringLiteral("no such camera"), namesOf(true).first()});
    expectFailure(runTool({QStringLiteral("calibrate")}), 2, {QStringLiteral("--camera")});
    expectFailure(
        calibrate(QStringLiteral("x"), {QStringLiteral("--exposure"), QStringLiteral("so")}), 2,
        {QStringLiteral("--exposure")});
    expectFailure(calibrate(QStringLiteral("x"), {QStringLiteral("--grid"), QStringLiteral("1,2")}),
                  2, {QStringLiteral("four are expected")});
    expectFailure(calibrate(namesOf(true).first(),
                            {QStringLiteral("--address"), QStringLiteral("127.0.0.1")}),
                  2, {QStringLiteral("--address"), QStringLiteral("--camera")});
    const QStringList scene{QStringLiteral("--scene"), QStringLiteral("/no/such/image.png")};
    expectFailure(runTool(QStringList{QStringLiteral("calibrate"), QStringLiteral("--address"),
                                      QStringLiteral("127.0.0.1")} +
                          scene),
                  2, {QStringLiteral("--scene"), QStringLiteral("emulated")});
    expectFailure(
        calibrate(QStringLiteral("x"),
                  QStringList{QStringLiteral("--backend"), QStringLiteral("genicam")} + scene),
        2, {QStringLiteral("--scene"), QStringLiteral("emulated")});
    expectFailure(calibrate(namesOf(true).first(),
                            {QStringLiteral("--settings"), QStringLiteral("/no/such/file.cst")}),
                  1, {QStringLiteral("/no/such/file.cst")});
}

TEST_F(CalibrateCommand, StartsFromTheSettingsOfAPreviousCalibrationAtTheExposureThatItHas)
{
    const QString oldGeneration = QStringLiteral("Emulation 1920-40c");
    const auto meanDeltaE = [](const QJsonObject& json) {
        return json.value(QStringLiteral("after"))
            .toObject()
            .value(QStringLiteral("meanDeltaE"))
            .toDouble(1e9);
    };
    // Found once, and then what the camera starts with.
    const double found = meanDeltaE(
        calibrateJson(oldGeneration, {QStringLiteral("--save-settings"),
                                      path(QStringLiteral("saved")), QStringLiteral("--user-set"),
                                      QStringLiteral("UserSet1"), QStringLiteral("--default")}));
    QDirIterator files(path(QStringLiteral("saved")), {QStringLiteral("*.cst")}, QDir::Files,
                       QDirIterator::Subdirectories);
    ASSERT_TRUE(files.hasNext());
    const Outcome again = calibrate(
        oldGeneration, {QStringLiteral("--exposure"), QStringLiteral("keep"),
                        QStringLiteral("--settings"), files.next(), QStringLiteral("--json")});
    EXPECT_EQ(again.code, 0);
    EXPECT_EQ(again.err, "") << "all of it was loaded";
    EXPECT_NEAR(meanDeltaE(QJsonDocument::fromJson(QByteArray::fromStdString(again.out)).object()),
                found, 0.3)
        << "what was loaded is made neutral like everything else";
}

TEST_F(CalibrateCommand, RefusesSettingsFilesThatAreNone)
{
    const QString camera = namesOf(true).first();
    const QStringList files{
        writeFile(QStringLiteral("empty.cst"), {}),
        writeFile(QStringLiteral("text.cst"), "Gamma is 1\n"),
        writeFile(QStringLiteral("binary.cst"), QByteArray("\x7f\x00\x01\xff\xfe", 5)),
        writeFile(QStringLiteral("foreign.cst"), "NoSuchFeature\t1\n"),
    };
    for (const QString& file : files)
        expectFailure(calibrate(camera, {QStringLiteral("--settings"), file}), 1, {file});
}

TEST_F(CalibrateCommand, TellsWhichPreviousSettingsTheCameraDidNotTake)
{
    const QString file = writeFile(QStringLiteral("previous.cst"),
                                   QByteArrayLiteral("Gamma\t2\nGain\t1000\nNoSuch\t1\n"
                                                     "BlackLevel\tdark\n"));
    const Outcome outcome = calibrate(namesOf(true).at(1), {QStringLiteral("--settings"), file});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "A setting was not loaded: Line 2: Gain: 1000 is above the maximum 24.\n"
                           "A setting was not loaded: Line 3: the camera has no feature "
                           "\"NoSuch\".\n"
                           "A setting was not loaded: Line 4: BlackLevel: a number is expected.\n");
}

TEST_F(CalibrateCommand, SaysSoWhereThereIsNoChart)
{
    QImage scene(320, 200, QImage::Format_RGB32);
    scene.fill(QColor(120, 140, 90));
    ASSERT_TRUE(scene.save(path(QStringLiteral("green.png"))));
    const QStringList green{QStringLiteral("--scene"), path(QStringLiteral("green.png"))};
    const QStringList grid{QStringLiteral("--grid"),
                           QStringLiteral("300,200 1600,200 300,1000 1600,1000")};
    const QString camera = namesOf(true).first();
    expectFailure(calibrate(camera, green + grid), 1,
                  {QStringLiteral("settings are as they were")});
    scene.fill(Qt::black);
    ASSERT_TRUE(scene.save(path(QStringLiteral("black.png"))));
    expectFailure(
        calibrate(camera,
                  grid + QStringList{QStringLiteral("--exposure"), QStringLiteral("keep"),
                                     QStringLiteral("--scene"), path(QStringLiteral("black.png"))}),
        1, {QStringLiteral("settings are as they were")});
    expectFailure(calibrate(camera, {QStringLiteral("--grid"),
                                     QStringLiteral("10,10 300,10 10,200 300,200")}),
                  1, {QStringLiteral("grid"), QStringLiteral("settings are as they were")});
}

TEST_F(CalibrateCommand, RefusesAGridOutsideTheImage)
{
    expectFailure(
        calibrate(namesOf(true).first(),
                  {QStringLiteral("--grid"), QStringLiteral("10,10 5000,10 10,900 5000,900")}),
        1,
        {QStringLiteral("upper right corner (5000, 10) lies outside the image of 1920 x"),
         QStringLiteral("settings are as they were")});
}

TEST_F(CalibrateCommand, KeepsTheGridOfASuccessAlone)
{
    const auto kept = [] {
        QMap<QString, QVariant> all;
        const QSettings settings;
        for (const QString& key : settings.allKeys())
            all.insert(key, settings.value(key));
        return all;
    };
    const QString camera = namesOf(true).first();
    QSettings().clear();
    ASSERT_EQ(calibrate(camera).code, 0);
    const auto before = kept();
    ASSERT_EQ(before.size(), 4);
    EXPECT_EQ(
        calibrate(camera, {QStringLiteral("--grid"), QStringLiteral("10,10 300,10 10,200 300,200")})
            .code,
        1);
    EXPECT_EQ(kept(), before);
}

TEST_P(FaultyCamera, IsGivenBackAsItWasWhenAFeatureRefuses)
{
    const QString before = settings();
    m_camera->refuseWrites(QLatin1String(GetParam()));
    const QString message = runAndFail();
    EXPECT_FALSE(message.isEmpty());
    EXPECT_TRUE(message.contains(QLatin1String(GetParam()))) << message.toStdString();
    m_camera->refuseWrites(QLatin1String(GetParam()), -1);
    EXPECT_EQ(settings().toStdString(), before.toStdString());
    EXPECT_TRUE(m_camera->isOpen());
}

INSTANTIATE_TEST_SUITE_P(Features, FaultyCamera,
                         testing::Values("BlackLevel", "Gamma", "LUTEnable", "ColorAdjustmentHue",
                                         "ColorAdjustmentSaturation", "BalanceRatio",
                                         "DemosaicingMode"));

TEST_F(FaultyCamera, IsGivenBackAsItWasWhereverItIsCancelled)
{
    // A test image, which is switched off as soon as the model has the camera.
    const auto pattern =
        m_camera->parameterCollection()->enumerationParameter(QStringLiteral("TestPattern"));
    pattern->setValue(pattern->entries().last().name);
    ASSERT_NE(pattern->value().toStdString(), "Off");
    const QString before = settings();
    ASSERT_EQ(runAndFail().toStdString(), "");
    const int steps = m_steps.size();
    EXPECT_GE(steps, 12);
    ASSERT_TRUE(m_model.RestoreSettingsBackup(false));
    ASSERT_TRUE(m_model.Close());
    for (int last = 0; last < steps; ++last) {
        m_steps.clear();
        EXPECT_EQ(runAndFail([&] { return m_steps.size() > last; }), QStringLiteral("cancelled"));
        EXPECT_EQ(settings().toStdString(), before.toStdString()) << "after step " << last;
    }
}

TEST_F(FaultyCamera, IsGivenBackAsItWasWhenTheProgramRunsOutOfMemory)
{
    const QString before = settings();
    int stepsLeft = 6; // neutral settings and white balance are written by then
    CalibrationSequence sequence(
        m_model,
        [&](const QString& /*step*/) {
            if (--stepsLeft == 0)
                throw std::bad_alloc();
        },
        [] { return false; });
    EXPECT_THROW(sequence.run(m_camera, SequenceOptions()), std::bad_alloc);
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

TEST_F(FaultyCamera, IsReportedWhenItsConnectionBreaksAtAnyImage)
{
    for (int images = 1; images <= 5; ++images) {
        m_camera->faults().loseConnectionAfter(images);
        EXPECT_EQ(runAndFail().toStdString(), "the camera has been disconnected") << images;
        EXPECT_FALSE(m_camera->isOpen());
        m_camera->reconnect();
        ASSERT_TRUE(m_camera->open());
        m_camera->parameterCollection()
            ->floatParameter(QStringLiteral("ExposureTime"))
            ->setValue(20000.0);
    }
}

TEST_F(FaultyCamera, IsReportedWhenItDeliversNothing)
{
    const QString before = settings();
    m_camera->faults().loseFrames(-1);
    EXPECT_TRUE(runAndFail().contains(QLatin1String("delivered no image")));
    m_camera->faults().loseFrames(0);
    m_camera->faults().failFrames(-1);
    EXPECT_TRUE(runAndFail().contains(QLatin1String("delivered no image")));
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

TEST_F(FaultyCamera, IsRefusedWhileSomebodyElseHasIt)
{
    const auto handle = m_camera->takeExclusiveAccess();
    ASSERT_TRUE(handle);
    EXPECT_EQ(runAndFail().toStdString(),
              "the camera could not be opened for calibration: The camera is being used by another "
              "part of the program.");
}

TEST_F(FaultyCamera, IsOpenedByTheSequenceOrSaysWhyNot)
{
    m_camera->close();
    m_camera->faults().setTakenByAnother(true);
    EXPECT_EQ(runAndFail().toStdString(),
              "the camera could not be opened for calibration: The camera is being used by another "
              "application.");
    m_camera->faults().setTakenByAnother(false);
    m_camera->loseConnection();
    EXPECT_EQ(runAndFail().toStdString(),
              "the camera could not be opened for calibration: The camera does not answer.");
    m_camera->reconnect();
    // An error of before is not taken for that of now.
    m_camera->setLastError(QStringLiteral("something else"));
    m_camera->refuseWrites(QStringLiteral("TestPattern"));
    EXPECT_EQ(runAndFail().toStdString(),
              "the camera could not be opened for calibration: TestPattern: The camera refuses the "
              "value.");
    EXPECT_FALSE(m_camera->isOpen());
}

TEST_F(FaultyCamera, HasItsSettingsComparedAfterAFailure)
{
    m_camera->close();
    SettingsGuard guard(m_camera, std::chrono::milliseconds(0));
    EXPECT_TRUE(guard.restore().contains(QLatin1String("as they were")));
    const auto gamma = m_camera->parameterCollection()->floatParameter(QStringLiteral("Gamma"));
    const double before = gamma->value();
    gamma->setValue(before + 0.5);
    EXPECT_TRUE(guard.restore().contains(QLatin1String("as they were")));
    EXPECT_EQ(gamma->value(), before);
    gamma->setValue(before + 0.5);
    m_camera->refuseWrites(QStringLiteral("Gamma"));
    const QString remark = guard.restore();
    EXPECT_TRUE(remark.contains(QLatin1String("COULD NOT BE RESTORED"))) << remark.toStdString();
    EXPECT_TRUE(remark.contains(QLatin1String("Gamma"))) << remark.toStdString();
    m_camera->refuseWrites(QStringLiteral("Gamma"), -1);
    m_camera->loseConnection();
    const QString lost = guard.restore();
    EXPECT_TRUE(lost.contains(QLatin1String("COULD NOT BE RESTORED ("))) << lost.toStdString();
    EXPECT_TRUE(lost.contains(m_camera->lastErrorText().chopped(1))) << lost.toStdString();
    m_camera->reconnect();
    EXPECT_TRUE(guard.restore().contains(QLatin1String("as they were")));
    EXPECT_EQ(m_camera->parameterCollection()->floatParameter(QStringLiteral("Gamma"))->value(),
              before);
}

TEST_F(FaultyCamera, HasNoUserSetsWhereItIsAway)
{
    m_camera->loseConnection();
    SavingOptions saving;
    saving.userSet = QStringLiteral("UserSet1");
    try {
        resolveUserSet(m_camera, saving);
        ADD_FAILURE();
    } catch (const CommandError& error) {
        EXPECT_EQ(std::string(error.what()), "the camera \"" +
                                                 m_camera->displayName().toStdString() +
                                                 "\" has been disconnected");
    }
}
