// SPDX-License-Identifier: Apache-2.0
// Finds out which features changed, and tells those who want to know.
#pragma once

#include "feature_p.h"

#include <functional>
#include <list>
#include <vector>

#include <cstdint>

namespace Cameras::GenICam {

/// Compares the watched features after each change of the device with how they were before.
///
/// Descriptions say with many kinds of links what depends on what, and cameras have dependencies
/// that no description mentions; looking finds them all. All functions need the node map's mutex.
class ChangeWatch
{
public:
    /// What can be seen of a feature: access, value, limits or the state of the entries.
    using Snapshot = std::vector<std::uint64_t>;

    struct Watch
    {
        const Feature* feature;
        std::function<void()> notify;
        Snapshot last;
    };
    using Handle = std::list<Watch>::iterator;

    /// \param feature  lent until remove
    /// \param notify   called with the mutex held; must not throw or use the device
    Handle add(const Feature& feature, std::function<void()> notify);
    void remove(Handle handle);

    /// Changes begin; may be nested.
    void begin() { ++m_depth; }

    /// Changes end; the outermost end compares and notifies.
    void end() noexcept;

private:
    std::list<Watch> m_watches;
    int m_depth = 0;
};

} // namespace Cameras::GenICam
