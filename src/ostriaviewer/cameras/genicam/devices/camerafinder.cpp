// SPDX-License-Identifier: Apache-2.0
// Looks for cameras while the program does something else.
#include "camerafinder.h"

#include "aside_p.h"
#include "discovery.h"

#include <memory>
#include <mutex>

namespace Cameras::GenICam {
namespace {

/// A finder that may have gone when the search ends.
struct Return
{
    std::mutex mutex;
    CameraFinder* finder;
};

} // namespace

CameraFinder::CameraFinder(QObject* parent)
    : QObject(parent)
{}

void CameraFinder::start(const TransportSettings& settings)
{
    if (m_isLooking)
        return;
    m_isLooking = true;
    const auto way = std::make_shared<Return>();
    way->finder = this;
    connect(this, &QObject::destroyed, [way] {
        const std::lock_guard lock(way->mutex);
        way->finder = nullptr;
    });
    runAside([way, settings] {
        const QVector<CameraIdentity> cameras = findNetworkCameras(settings) + findUsbCameras();
        const std::lock_guard lock(way->mutex);
        if (!way->finder)
            return;
        QMetaObject::invokeMethod(
            way->finder,
            [finder = way->finder, cameras] {
                finder->m_isLooking = false;
                emit finder->found(cameras);
            },
            Qt::QueuedConnection);
    });
}

} // namespace Cameras::GenICam
