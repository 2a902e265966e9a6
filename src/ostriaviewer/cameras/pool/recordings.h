// SPDX-License-Identifier: Apache-2.0
// Which cameras are being recorded, and how that is ended.
#pragma once

#include <functional>
#include <map>
#include <mutex>

namespace Cameras {

class HostCamera;

/// What the host's services know of recordings, whoever makes them. Thread-safe.
class Recordings
{
public:
    /// Ends a recording; called on the thread that calls stopAll.
    using Stop = std::function<void()>;

    /// \param camera  counts as recorded until end; not followed
    void begin(const HostCamera* camera, Stop stop);
    void end(const HostCamera* camera);

    bool isRecording(const HostCamera* camera) const;

    /// Asks for the end of all recordings. They count as ended when whoever makes them says so.
    void stopAll();

private:
    mutable std::mutex m_mutex;
    std::map<const HostCamera*, Stop> m_running;
};

} // namespace Cameras
