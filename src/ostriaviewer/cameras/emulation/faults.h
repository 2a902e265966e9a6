// SPDX-License-Identifier: Apache-2.0
// What is to go wrong with an emulated camera's frames.
#pragma once

#include <chrono>
#include <mutex>

namespace Cameras::Emulation {

/// Faults that are switched on before they happen. Counts are of frames to come; a negative count
/// means all, 0 ends the fault. Thread-safe.
class Faults
{
public:
    struct Fate
    {
        bool lost = false;   ///< nothing is delivered
        bool failed = false; ///< a result without an image is delivered
        std::chrono::microseconds delay = {};
    };

    void loseFrames(int count);
    void failFrames(int count);
    void delayFrames(int count, std::chrono::microseconds delay);

    /// Lets the connection break after this many further frames were delivered; 0 and less: never.
    void loseConnectionAfter(int frames);

    /// Lets the camera be in use by another program.
    void setTakenByAnother(bool taken);
    bool isTakenByAnother() const;

    /// What happens to the next frame.
    Fate nextFrame();

    /// Counts a delivered frame.
    /// \return  whether the connection breaks now
    bool countDelivered();

private:
    mutable std::mutex m_mutex;
    int m_lost = 0;
    int m_failed = 0;
    int m_delayed = 0;
    std::chrono::microseconds m_delay = {};
    int m_framesOfConnection = 0; // 0: the connection stays
    bool m_taken = false;
};

} // namespace Cameras::Emulation
