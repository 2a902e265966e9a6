// SPDX-License-Identifier: Apache-2.0
// Ctrl-C during long work.
#include "interruption.h"

#include <csignal>

namespace ColorCalibrate {
namespace {

volatile std::sig_atomic_t requested = 0;

extern "C" void keepRequest(int /*signal*/)
{
    requested = 1;
}

} // namespace

Interruption::Interruption()
{
    requested = 0;
    m_previousInterrupt = std::signal(SIGINT, keepRequest);
    m_previousTerminate = std::signal(SIGTERM, keepRequest);
}

Interruption::~Interruption()
{
    std::signal(SIGINT, m_previousInterrupt);
    std::signal(SIGTERM, m_previousTerminate);
}

bool Interruption::isRequested()
{
    return requested != 0;
}

} // namespace ColorCalibrate
