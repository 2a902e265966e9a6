// SPDX-License-Identifier: Apache-2.0
// The real cameras that the viewer has met.
#pragma once

#include "genicamcamera.h"

#include <QSharedPointer>

#include <cstddef>
#include <functional>
#include <list>

namespace Viewer {

/// A real camera, and whether it is there.
struct KnownCamera
{
    QSharedPointer<Cameras::GenICam::GenicamCamera> camera;
    int missed = 0; ///< searches in a row that did not find it
    bool isListed = false;
};

/// Keeps a camera that went, so that it is the same object when it comes back. Thread-bound.
class KnownCameras
{
public:
    static constexpr std::size_t mostAway = 32;

    using Make = std::function<QSharedPointer<Cameras::GenICam::GenicamCamera>()>;

    /// The camera that this is, or a new one. It stays where it is until it is forgotten.
    /// \param isFixed  whether whatever stands at this address is the same camera
    /// \param make     makes a camera that was not known
    KnownCamera& know(const Cameras::GenICam::CameraIdentity& identity, bool isFixed,
                      const Make& make);

    std::list<KnownCamera>& all() { return m_all; }

    /// Forgets those that have been missed longest, until no more than `mostAway` are neither
    /// listed nor open.
    void forgetLongAway();

private:
    std::list<KnownCamera> m_all;
};

} // namespace Viewer
