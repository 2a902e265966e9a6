// SPDX-License-Identifier: Apache-2.0
// What the viewer's cameras are doing, told in the GUI thread.
#pragma once

#include "camerapool.h"

#include <QObject>

namespace Viewer {

/// What a camera is doing.
enum class CameraState { Closed, Open, Acquiring, Recording };

/// The cameras of a pool, with their coming and going, changes of state and losses. Thread-bound:
/// GUI thread.
class CameraList final : public QObject
{
    Q_OBJECT

public:
    /// \param pool  lent as long as the list lives
    explicit CameraList(Cameras::CameraPool& pool, QObject* parent = nullptr);

    QList<Cameras::HostCameraPtr> cameras() const { return m_pool.cameras(); }
    Cameras::CameraPool& pool() const { return m_pool; }

    CameraState state(const Cameras::HostCameraPtr& camera) const;

    /// A state in the present language.
    static QString stateName(CameraState state);

    /// Lets stateChanged be emitted, for what changes a state besides the camera itself.
    void announce(const Cameras::HostCameraPtr& camera);

signals:
    void added(const Cameras::HostCameraPtr& camera);
    void removed(const Cameras::HostCameraPtr& camera);
    void stateChanged(const Cameras::HostCameraPtr& camera);
    void connectionLost(const Cameras::HostCameraPtr& camera);

private:
    void watch(const Cameras::HostCameraPtr& camera);

    Cameras::CameraPool& m_pool;
};

} // namespace Viewer
