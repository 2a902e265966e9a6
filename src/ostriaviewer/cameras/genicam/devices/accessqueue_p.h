// SPDX-License-Identifier: Apache-2.0
// Accesses to a camera, without those who ask having to wait for a camera that has gone.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace Cameras::GenICam {

/// Carries out work one after the other, on a thread of its own. Thread-safe.
class AccessQueue
{
public:
    /// What it needs must live as long as the function does, which may be longer than the call of
    /// run. Must not throw.
    using Work = std::function<void()>;

    enum class Outcome {
        Done,
        Abandoned, ///< nobody waits for anything any more
        Late       ///< the patience is over; only work that has begun may still be done
    };

    AccessQueue();

    /// Abandons what is left, and waits as finish does.
    ~AccessQueue();
    AccessQueue(const AccessQueue&) = delete;
    AccessQueue& operator=(const AccessQueue&) = delete;

    /// Waits until the work is done.
    /// \param patience  after which it returns anyway; at once, if somebody else has lost patience
    ///                  with work that is still under way. Is counted by Patience::failures
    Outcome run(Work work, std::optional<std::chrono::milliseconds> patience);

    /// Lets everybody return who waits or will ask. Work that has not begun is dropped.
    void abandon();

    bool isAbandoned() const;

    /// Waits for the work that has begun. Only after abandon.
    void finish();

private:
    struct Job
    {
        std::uint64_t number;
        Work work;
    };

    bool isDone(std::uint64_t number) const { return m_done >= number; }
    void giveUp(std::uint64_t number);
    void loop();

    mutable std::mutex m_mutex; // guards all below
    std::condition_variable m_changed;
    std::deque<Job> m_jobs;
    std::uint64_t m_asked = 0;
    std::uint64_t m_begun = 0;
    std::uint64_t m_done = 0;
    std::uint64_t m_late = 0; ///< the last one that somebody has waited for too long
    bool m_isAbandoned = false;

    std::thread m_thread; // last, as it uses all above
};

} // namespace Cameras::GenICam
