// SPDX-License-Identifier: Apache-2.0
// The tool on a network camera with which something is wrong.
#include "calibrationsequence.h"
#include "cameras.h"
#include "emulatedhost.h"
#include "genicamcamera.h"
#include "neededfeatures.h"
#include "networkcameras.h"
#include "pseudoterminal.h"
#include "registerstore.h"
#include "terminalprogram.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QSet>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <utility>
#include <vector>

using namespace ColorCalibrate;

namespace {

constexpr std::chrono::seconds patience(60);

struct Missing
{
    int camera;
    std::string feature;
};

std::vector<Missing> withoutOneEach(int camera)
{
    std::vector<Missing> all;
    for (const std::string& feature : neededFeatures(camera))
        all.push_back({camera, feature});
    return all;
}

std::string featureName(const testing::TestParamInfo<Missing>& info)
{
    return info.param.feature;
}

/// Cameras without one of the features that the calibrator cannot do without.
class IncompleteCameras : public NetworkCameras, public testing::WithParamInterface<Missing>
{};

std::uint64_t addressOf(const Cameras::Emulation::RegisterStore& store, const QString& feature)
{
    return store.layout().address(store.table()->indexOf(feature));
}

/// A served camera that answers nothing any more once one register is read, until it is let go.
class SilentAt final : public Cameras::Emulation::IServedDevice
{
public:
    SilentAt(std::shared_ptr<IServedDevice> device, std::uint64_t address)
        : m_device(std::move(device))
        , m_address(address)
    {}

    void letGo()
    {
        const std::lock_guard lock(m_mutex);
        m_isLetGo = true;
        m_changed.notify_all();
    }

    Cameras::Emulation::ServedIdentity identity() const override { return m_device->identity(); }
    std::string description() const override { return m_device->description(); }
    void setReceiver(Receiver receiver) override { m_device->setReceiver(std::move(receiver)); }
    void stopAcquisition() override { m_device->stopAcquisition(); }
    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        if (address == m_address) {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [this] { return m_isLetGo; });
        }
        m_device->read(address, data, size);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        m_device->write(address, data, size);
    }

private:
    const std::shared_ptr<IServedDevice> m_device;
    const std::uint64_t m_address;
    std::mutex m_mutex; // guards all below
    std::condition_variable m_changed;
    bool m_isLetGo = false;
};

} // namespace

TEST_F(NetworkCameras, AreMissedWhereverTheyVanish)
{
    CameraSelection selection;
    selection.hasEmulated = false;
    selection.address = m_address;
    selection.packetSize = 9000;
    ToolCameras cameras({}, selection);
    const auto camera = cameras.all().first();
    const SequenceOptions options;
    constexpr int enough = 30;
    QString lastStep;
    for (int last = 0; last < enough && lastStep != QLatin1String("Collecting the results");
         ++last) {
        ASSERT_TRUE(camera->open()) << last << ": " << camera->lastErrorText().toStdString();
        camera->parameterCollection()
            ->floatParameter(QStringLiteral("ExposureTime"))
            ->setValue(20000.0);
        ColorCalibration::ColorCorrectionModel model;
        model.SetCameraStatusService(cameras.statusService());
        model.SetCameraControlService(cameras.controlService());
        QSet<QString> steps;
        CalibrationSequence sequence(
            model,
            [&](const QString& name) {
                lastStep = name;
                steps.insert(name);
                if (steps.size() > last)
                    vanish();
            },
            [] { return false; });
        try {
            sequence.run(camera, options);
            ADD_FAILURE() << lastStep.toStdString();
        } catch (const CommandError& error) {
            // Whether an opened camera answers is only known by the first access after that.
            if (last > 0) {
                EXPECT_STREQ(error.what(), "the camera has been disconnected")
                    << lastStep.toStdString();
            }
        }
        EXPECT_FALSE(camera->isOpen()) << lastStep.toStdString();
        camera->close();
        vanish();
        serveModel(servedModel());
    }
    EXPECT_EQ(lastStep.toStdString(), "Collecting the results");
}

