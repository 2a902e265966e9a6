// SPDX-License-Identifier: Apache-2.0
// The tool on an emulated camera that it reaches through GigE Vision.
#include "calibrationsequence.h"
#include "emulatedhost.h"
#include "networkcameras.h"
#include "patchcolorconversion.h"
#include "patchdeltas.h"

#include <QJsonArray>
#include <QJsonObject>

#include <chrono>
#include <csignal>
#include <future>

using namespace ColorCalibrate;

namespace {

constexpr std::chrono::seconds patience(60);

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

// Without noise all images of a scene are alike, so that it does not matter how many are taken; a
// first one that is late on a busy machine is taken again.
TEST_F(NetworkCameras, AreCalibratedAsWellAsInProcess)
{
    CameraModel model = servedModel();
    model.sensor.noiseEnabled = false;
    serveModel(model);
    const QJsonObject overNetwork = runJson(atAddress("calibrate")).object();
    const double meanDeltaE = overNetwork.value(QStringLiteral("after"))
                                  .toObject()
                                  .value(QStringLiteral("meanDeltaE"))
                                  .toDouble(1e9);

    EmulatedHost host(model);
    CalibrationSequence sequence(
        host.model(), [](const QString&) {}, [] { return false; });
    const SequenceResult inProcess = sequence.run(host.pointer(), {});
    const Deltas deltas =
        deltasToTargets(ColorCalibration::toPatchColors(inProcess.currentColors, true));

    RecordProperty("overNetwork", std::to_string(meanDeltaE));
    EXPECT_LE(meanDeltaE, 3.0);
    EXPECT_DOUBLE_EQ(meanDeltaE, deltas.meanDeltaE());
    EXPECT_EQ(overNetwork.value(QStringLiteral("results")).toObject(), inProcess.results);
}

TEST_F(NetworkCameras, RefuseOptionsThatMeanNothing)
{
    const auto list = [](const char* option, const char* value) {
        return runTool({QStringLiteral("list"), QLatin1String(option), QLatin1String(value)});
    };
    expectFailure(list("--backend", "other"), 2, {QStringLiteral("--backend")});
    expectFailure(list("--address", "1.2.3"), 2, {QStringLiteral("--address")});
    expectFailure(list("--address", "1.2.3.400"), 2, {QStringLiteral("--address")});
    expectFailure(list("--address", "255.255.255.255"), 2, {QStringLiteral("--address")});
    expectFailure(list("--packet-size", "5"), 2, {QStringLiteral("--packet-size")});
    expectFailure(list("--address", "127.0.0.9"), 1, {QStringLiteral("127.0.0.9")});
    expectFailure(list("--interfaces", "lo"), 2,
                  {QStringLiteral("--interfaces"), QStringLiteral("genicam")});
    expectFailure(list("--packet-size", "1500"), 2,
                  {QStringLiteral("--packet-size"), QStringLiteral("genicam")});
    expectFailure(runTool(atAddress("list") +
                          QStringList{QStringLiteral("--interfaces"), QStringLiteral("lo")}),
                  2, {QStringLiteral("--interfaces"), QStringLiteral("--address")});
    expectFailure(runTool(atAddress("list") +
                          QStringList{QStringLiteral("--backend"), QStringLiteral("emulation")}),
                  2, {QStringLiteral("--backend"), QStringLiteral("--address")});
    expectFailure(
        runTool({QStringLiteral("list"), QStringLiteral("--backend"), QStringLiteral("genicam"),
                 QStringLiteral("--interfaces"), QStringLiteral("lo,nosuch")}),
        2, {QStringLiteral("nosuch"), QStringLiteral("there are lo")});
    expectFailure(
        runTool({QStringLiteral("serve"), QStringLiteral("--camera"), m_served->displayName(),
                 QStringLiteral("--address"), QStringLiteral("127.0.0.300")}),
        2, {QStringLiteral("--address")});
}

// Which of two would be changed must not be a matter of which answers first.
TEST_F(NetworkCameras, AreNotChosenByAModelThatTwoHave)
{
    const QString before = settings();
    expectFailure(
        runTool({QStringLiteral("calibrate"), QStringLiteral("--backend"), QStringLiteral("all"),
                 QStringLiteral("--interfaces"), QStringLiteral("lo"), QStringLiteral("--camera"),
                 m_served->modelName()}),
        1, {QStringLiteral("several cameras"), m_served->displayName()});
    EXPECT_EQ(settings(), before);
}

TEST_F(NetworkCameras, AreServedUntilTheProgramIsInterrupted)
{
    vanish();
    auto tool = std::async(std::launch::async, [this] {
        return runTool({QStringLiteral("serve"), QStringLiteral("--camera"),
                        QStringLiteral("Emulation 1920-60m"), QStringLiteral("--address"),
                        m_address});
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
    expectFailure(serveAt("nowhere"), 2, {QStringLiteral("nowhere")});
}
