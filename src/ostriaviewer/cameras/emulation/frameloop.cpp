// SPDX-License-Identifier: Apache-2.0
// The thread on which an emulated camera takes its frames.
#include "frameloop.h"

#include "aside_p.h"

#include <algorithm>
#include <utility>

namespace Cameras::Emulation {
namespace {

enum class Mode { Idle, Single, Continuous, Ended };

} // namespace

// Shared with the thread, so that it may outlive a loop that is destroyed by its own delivery.
struct FrameLoop::State
{
    const Take take;
    const Deliver deliver;

    std::mutex mutex; // guards all below
    std::condition_variable changed;
    Mode mode = Mode::Idle;
    std::uint64_t request = 0;  // counts what was asked for; a frame belongs to one request
    Clock::time_point deadline; // of a single frame
    Clock::time_point begin;    // of the next frame
    Delivery taking;            // its source may hold what whoever stops wants to end
    Delivery delivery;
    std::uint64_t frameNumber = 0;

    State(Take newTake, Deliver newDeliver)
        : take(std::move(newTake))
        , deliver(std::move(newDeliver))
    {}

    void ask(Mode newMode)
    {
        mode = newMode;
        ++request;
        begin = Clock::now();
        changed.notify_all();
    }

    // Waits until a time; false as soon as something else is asked for.
    bool waitUntil(std::unique_lock<std::mutex>& lock, Clock::time_point time, std::uint64_t wanted)
    {
        return !changed.wait_until(lock, time, [&] { return request != wanted; });
    }

    void takeFrame(std::unique_lock<std::mutex>& lock);
};

// One frame from its beginning to its delivery. The lock is held on entry and on return.
void FrameLoop::State::takeFrame(std::unique_lock<std::mutex>& lock)
{
    const std::uint64_t wanted = request;
    const bool isSingle = mode == Mode::Single;
    const Clock::time_point start = begin;
    const std::uint64_t number = frameNumber++;
    Frame frame;
    taking.run(lock, [&] { frame = take(number); });

    const Clock::time_point end = start + frame.exposure;
    if (request != wanted)
        return;
    if (isSingle && (end > deadline || Clock::now() > deadline)) {
        if (waitUntil(lock, deadline, wanted))
            mode = Mode::Idle;
        return;
    }
    if (!waitUntil(lock, end, wanted))
        return;
    if (isSingle)
        mode = Mode::Idle;
    if (frame.result)
        delivery.run(lock, [&] { deliver(frame.result); });
    if (request != wanted || isSingle)
        return;
    begin = std::max(start + frame.period, Clock::now());
    waitUntil(lock, begin, wanted);
}

FrameLoop::FrameLoop(Take take, Deliver deliver)
    : m_state(std::make_shared<State>(std::move(take), std::move(deliver)))
    , m_thread([state = m_state] { run(state); })
{}

FrameLoop::~FrameLoop()
{
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->ask(Mode::Ended);
    }
    if (m_thread.get_id() == std::this_thread::get_id())
        GenICam::joinAside(std::move(m_thread));
    else
        m_thread.join();
}

void FrameLoop::run(const std::shared_ptr<State>& state)
{
    std::unique_lock lock(state->mutex);
    while (state->mode != Mode::Ended) {
        if (state->mode == Mode::Idle)
            state->changed.wait(lock);
        else
            state->takeFrame(lock);
    }
}

void FrameLoop::startContinuous()
{
    const std::lock_guard lock(m_state->mutex);
    if (m_state->mode != Mode::Continuous)
        m_state->ask(Mode::Continuous);
}

bool FrameLoop::isContinuous() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->mode == Mode::Continuous;
}

bool FrameLoop::requestSingle(std::chrono::milliseconds timeout)
{
    const std::lock_guard lock(m_state->mutex);
    if (m_state->mode == Mode::Continuous)
        return false;
    m_state->ask(Mode::Single);
    m_state->deadline = m_state->begin + timeout;
    return true;
}

void FrameLoop::cancel()
{
    const std::lock_guard lock(m_state->mutex);
    if (m_state->mode != Mode::Idle)
        m_state->ask(Mode::Idle);
}

void FrameLoop::stop()
{
    cancel();
    wait();
}

void FrameLoop::wait() const
{
    std::unique_lock lock(m_state->mutex);
    m_state->taking.wait(lock);
    m_state->delivery.wait(lock);
}

} // namespace Cameras::Emulation
