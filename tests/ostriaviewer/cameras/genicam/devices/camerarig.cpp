// SPDX-License-Identifier: Apache-2.0
// One emulated camera, to be used in process or through GigE Vision.
#include "camerarig.h"

#include "servedemulation.h"

using namespace Cameras;
using Emulation::EmulatedCamera;
using GenICam::GenicamCamera;

namespace {

QSharedPointer<EmulatedCamera> makeCamera(const Emulation::CameraModel& model,
                                          const QTemporaryDir& folder, bool hasTransport,
                                          const QStringList& missingFeatures = {})
{
    Emulation::EmulationOptions options;
    options.settingsFolder = folder.path();
    options.hasTransport = hasTransport;
    options.missingFeatures = missingFeatures;
    return EmulatedCamera::create(model, options);
}

} // namespace

ProcessRig::ProcessRig(const Emulation::CameraModel& model)
    : m_camera(makeCamera(model, m_folder, false))
{}

void ProcessRig::vanish()
{
    m_camera->loseConnection();
}

void ProcessRig::comeBack()
{
    m_camera->reconnect();
}

void ProcessRig::takeByAnother()
{
    m_camera->faults().setTakenByAnother(true);
}

void ProcessRig::giveBack()
{
    m_camera->faults().setTakenByAnother(false);
}

NetworkRig::NetworkRig(const Emulation::CameraModel& model, const QStringList& missingFeatures)
    : m_served(makeCamera(model, m_folder, true, missingFeatures))
    , m_camera(GenicamCamera::create(GenICam::cameraAt(QString::fromLatin1(address())), settings()))
{
    EXPECT_TRUE(m_served->open()) << m_served->lastErrorText().toStdString();
    comeBack();
}

GenICam::TransportSettings NetworkRig::settings()
{
    GenICam::TransportSettings settings;
    settings.packetSize = 9000;
    return settings;
}

void NetworkRig::vanish()
{
    m_server.reset();
}

void NetworkRig::comeBack()
{
    m_device = std::make_shared<HeldDevice>(Emulation::serveEmulation(m_served));
    m_server = std::make_unique<Emulation::GigeServer>(m_device, address());
}

void NetworkRig::takeByAnother()
{
    m_other = GenicamCamera::create(GenICam::cameraAt(QString::fromLatin1(address())), settings());
    EXPECT_TRUE(m_other->open()) << m_other->lastErrorText().toStdString();
}

void NetworkRig::giveBack()
{
    m_other->close();
}

bool hasLoopback()
{
    return qEnvironmentVariableIsSet("OSTRIA_LOOPBACK");
}
