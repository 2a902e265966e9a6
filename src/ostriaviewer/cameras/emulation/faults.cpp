// SPDX-License-Identifier: Apache-2.0
// What is to go wrong with an emulated camera's frames.
#include "faults.h"

namespace Cameras::Emulation {
namespace {

// Whether one more frame is to be hit.
bool takeOne(int& count)
{
    if (count > 0)
        return count-- > 0;
    return count < 0;
}

} // namespace

void Faults::loseFrames(int count)
{
    const std::lock_guard lock(m_mutex);
    m_lost = count;
}

void Faults::failFrames(int count)
{
    const std::lock_guard lock(m_mutex);
    m_failed = count;
}

void Faults::delayFrames(int count, std::chrono::microseconds delay)
{
    const std::lock_guard lock(m_mutex);
    m_delayed = count;
    m_delay = delay;
}

void Faults::loseConnectionAfter(int frames)
{
    const std::lock_guard lock(m_mutex);
    m_framesOfConnection = frames;
}

void Faults::setTakenByAnother(bool taken)
{
    const std::lock_guard lock(m_mutex);
    m_taken = taken;
}

bool Faults::isTakenByAnother() const
{
    const std::lock_guard lock(m_mutex);
    return m_taken;
}

Faults::Fate Faults::nextFrame()
{
    const std::lock_guard lock(m_mutex);
    Fate fate;
    fate.lost = takeOne(m_lost);
    fate.failed = takeOne(m_failed);
    if (takeOne(m_delayed))
        fate.delay = m_delay;
    return fate;
}

bool Faults::countDelivered()
{
    const std::lock_guard lock(m_mutex);
    return takeOne(m_framesOfConnection) && m_framesOfConnection == 0;
}

} // namespace Cameras::Emulation
