// SPDX-License-Identifier: Apache-2.0
// Looks for cameras while the program does something else.
#include "camerafinder.h"

#include "aside_p.h"
#include "discovery.h"
#include "logging.h"

#include <exception>
#include <mutex>
#include <utility>

namespace Cameras::GenICam {

/// The way back to a finder that may have gone when the search ends.
struct CameraFinder::Return
{
    std::mutex mutex;
    CameraFinder* finder; ///< null when it has gone
};

namespace {

QVector<CameraIdentity> findEverywhere(const TransportSettings& settings)
{
    return findNetworkCameras(settings) + findUsbCameras();
}

} // namespace

CameraFinder::CameraFinder(QObject* parent)
    : CameraFinder(findEverywhere, parent)
{}

CameraFinder::CameraFinder(Search search, QObject* parent)
    : QObject(parent)
    , m_search(std::move(search))
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
    runAside([way = m_return, search = m_search, settings] {
        QVector<CameraIdentity> cameras;
        try {
            cameras = search(settings);
        } catch (const std::exception& error) {
            Core::Logging::createLogEntry(
                Core::Logging::Warning, Core::Logging::getCatId(QStringLiteral("Cameras")),
                tr("The search for cameras failed (%1). It is repeated soon.")
                    .arg(QString::fromUtf8(error.what())));
        }
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