TEST_F(NetworkCameras, AreCalibratedOrGivenBackWhereHalfOfThePacketsAreLost)
{
    setExposure(20000.0);
    const QString before = settings();
    m_server->losePackets(0.5);
    const Outcome outcome = runTool(atAddress("calibrate"));
    if (outcome.code == 0)
        return;
    expectFailure(outcome, 1, {QStringLiteral("; the camera's settings are as they were")});
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

// In the middle of it: neutral settings and a mono image.
TEST_F(NetworkCameras, AreGivenBackWhereImagesStopComingThrough)
{
    setExposure(20000.0);
    const QString before = settings();
    const auto format =
        m_served->parameterCollection()->enumerationParameter(QStringLiteral("PixelFormat"));
    QObject::connect(m_served.data(), &EmulatedCamera::cameraImageGrabbed, [&] {
        if (format->value().startsWith(QLatin1String("Mono")))
            m_server->losePackets(1.0);
    });
    const Outcome outcome = runTool(atAddress("calibrate"));
    expectFailure(outcome, 1,
                  {QStringLiteral("the camera delivered no image at the step \""),
                   QStringLiteral("; the camera's settings are as they were")});
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

// As where the computer has slept: they answer all the time, but obey nobody.
TEST_F(NetworkCameras, AreGivenBackWhereTheyHaveForgottenWhoControlsThem)
{
    setExposure(20000.0);
    const QString before = settings();
    const auto format =
        m_served->parameterCollection()->enumerationParameter(QStringLiteral("PixelFormat"));
    std::atomic<bool> isForgotten = false;
    QObject::connect(m_served.data(), &EmulatedCamera::cameraImageGrabbed, [&] {
        if (format->value().startsWith(QLatin1String("Mono")) && !isForgotten.exchange(true))
            m_server->forgetController();
    });
    const Outcome outcome = runTool(atAddress("calibrate"));
    expectFailure(outcome, 1, {QStringLiteral("; the camera's settings are as they were")});
    EXPECT_TRUE(isForgotten);
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

TEST_F(NetworkCameras, AreGivenBackWhereTheyComeBack)
{
    setExposure(20000.0);
    const QString before = settings();
    Terminal terminal;
    QProcess program;
    program.setStandardErrorFile(terminal.name());
    startProgram(program, folder.path(), atAddress("calibrate"));
    ASSERT_NO_FATAL_FAILURE(waitForLine(program, terminal, "Adjusting brightness"));
    ASSERT_NE(settings().toStdString(), before.toStdString());
    vanish();
    ASSERT_NO_FATAL_FAILURE(
        waitForLine(program, terminal, "Waiting for the camera, to restore its settings"));
    serve();
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), 1);
    const QByteArray text = terminal.text();
    EXPECT_TRUE(text.endsWith("\ncolorcalibrate: emA1920-60ucEMU (90010002): the camera has been "
                              "disconnected; the camera's settings are as they were\n"))
        << text.constData();
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

TEST_F(NetworkCameras, AreNotTakenForUnsupportedOnesWhereTheyVanishEarly)
{
    m_server.reset();
    const auto silent = std::make_shared<SilentAt>(
        Cameras::Emulation::serveEmulation(m_served),
        addressOf(*m_served->registers(), QStringLiteral("DeviceColorPipelineVersion")));
    m_server = std::make_unique<Cameras::Emulation::GigeServer>(silent, m_address.toStdString());
    const Outcome outcome = runTool(atAddress("calibrate"));
    silent->letGo();
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.err, "colorcalibrate: the camera \"emA1920-60ucEMU (90010002)\" has been "
                           "disconnected\n");
}

TEST_F(NetworkCameras, AreGivenBackWhereNoImageComesThrough)
{
    const QString before = settings();
    m_server->losePackets(1.0);
    const Outcome outcome = runTool(atAddress("calibrate"));
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(
        outcome.err,
        "colorcalibrate: emA1920-60ucEMU (90010002): the camera delivered no image at the step "
        "\"Taking the first image\"; check its cable, trigger and exposure time, and try "
        "again; the camera's settings are as they were\n");
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

TEST_F(NetworkCameras, SayThatTheyCannotBeReachedWhereHalfOfTheQuestionsAreLost)
{
    const QString before = settings();
    m_server->loseControlPackets(0.5);
    const Outcome outcome = runTool(atAddress("calibrate"));
    if (outcome.code == 0)
        return;
    expectFailure(outcome, 1, {QStringLiteral("camera")});
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

// In the middle of it. What gets through decides whether the settings can be given back.
TEST_F(NetworkCameras, SayWhatIsWrongWhereTheLineBecomesBad)
{
    setExposure(20000.0);
    const auto format =
        m_served->parameterCollection()->enumerationParameter(QStringLiteral("PixelFormat"));
    QObject::connect(m_served.data(), &EmulatedCamera::cameraImageGrabbed, [&] {
        if (format->value().startsWith(QLatin1String("Mono")))
            m_server->loseControlPackets(0.5);
    });
    const QString before = settings();
    const Outcome outcome = runTool(atAddress("calibrate"));
    if (outcome.code == 0) {
        EXPECT_NE(outcome.out, "");
        return;
    }
    const QString message = QString::fromStdString(outcome.err);
    EXPECT_EQ(outcome.code, 1) << outcome.err;
    const bool isSaidToBeRestored = message.contains(QLatin1String("settings are as they were"));
    EXPECT_NE(isSaidToBeRestored, message.contains(QLatin1String("COULD NOT BE RESTORED")))
        << outcome.err;
    if (isSaidToBeRestored) {
        EXPECT_EQ(settings().toStdString(), before.toStdString());
    }
}

TEST_F(NetworkCameras, AreRefusedWhileAnotherProgramControlsThem)
{
    Cameras::GenICam::TransportSettings transport;
    transport.packetSize = 9000;
    const auto other =
        Cameras::GenICam::GenicamCamera::create(Cameras::GenICam::cameraAt(m_address), transport);
    ASSERT_TRUE(other->open());
    const Outcome outcome = runTool(atAddress("calibrate"));
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.err,
              "colorcalibrate: the camera \"127.0.0.1\" could not be opened: The camera is being "
              "used by another application.\n");
    EXPECT_TRUE(other->isOpen());
    other->close();
    EXPECT_EQ(runTool(atAddress("list")).code, 0);
}

TEST_P(IncompleteCameras, AreGivenBackAndTheMissingFeatureIsNamed)
{
    const auto model = reduced(supportedModels().at(GetParam().camera));
    const QString feature = QString::fromStdString(GetParam().feature);
    serveModel(model, {feature});
    const QString before = settings();
    EXPECT_FALSE(before.contains(feature + QLatin1Char('\t')));
    const Outcome outcome = runTool(
        atAddress("calibrate") +
        QStringList{QStringLiteral("--grid"), QStringLiteral("70,50 410,50 70,250 410,250")});
    expectFailure(outcome, 1, {feature, model.name});
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}

INSTANTIATE_TEST_SUITE_P(First, IncompleteCameras, testing::ValuesIn(withoutOneEach(0)),
                         featureName);
INSTANTIATE_TEST_SUITE_P(Second, IncompleteCameras, testing::ValuesIn(withoutOneEach(1)),
                         featureName);
INSTANTIATE_TEST_SUITE_P(Third, IncompleteCameras, testing::ValuesIn(withoutOneEach(2)),
                         featureName);

TEST_F(NetworkCameras, AreCalibratedWithoutAMatrixAndTheUserIsTold)
{
    serveModel(servedModel(), {QStringLiteral("ColorTransformationValue")});
    setExposure(20000.0);
    const Outcome outcome = runTool(
        atAddress("calibrate") + QStringList{QStringLiteral("--exposure"), QStringLiteral("keep")});
    EXPECT_EQ(outcome.err,
              "The camera has no color matrix, so the computed one is not in the camera, and its "
              "colors stay less exact than they could be.\n");
    EXPECT_EQ(outcome.code, 0);
}

// The diagonal is what is left of 1, which is what the camera has.
TEST_F(NetworkCameras, AreCalibratedWithoutTheGainsThatTheyRefuseAndEachIsTold)
{
    setExposure(20000.0);
    m_served->refuseWrites(QStringLiteral("ColorTransformationValue"));
    const Outcome outcome = runTool(
        atAddress("calibrate") + QStringList{QStringLiteral("--exposure"), QStringLiteral("keep")});
    EXPECT_EQ(outcome.code, 0);
    QStringList gains;
    for (const QString& line : QString::fromStdString(outcome.err).split(QLatin1Char('\n'))) {
        EXPECT_TRUE(line.isEmpty() ||
                    line.contains(QLatin1String(" of the color matrix: it keeps 0 instead of ")))
            << line.toStdString();
        gains += line.section(QLatin1Char(' '), 3, 3);
    }
    EXPECT_EQ(gains, (QStringList{QStringLiteral("Gain01"), QStringLiteral("Gain02"),
                                  QStringLiteral("Gain10"), QStringLiteral("Gain12"),
                                  QStringLiteral("Gain20"), QStringLiteral("Gain21"), QString()}));
    const QJsonObject json =
        QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).object();
    EXPECT_NE(json[QLatin1String("colorMatrix")].toArray()[0].toArray()[1].toDouble(), 0.0)
        << "as computed";
    EXPECT_EQ(json[QLatin1String("results")]
                  .toObject()[QLatin1String("Calibrated")]
                  .toObject()[QLatin1String("Matrix")]
                  .toObject()[QLatin1String("Gain01")]
                  .toString(),
              QStringLiteral("0"))
        << "as the camera has it";
}

TEST_F(NetworkCameras, HaveTheirSettingsBackWhenTheProgramIsInterrupted)
{
    setExposure(20000.0);
    const QString before = settings();
    const WorkingInterrupt interrupt;
    QProcess program;
    program.start(QStringLiteral(COLORCALIBRATE_PROGRAM), atAddress("calibrate"));
    ASSERT_TRUE(program.waitForStarted());
    // In the middle of it: neutral settings and a mono image.
    const auto format =
        m_served->parameterCollection()->enumerationParameter(QStringLiteral("PixelFormat"));
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!format->value().startsWith(QLatin1String("Mono")) &&
           program.state() == QProcess::Running && std::chrono::steady_clock::now() < end)
        program.waitForFinished(5);
    ASSERT_NE(settings().toStdString(), before.toStdString());
    ASSERT_EQ(::kill(static_cast<pid_t>(program.processId()), SIGINT), 0);
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.readAllStandardError().toStdString(),
              "colorcalibrate: cancelled; the camera's settings are as they were\n");
    EXPECT_EQ(program.readAllStandardOutput().toStdString(), "");
    EXPECT_EQ(settings().toStdString(), before.toStdString());
}
