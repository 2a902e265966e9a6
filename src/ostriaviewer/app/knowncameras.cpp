// SPDX-License-Identifier: Apache-2.0
// The real cameras that the viewer has met.
#include "knowncameras.h"

#include <algorithm>
#include <vector>

namespace Viewer {

using Cameras::GenICam::CameraIdentity;

namespace {

bool isSameDevice(const CameraIdentity& known, const CameraIdentity& found)
{
    return known.modelName.isEmpty() ||
           (known.modelName == found.modelName && known.serialNumber == found.serialNumber);
}

} // namespace

KnownCamera& KnownCameras::know(const CameraIdentity& identity, bool isFixed, const Make& make)
{
    const auto known = std::find_if(m_all.begin(), m_all.end(), [&](const KnownCamera& each) {
        const CameraIdentity other = each.camera->identity();
        return other.id == identity.id && (isFixed || isSameDevice(other, identity));
    });
    if (known != m_all.end())
        return *known;
    m_all.push_back({make(), 0, false});
    return m_all.back();
}

// A camera that is open is there, whatever the searches say.
void KnownCameras::forgetLongAway()
{
    std::vector<std::list<KnownCamera>::iterator> away;
    for (auto each = m_all.begin(); each != m_all.end(); ++each)
        if (!each->isListed && !each->camera->isOpen())
            away.push_back(each);
    std::stable_sort(away.begin(), away.end(),
                     [](const auto& a, const auto& b) { return a->missed > b->missed; });
    const std::size_t tooMany = away.size() - std::min(away.size(), mostAway);
    for (std::size_t each = 0; each < tooMany; ++each)
        m_all.erase(away[each]);
}

} // namespace Viewer
