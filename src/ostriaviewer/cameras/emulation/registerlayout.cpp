// SPDX-License-Identifier: Apache-2.0
// Where an emulated camera's features lie in its register space.
#include "registerlayout.h"

#include <iterator>

namespace Cameras::Emulation {
namespace {

constexpr std::uint64_t firstAddress = 0x10000;

} // namespace

RegisterLayout::RegisterLayout(const FeatureTable& table)
{
    std::uint64_t next = firstAddress;
    for (int i = 0; i < table.size(); ++i) {
        const FeatureDefinition& feature = table.at(i);
        if (feature.selecting) {
            m_addresses.push_back(0);
            continue;
        }
        const std::size_t cellSize = feature.kind == FeatureKind::String ? textSize : numberSize;
        const int cells = table.cellCount(feature);
        m_addresses.push_back(next);
        m_spans.emplace(next, Span{i, cells, cellSize});
        next += cellSize * static_cast<std::size_t>(cells);
    }
}

std::optional<RegisterLayout::Place> RegisterLayout::locate(std::uint64_t address) const
{
    auto behind = m_spans.upper_bound(address);
    if (behind == m_spans.begin())
        return {};
    const auto& [start, span] = *std::prev(behind);
    const std::uint64_t offset = address - start;
    const std::uint64_t cell = offset / span.cellSize;
    if (offset % span.cellSize != 0 || cell >= static_cast<std::uint64_t>(span.cells))
        return {};
    return Place{span.feature, static_cast<int>(cell), span.cellSize};
}

} // namespace Cameras::Emulation
