// SPDX-License-Identifier: Apache-2.0
// Where an emulated camera's features lie in its register space.
#pragma once

#include "featuretable.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace Cameras::Emulation {

/// The addresses of a table's features, in the table's order. A numeric cell takes 8 bytes, big
/// endian: a two's complement integer or an IEEE 754 double; a text takes 64, padded with zeros.
/// Selecting features have no register. Immutable; reentrant.
class RegisterLayout
{
public:
    static constexpr std::size_t numberSize = 8;
    static constexpr std::size_t textSize = 64;

    struct Place
    {
        int feature; ///< index in the table
        int cell;
        std::size_t size; ///< bytes
    };

    explicit RegisterLayout(const FeatureTable& table);

    /// The address of a feature's first cell; 0 if it has no register.
    /// \param feature  index in the table
    std::uint64_t address(int feature) const
    {
        return m_addresses[static_cast<std::size_t>(feature)];
    }

    /// What begins at an address; nothing if no cell does.
    std::optional<Place> locate(std::uint64_t address) const;

private:
    struct Span
    {
        int feature;
        int cells;
        std::size_t cellSize;
    };

    std::vector<std::uint64_t> m_addresses;
    std::map<std::uint64_t, Span> m_spans;
};

} // namespace Cameras::Emulation
