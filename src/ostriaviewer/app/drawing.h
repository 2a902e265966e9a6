// SPDX-License-Identifier: Apache-2.0
// How Qt draws the scenes of plugins.
#pragma once

namespace Viewer {

/// Lets Qt Quick draw what has changed at once, and without depth and stencil buffers. Holds for
/// the whole program; an idle time that the environment sets stays. To be called before the
/// application object is made.
void drawScenesQuickly();

} // namespace Viewer
