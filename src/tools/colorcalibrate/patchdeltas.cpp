// SPDX-License-Identifier: Apache-2.0
// How far the patches are from their targets.
#include "patchdeltas.h"

#include "charttargets.h"
#include "original.h"

#include <algorithm>
#include <numeric>

using namespace ColorCalibration;

namespace ColorCalibrate {
namespace {

double mean(const std::array<double, PatchCount>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / PatchCount;
}

} // namespace

double Deltas::meanDeltaE() const
{
    return mean(deltaE);
}

double Deltas::meanDeltaC() const
{
    return mean(deltaC);
}

double Deltas::maxDeltaE() const
{
    return *std::max_element(deltaE.begin(), deltaE.end());
}

double Deltas::maxDeltaC() const
{
    return *std::max_element(deltaC.begin(), deltaC.end());
}

Deltas deltasToTargets(const PatchColors& colors)
{
    const ChartTargets targets;
    Original step(targets, 1.0);
    step.SetColors(colors);
    Deltas deltas{};
    for (int patch = 0; patch < PatchCount; ++patch) {
        const auto i = static_cast<std::size_t>(patch);
        deltas.deltaE[i] = step.Delta(patch, false, false);
        deltas.deltaC[i] = step.Delta(patch, true, false);
    }
    return deltas;
}

} // namespace ColorCalibrate
