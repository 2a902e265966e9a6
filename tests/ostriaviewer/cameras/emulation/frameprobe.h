// SPDX-License-Identifier: Apache-2.0
// Receives a camera's images on the delivering thread, and lets a test wait for them.
#pragma once

#include "icamera.h"

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

/// Longer than anything takes that works.
constexpr std::chrono::seconds patience(60);

/// What has arrived is shared with the delivering thread, which may still be in the probe's slot
/// when the test ends the probe.
class FrameProbe
{
public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;
    using Receiver = std::function<void()>;

    /// \param receiver  called for each image after it was counted, on the delivering thread
    explicit FrameProbe(const Core::CameraPoolComponents::CameraPtr& camera, Receiver receiver = {})
        : m_connection(QObject::connect(
              camera.data(), &Core::CameraPoolComponents::ICamera::cameraImageGrabbed,
              [state = m_state, receiver = std::move(receiver)](
                  const CameraInfoPtr& info, const Ostria::CGrabResultPtr& result) {
                  state->add(info, result);
                  if (receiver)
                      receiver();
              }))
    {}
    ~FrameProbe() { QObject::disconnect(m_connection); }
    FrameProbe(const FrameProbe&) = delete;
    FrameProbe& operator=(const FrameProbe&) = delete;

    /// \return  whether so many images have come since the probe began
    bool waitFor(std::size_t count)
    {
        std::unique_lock lock(m_state->mutex);
        return m_state->arrived.wait_for(lock, patience,
                                         [&] { return m_state->results.size() >= count; });
    }

    std::vector<Ostria::CGrabResultPtr> results() const
    {
        const std::lock_guard lock(m_state->mutex);
        return m_state->results;
    }
    std::size_t count() const { return results().size(); }

    /// The camera that the last image named; null if it is gone.
    CameraInfoPtr camera() const
    {
        const std::lock_guard lock(m_state->mutex);
        return m_state->camera;
    }
    std::thread::id thread() const
    {
        const std::lock_guard lock(m_state->mutex);
        return m_state->thread;
    }

private:
    struct State
    {
        std::mutex mutex;
        std::condition_variable arrived;
        std::vector<Ostria::CGrabResultPtr> results;
        QWeakPointer<Core::CameraPoolComponents::ICameraInfo> camera;
        std::thread::id thread;

        void add(const CameraInfoPtr& info, const Ostria::CGrabResultPtr& result)
        {
            {
                const std::lock_guard lock(mutex);
                results.push_back(result);
                camera = info;
                thread = std::this_thread::get_id();
            }
            arrived.notify_all();
        }
    };

    const std::shared_ptr<State> m_state = std::make_shared<State>();
    QMetaObject::Connection m_connection;
};
