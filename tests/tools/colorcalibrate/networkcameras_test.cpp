// SPDX-License-Identifier: Apache-2.0
// The tool on an emulated camera that it reaches through GigE Vision.
#include "calibrationsequence.h"
#include "cameras.h"
#include "commandtest.h"
#include "emulatedcamera.h"
#include "gigeserver.h"
#include "servedemulation.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <chrono>
#include <csignal>
#include <future>
#include <thread>

using namespace ColorCalibrate;
using Cameras::Emulation::EmulatedCamera;
using Cameras::Emulation::GigeServer;

namespace {

constexpr std::chrono::seconds patience(60);
const QString address = QStringLiteral("127.0.0.1");

QStringList atAddress(const char* subcommand)
{
    return {QLatin1String(subcommand),       QStringLiteral("--address"), address,
            QStringLiteral("--packet-size"), QStringLiteral("9000"),      QStringLiteral("--json")};
}

class NetworkCameras : public CommandTest
{
protected:
    NetworkCameras() { QStandardPaths::setTestModeEnabled(true); }
    ~NetworkCameras() override { QStandardPaths::setTestModeEnabled(false); }

    void SetUp() override
    {
        if (!qEnvironmentVariableIsSet("OSTRIA_LOOPBACK"))
            GTEST_SKIP() << "the system gives no network of its own";
        Cameras::Emulation::EmulationOptions options;
        options.settingsFolder = path(QStringLiteral("served"));
        options.hasTransport = true;
        m_served = EmulatedCamera::create(Cameras::Emulation::everydayModels().at(1), options);
        ASSERT_TRUE(m_served->open());
        serve();
    }

    void serve()
    {
        m_server = std::make_unique<GigeServer>(Cameras::Emulation::serveEmulation(m_served),
                                                address.toStdString());
    }
    void vanish() { m_server.reset(); }

    /// Whoever lost the camera could not put its settings back.
    void loadFactorySettings() const
    {
        const auto parameters = m_served->parameterCollection();
        parameters->enumerationParameter(QStringLiteral("UserSetSelector"))
            ->setValue(QStringLiteral("Default"));
        parameters->commandParameter(QStringLiteral("UserSetLoad"))->execute();
    }

    static QJsonDocument runJson(const QStringList& arguments)
    {
        const Outcome outcome = runTool(arguments);
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        return QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out));
    }

    QSharedPointer<EmulatedCamera> m_served;
    std::unique_ptr<GigeServer> m_server;
};

} // namespace

TEST_F(NetworkCameras, AreListedByAddressAndByBroadcast)
{
    for (const QStringList& arguments :
         {atAddress("list"), QStringList{QStringLiteral("list"), QStringLiteral("--backend"),
                                         QStringLiteral("genicam"), QStringLiteral("--interfaces"),
                                         QStringLiteral("lo"), QStringLiteral("--json")}}) {
        const QJsonArray cameras = runJson(arguments).array();
        ASSERT_EQ(cameras.size(), 1);
        const QJsonObject camera = cameras.first().toObject();
        EXPECT_EQ(camera.value(QStringLiteral("backend")).toString(), QStringLiteral("genicam"));
        EXPECT_EQ(camera.value(QStringLiteral("model")).toString(), m_served->modelName());
        EXPECT_EQ(camera.value(QStringLiteral("name")).toString(), m_served->displayName());
        EXPECT_EQ(camera.value(QStringLiteral("sfnc")).toString(), QStringLiteral("2.3.0"));
        EXPECT_TRUE(camera.value(QStringLiteral("supported")).toBool());
    }
}

TEST_F(NetworkCameras, AreCalibratedAsWellAsInProcess)
{
    const auto meanDeltaE = [](const QJsonDocument& json) {
        return json.object()
            .value(QStringLiteral("after"))
            .toObject()
            .value(QStringLiteral("meanDeltaE"))
            .toDouble(1e9);
    };
    const double overNetwork = meanDeltaE(runJson(atAddress("calibrate")));
    const double inProcess =
        meanDeltaE(runJson({QStringLiteral("calibrate"), QStringLiteral("--camera"),
                            m_served->displayName(), QStringLiteral("--json")}));
    RecordProperty("overNetwork", std::to_string(overNetwork));
    RecordProperty("inProcess", std::to_string(inProcess));
    EXPECT_LE(overNetwork, 3.0);
    EXPECT_NEAR(overNetwork, inProcess, 0.1);
}

TEST_F(NetworkCameras, AreMissedWhereverTheyVanish)
{
    CameraSelection selection;
    selection.hasEmulated = false;
    selection.address = address;
    selection.packetSize = 9000;
    ToolCameras cameras({}, selection);
    const auto camera = cameras.all().first();
    SequenceOptions options;
    options.adjustExposure = false;
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
        int step = 0;
        CalibrationSequence sequence(
            model,
            [&](const QString& name) {
                lastStep = name;
                if (step++ == last)
                    vanish();
            },
            [] { return false; });
        EXPECT_THROW(sequence.run(camera, options), CommandError) << lastStep.toStdString();
        camera->close();
        vanish();
        loadFactorySettings();
        serve();
    }
    EXPECT_EQ(lastStep.toStdString(), "Collecting the results");
}

TEST_F(NetworkCameras, RefuseOptionsThatMeanNothing)
{
    const auto list = [](const char* option, const char* value) {
        return runTool({QStringLiteral("list"), QLatin1String(option), QLatin1String(value)});
    };
    expectFailure(list("--backend", "other"), 2, {QStringLiteral("--backend")});
    expectFailure(list("--address", "1.2.3"), 2, {QStringLiteral("--address")});
    expectFailure(list("--address", "1.2.3.400"), 2, {QStringLiteral("--address")});
    expectFailure(list("--packet-size", "5"), 2, {QStringLiteral("--packet-size")});
    expectFailure(list("--address", "127.0.0.9"), 1, {QStringLiteral("127.0.0.9")});
}

TEST_F(NetworkCameras, AreServedUntilTheProgramIsInterrupted)
{
    vanish();
    auto tool = std::async(std::launch::async, [] {
        return runTool({QStringLiteral("serve"), QStringLiteral("--camera"),
                        QStringLiteral("Emulation 1920-60m"), QStringLiteral("--address"),
                        address});
    });
    const auto end = std::chrono::steady_clock::now() + patience;
    Outcome listed = runTool(atAddress("list"));
    while (listed.code != 0 && std::chrono::steady_clock::now() < end)
        listed = runTool(atAddress("list"));
    EXPECT_NE(listed.out.find("Emulation 1920-60m"), std::string::npos) << listed.err;
    std::raise(SIGINT);
    const Outcome served = tool.get();
    EXPECT_EQ(served.code, 0) << served.err;
    EXPECT_NE(served.out.find("127.0.0.1"), std::string::npos);
}

TEST_F(NetworkCameras, AreNotServedWhereTheAddressIsTakenOrForeign)
{
    const auto serveAt = [](const char* place) {
        return runTool({QStringLiteral("serve"), QStringLiteral("--camera"),
                        QStringLiteral("Emulation 1920-60m"), QStringLiteral("--address"),
                        QLatin1String(place)});
    };
    expectFailure(serveAt("127.0.0.1"), 1, {QStringLiteral("127.0.0.1")});
    expectFailure(serveAt("192.0.2.1"), 1, {QStringLiteral("192.0.2.1")});
    expectFailure(serveAt("nowhere"), 1, {QStringLiteral("nowhere")});
}
