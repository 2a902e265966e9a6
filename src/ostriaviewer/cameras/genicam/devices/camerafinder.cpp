// SPDX-License-Identifier: Apache-2.0
// Looks for cameras while the program does something else.
#include "camerafinder.h"

#include "aside_p.h"
#include "discovery.h"

#include <mutex>

namespace Cameras::GenICam {

/// The way back to a finder that may have gone when the search ends.
struct CameraFinder::Return
{
    std::mutex mutex;
    CameraFinder* finder; ///< null when it has gone
};

CameraFinder::CameraFinder(QObject* parent)
    : QObject(parent)
    , m_return(std::make_shared<Return>())
{
    m_return->finder = this;
}

CameraFinder::~CameraFinder()
{
    const std::lock_guard lock(m_return->mutex);
    m_return->finder = nullptr;
}

void CameraFinder::start(const TransportSettings& settings)
{
    if (m_isLooking)
        return;
    m_isLooking = true;
    runAside([way = m_return, settings] {
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
