// SPDX-License-Identifier: Apache-2.0
// Steps of a camera, which nobody has to wait for.
#include "stepqueue_p.h"

#include "aside_p.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace Cameras::GenICam {

class StepQueue::Step
{
public:
    explicit Step(Work work)
        : m_work(std::move(work))
    {}

    void carryOut()
    {
        std::exchange(m_work, {})();
        std::unique_lock lock(m_mutex);
        m_isDone = true;
        m_done.notify_all();
        const Work then = std::exchange(m_then, {});
        lock.unlock();
        if (then)
            then();
    }

    bool wait(std::optional<std::chrono::milliseconds> patience)
    {
        std::unique_lock lock(m_mutex);
        const auto isDone = [this] {
            return m_isDone;
        };
        if (patience)
            return m_done.wait_for(lock, *patience, isDone);
        m_done.wait(lock, isDone);
        return true;
    }

    void whenDone(Work then)
    {
        {
            const std::lock_guard lock(m_mutex);
            if (!m_isDone) {
                m_then = std::move(then);
                return;
            }
        }
        then();
    }

private:
    Work m_work;        // of the thread of the steps
    std::mutex m_mutex; // guards all below
    std::condition_variable m_done;
    bool m_isDone = false;
    Work m_then;
};

struct StepQueue::State
{
    std::mutex mutex; ///< guards all below
    std::deque<StepPtr> steps;
    bool isRunning = false;
    std::thread::id thread; ///< of the steps, while it is running
};

StepQueue::StepQueue()
    : m_state(std::make_shared<State>())
{}

StepQueue::~StepQueue() = default;

StepQueue::StepPtr StepQueue::add(Work work)
{
    auto step = std::make_shared<Step>(std::move(work));
    const std::lock_guard lock(m_state->mutex);
    m_state->steps.push_back(step);
    if (!std::exchange(m_state->isRunning, true))
        runAside([state = m_state] { carryOut(state); });
    return step;
}

void StepQueue::carryOut(const std::shared_ptr<State>& state)
{
    std::unique_lock lock(state->mutex);
    state->thread = std::this_thread::get_id();
    while (!state->steps.empty()) {
        const StepPtr step = std::move(state->steps.front());
        state->steps.pop_front();
        lock.unlock();
        step->carryOut();
        lock.lock();
    }
    state->thread = {};
    state->isRunning = false;
}

bool StepQueue::isOwnThread() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->thread == std::this_thread::get_id();
}

bool StepQueue::wait(const StepPtr& step, std::optional<std::chrono::milliseconds> patience) const
{
    return step->wait(isOwnThread() ? std::chrono::milliseconds(0) : patience);
}

void StepQueue::whenDone(const StepPtr& step, Work then)
{
    step->whenDone(std::move(then));
}

} // namespace Cameras::GenICam
