// SPDX-License-Identifier: Apache-2.0
// Accesses to a camera, without those who ask having to wait for a camera that has gone.
#include "accessqueue_p.h"

#include "patience.h"

#include <algorithm>
#include <utility>

namespace Cameras::GenICam {

AccessQueue::AccessQueue()
    : m_thread([this] { loop(); })
{}

AccessQueue::~AccessQueue()
{
    abandon();
    finish();
}

AccessQueue::Outcome AccessQueue::run(Work work, std::optional<std::chrono::milliseconds> patience)
{
    std::unique_lock lock(m_mutex);
    if (m_isAbandoned)
        return Outcome::Abandoned;
    if (patience && !isDone(m_late)) {
        Patience::addFailure();
        return Outcome::Late;
    }
    const std::uint64_t number = ++m_asked;
    m_jobs.push_back({number, std::move(work)});
    m_changed.notify_all();
    const auto hasEnded = [&] {
        return isDone(number) || m_isAbandoned;
    };
    if (!patience)
        m_changed.wait(lock, hasEnded);
    else if (!m_changed.wait_for(lock, *patience, hasEnded)) {
        giveUp(number);
        Patience::addFailure();
        return Outcome::Late;
    }
    return isDone(number) ? Outcome::Done : Outcome::Abandoned;
}

// What waits behind work that is under way is not to happen when nobody expects it any more.
void AccessQueue::giveUp(std::uint64_t number)
{
    const auto job = std::find_if(m_jobs.begin(), m_jobs.end(),
                                  [number](const Job& each) { return each.number == number; });
    if (job != m_jobs.end())
        m_jobs.erase(job);
    m_late = m_begun;
}

void AccessQueue::abandon()
{
    const std::lock_guard lock(m_mutex);
    m_isAbandoned = true;
    m_jobs.clear();
    m_changed.notify_all();
}

bool AccessQueue::isAbandoned() const
{
    const std::lock_guard lock(m_mutex);
    return m_isAbandoned;
}

void AccessQueue::finish()
{
    if (m_thread.joinable())
        m_thread.join();
}

void AccessQueue::loop()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isAbandoned || !m_jobs.empty(); });
        if (m_isAbandoned)
            return;
        Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        m_begun = job.number;
        lock.unlock();
        job.work();
        job.work = nullptr;
        lock.lock();
        m_done = job.number;
        m_changed.notify_all();
    }
}

} // namespace Cameras::GenICam
