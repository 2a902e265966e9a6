// SPDX-License-Identifier: Apache-2.0
// How long a thread waits for a camera's answer.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace Cameras::GenICam {

/// While one lives, an access of its thread to a camera that has not been answered after that time
/// fails with ::GenICam::RuntimeException, as do all further ones until the answer has come. What
/// has not been sent by then is not sent any more; what has been may still be done. The connection
/// is not given up for that. For threads that must go on, such as the GUI thread. Without one, an
/// access waits until the camera has answered or is lost. They may be nested; the innermost counts.
///
/// The same holds for a camera that another thread is using just then, and for a command that the
/// camera carries out: it goes on, and what it did to other features is told when it is done.
class Patience
{
public:
    /// \param time  nothing: as long as it takes
    explicit Patience(std::optional<std::chrono::milliseconds> time);
    ~Patience();
    Patience(const Patience&) = delete;
    Patience& operator=(const Patience&) = delete;

    /// Nothing if this thread waits as long as it takes.
    static std::optional<std::chrono::milliseconds> ofThisThread();

    /// How many accesses of this thread failed so far because its patience was over. If this grows
    /// while something is asked, the answer says nothing about the camera, even where a feature's
    /// state hides the failure.
    static std::uint64_t failures();

    /// Counts one more.
    static void addFailure();

private:
    const std::optional<std::chrono::milliseconds> m_before;
};

} // namespace Cameras::GenICam
