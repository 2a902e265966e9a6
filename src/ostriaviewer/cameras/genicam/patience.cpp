// SPDX-License-Identifier: Apache-2.0
// How long a thread waits for a camera's answer.
#include "patience.h"

namespace Cameras::GenICam {
namespace {

thread_local std::optional<std::chrono::milliseconds> patience;
thread_local std::uint64_t failures = 0;

} // namespace

Patience::Patience(std::optional<std::chrono::milliseconds> time)
    : m_before(patience)
{
    patience = time;
}

Patience::~Patience()
{
    patience = m_before;
}

std::optional<std::chrono::milliseconds> Patience::ofThisThread()
{
    return patience;
}

std::uint64_t Patience::failures()
{
    return GenICam::failures;
}

void Patience::addFailure()
{
    ++GenICam::failures;
}

} // namespace Cameras::GenICam
