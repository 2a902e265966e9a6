// SPDX-License-Identifier: Apache-2.0
// Steps of a camera, which nobody has to wait for.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace Cameras::GenICam {

/// Carries out steps one after the other, on a thread that is there while there are some. All that
/// was added is done, also when the queue has gone. Thread-safe.
class StepQueue
{
public:
    /// Must not throw. What it holds is let go before the step counts as done.
    using Work = std::function<void()>;

    class Step;
    using StepPtr = std::shared_ptr<Step>;

    StepQueue();
    ~StepQueue();
    StepQueue(const StepQueue&) = delete;
    StepQueue& operator=(const StepQueue&) = delete;

    /// Returns at once. May be called by a step.
    StepPtr add(Work work);

    /// Waits until a step is done; not at all on the thread of the steps.
    /// \param patience  after which it returns anyway; nothing: as long as it takes
    /// \return  whether it is done
    bool wait(const StepPtr& step, std::optional<std::chrono::milliseconds> patience) const;

    /// Whether this is the thread of the steps.
    bool isOwnThread() const;

    /// Calls a function once when a step is done: on this thread if it is, else on that of the
    /// steps. One a step.
    static void whenDone(const StepPtr& step, Work then);

private:
    struct State;
    static void carryOut(const std::shared_ptr<State>& state);

    const std::shared_ptr<State> m_state;
};

} // namespace Cameras::GenICam
