// SPDX-License-Identifier: Apache-2.0
// Finds out which features changed, and tells those who want to know.
#pragma once

#include "feature_p.h"

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include <cstdint>

namespace Cameras::GenICam {

/// Compares the watched features after each change of the device with how they were before.
///
/// Descriptions say with many kinds of links what depends on what, and cameras have dependencies
/// that no description mentions; looking finds them all. What nobody listens to is not looked at.
/// All functions need the node map's mutex, apart from those that say otherwise.
class ChangeWatch
{
public:
    /// What can be seen of a feature: access, value, limits or the state of the entries.
    using Snapshot = std::vector<std::uint64_t>;

    struct Watch;
    using Handle = std::shared_ptr<Watch>;

    /// Without the mutex. Begins with renew.
    /// \param isHeard  whether there is anybody to notify
    /// \param notify   both are called with the mutex held; they must not throw or use the device
    Handle add(const Feature& feature, std::function<bool()> isHeard, std::function<void()> notify);

    /// Without the mutex. Waits for a call of the watch's functions that is under way, and for
    /// nothing else.
    void remove(const Handle& watch);

    /// Looks at the feature if nobody listened to it up to now.
    static void renew(Watch& watch);

    /// Changes begin; may be nested.
    void begin() { ++m_depth; }

    /// Changes end; the outermost end compares and notifies.
    void end() noexcept;

private:
    std::vector<Handle> watches() const;
    static void compare(Watch& watch);

    mutable std::mutex m_listMutex; // guards the list
    std::vector<Handle> m_watches;
    int m_depth = 0;
};

} // namespace Cameras::GenICam
