// SPDX-License-Identifier: Apache-2.0
// Where the viewer's cameras come from.
#pragma once

#include "camerafinder.h"
#include "camerapool.h"
#include "camerasettings.h"
#include "deviceselectorservice.h"
#include "knowncameras.h"

#include <QList>
#include <QObject>
#include <QTimer>

namespace Viewer {

/// Fills a pool with the cameras that the settings ask for.
///
/// Real ones are looked for again and again, on another thread. A camera that is not found any more
/// leaves the pool, unless it is open, selected, or has an address in the settings; when it comes
/// back it is the same object. Thread-bound: GUI thread.
class CameraSources final : public QObject
{
    Q_OBJECT

public:
    /// Pool and selector are lent as long as the object lives.
    /// \param emulated  the cameras of the emulation
    CameraSources(Cameras::CameraPool& pool, const DeviceSelectorService& selector,
                  QList<Cameras::HostCameraPtr> emulated, QObject* parent = nullptr);
    ~CameraSources() override;

    /// Changes the pool to what the settings ask for, where they ask for something else than
    /// before. Returns at once; what is found comes later.
    void apply(const CameraSettings& settings);

    /// The open cameras that apply would close.
    QList<Cameras::HostCameraPtr> closedBy(const CameraSettings& settings) const;

    const CameraSettings& settings() const { return m_settings; }

    /// Whether the first search since apply is still under way.
    bool isFirstSearch() const { return m_isFirstSearch; }

    /// Looks for cameras now. Does nothing if only emulated ones are wanted.
    void search();

signals:
    /// Other cameras are wanted from now on.
    void applied();
    void searched();
    void found(const Cameras::HostCameraPtr& camera);
    void vanished(const Cameras::HostCameraPtr& camera);

private:
    bool wantsReal() const { return m_settings.backends != Backends::Emulation; }
    bool isFixed(const QString& id) const;
    KnownCamera& know(const Cameras::GenICam::CameraIdentity& identity);
    void list(KnownCamera& known, bool isListed);
    void listEmulated();
    void listFixed();
    void unlistReal();
    void onFound(const QVector<Cameras::GenICam::CameraIdentity>& identities);
    void greet(const Cameras::GenICam::CameraIdentity& identity);
    void miss(KnownCamera& known);

    Cameras::CameraPool& m_pool;
    const DeviceSelectorService& m_selector;
    const QList<Cameras::HostCameraPtr> m_emulated;
    CameraSettings m_settings;
    Cameras::GenICam::CameraFinder m_finder;
    QTimer m_timer;
    KnownCameras m_known;
    bool m_isApplied = false; // settings have come
    bool m_isFirstSearch = false;
    bool m_isOutdated = false; // the search that runs asks for what is not wanted any more
    bool m_isSearching = false;
};

} // namespace Viewer
