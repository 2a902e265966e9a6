// SPDX-License-Identifier: Apache-2.0
// Where the viewer's cameras come from.
#include "camerasources.h"

#include <chrono>
#include <utility>

namespace Viewer {

using Cameras::HostCameraPtr;
using Cameras::GenICam::CameraFinder;
using Cameras::GenICam::CameraIdentity;
using Cameras::GenICam::GenicamCamera;

namespace {

/// Between the end of a search and the next one.
constexpr std::chrono::seconds pause(4);

/// An answer may get lost.
constexpr int patience = 2;

/// The packet size counts for cameras that are opened later, and for nothing else.
bool asksForOthers(const CameraSettings& settings, const CameraSettings& before)
{
    Cameras::GenICam::TransportSettings transport = settings.transport;
    transport.packetSize = before.transport.packetSize;
    return settings.backends != before.backends || transport != before.transport;
}

} // namespace

CameraSources::CameraSources(Cameras::CameraPool& pool, const DeviceSelectorService& selector,
                             QList<HostCameraPtr> emulated, QObject* parent)
    : QObject(parent)
    , m_pool(pool)
    , m_selector(selector)
    , m_emulated(std::move(emulated))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(pause);
    connect(&m_timer, &QTimer::timeout, this, &CameraSources::search);
    connect(&m_finder, &CameraFinder::found, this, &CameraSources::onFound);
}

CameraSources::~CameraSources() = default;

void CameraSources::apply(const CameraSettings& settings)
{
    const CameraSettings before = std::exchange(m_settings, settings);
    for (const KnownCamera& known : m_known.all())
        known.camera->setTransportSettings(settings.transport);
    if (std::exchange(m_isApplied, true) && !asksForOthers(settings, before))
        return;
    listEmulated();
    m_isOutdated = m_isSearching;
    m_isFirstSearch = wantsReal();
    if (wantsReal()) {
        listFixed();
        search();
    } else {
        m_timer.stop();
        unlistReal();
    }
    emit applied();
}

QList<HostCameraPtr> CameraSources::closedBy(const CameraSettings& settings) const
{
    QList<HostCameraPtr> closed;
    for (const HostCameraPtr& camera : m_pool.cameras()) {
        const Backends withoutIt =
            m_emulated.contains(camera) ? Backends::GenICam : Backends::Emulation;
        if (settings.backends == withoutIt && camera->isOpen())
            closed.append(camera);
    }
    return closed;
}

void CameraSources::listEmulated()
{
    for (const HostCameraPtr& camera : m_emulated)
        if (m_settings.backends == Backends::GenICam)
            m_pool.remove(camera);
        else
            m_pool.add(camera);
}

// Cameras at an address that is not in the settings any more are left to the next search.
void CameraSources::listFixed()
{
    for (const QString& address : qAsConst(m_settings.transport.addresses))
        list(know(Cameras::GenICam::cameraAt(address)), true);
}

void CameraSources::unlistReal()
{
    for (KnownCamera& known : m_known.all())
        list(known, false);
}

void CameraSources::search()
{
    if (!wantsReal() || m_isSearching)
        return;
    m_timer.stop();
    m_isSearching = true;
    m_finder.start(m_settings.transport);
}

void CameraSources::onFound(const QVector<CameraIdentity>& identities)
{
    m_isSearching = false;
    const bool isOutdated = std::exchange(m_isOutdated, false);
    if (!wantsReal())
        return;
    if (isOutdated)
        return search();
    for (KnownCamera& known : m_known.all())
        ++known.missed;
    for (const CameraIdentity& identity : identities)
        greet(identity);
    for (KnownCamera& known : m_known.all())
        if (known.missed > 0)
            miss(known);
    m_known.forgetLongAway();
    m_isFirstSearch = false;
    m_timer.start();
    emit searched();
}

bool CameraSources::isFixed(const QString& id) const
{
    return m_settings.transport.addresses.contains(id);
}

// Whatever stands at an address of the settings is the camera that they mean.
KnownCamera& CameraSources::know(const CameraIdentity& identity)
{
    return m_known.know(identity, isFixed(identity.id),
                        [&] { return GenicamCamera::create(identity, m_settings.transport); });
}

// What was only known by its address learns its name.
void CameraSources::greet(const CameraIdentity& identity)
{
    KnownCamera& known = know(identity);
    known.missed = 0;
    known.camera->setIdentity(identity);
    if (known.isListed)
        return;
    list(known, true);
    emit found(known.camera);
}

void CameraSources::miss(KnownCamera& known)
{
    const bool isSelected = m_selector.selected() == known.camera;
    if (!known.isListed || known.missed < patience || isSelected || known.camera->isOpen() ||
        isFixed(known.camera->identity().id))
        return;
    list(known, false);
    emit vanished(known.camera);
}

void CameraSources::list(KnownCamera& known, bool isListed)
{
    known.isListed = isListed;
    if (isListed)
        m_pool.add(known.camera);
    else
        m_pool.remove(known.camera);
}

} // namespace Viewer
