// SPDX-License-Identifier: Apache-2.0
// Ctrl-C during long work.
#pragma once

namespace ColorCalibrate {

/// While it lives, Ctrl-C and a request to terminate do not end the process but are kept, so that
/// work can be undone. One at a time.
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
    Handler m_previousInterrupt;
    Handler m_previousTerminate;
};

} // namespace ColorCalibrate
