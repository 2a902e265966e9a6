// SPDX-License-Identifier: Apache-2.0
// Receives a camera's images on the delivering thread, and lets a test wait for them.
#pragma once

#include "icamera.h"

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

/// Longer than anything takes that works.
constexpr std::chrono::seconds patience(60);

class FrameProbe
{
public:
    using Receiver = std::function<void()>;

    /// \param receiver  called for each image after it was counted, on the delivering thread
    explicit FrameProbe(const Core::CameraPoolComponents::CameraPtr& camera, Receiver receiver = {})
        : m_receiver(std::move(receiver))
        , m_connection(QObject::connect(
              camera.data(), &Core::CameraPoolComponents::ICamera::cameraImageGrabbed,
              [this](const Core::CameraPoolComponents::CameraInfoPtr& info,
                     const Ostria::CGrabResultPtr& result) { receive(info, result); }))
    {}
    ~FrameProbe() { QObject::disconnect(m_connection); }
    FrameProbe(const FrameProbe&) = delete;
    FrameProbe& operator=(const FrameProbe&) = delete;

    /// \return  whether so many images have come since the probe began
    bool waitFor(std::size_t count)
    {
        std::unique_lock lock(m_mutex);
        return m_arrived.wait_for(lock, patience, [&] { return m_results.size() >= count; });
    }

    std::vector<Ostria::CGrabResultPtr> results() const
    {
        const std::lock_guard lock(m_mutex);
        return m_results;
    }
    std::size_t count() const { return results().size(); }

    Core::CameraPoolComponents::CameraInfoPtr camera() const
    {
        const std::lock_guard lock(m_mutex);
        return m_camera;
    }
    std::thread::id thread() const
    {
        const std::lock_guard lock(m_mutex);
        return m_thread;
    }

private:
    void receive(const Core::CameraPoolComponents::CameraInfoPtr& camera,
                 const Ostria::CGrabResultPtr& result)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_results.push_back(result);
            m_camera = camera;
            m_thread = std::this_thread::get_id();
        }
        m_arrived.notify_all();
        if (m_receiver)
            m_receiver();
    }

    const Receiver m_receiver;
    mutable std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::vector<Ostria::CGrabResultPtr> m_results;
    Core::CameraPoolComponents::CameraInfoPtr m_camera;
    std::thread::id m_thread;
    QMetaObject::Connection m_connection; // last: the probe is whole when the first image comes
};
