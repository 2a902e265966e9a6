// SPDX-License-Identifier: Apache-2.0
// Dark and light colors of the windows.
#pragma once

#include <QString>

namespace Viewer {

enum class Theme { Desktop, Light, Dark };

/// Names for the settings: "desktop", "light", "dark"; anything else is the desktop's.
Theme themeFromName(const QString& name);
QString nameOf(Theme theme);

/// The style of all windows.
QString styleName();

/// Gives all windows the theme's colors. Thread-bound: GUI thread.
void applyTheme(Theme theme);

} // namespace Viewer
