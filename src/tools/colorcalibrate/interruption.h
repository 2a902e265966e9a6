// SPDX-License-Identifier: Apache-2.0
// Ctrl-C during long work.
#pragma once

#include <vector>

namespace ColorCalibrate {

/// While it lives, Ctrl-C, a request to terminate and a terminal that goes away do not end the
/// process but are kept, so that work can be undone; and output that nobody reads any more is no
/// reason to end. One at a time.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// Whether there was one. Thread-safe.
    static bool isRequested();

private:
    using Handler = void (*)(int);
    std::vector<Handler> m_previous; ///< of each signal that is kept, in their order
};

} // namespace ColorCalibrate
