// SPDX-License-Identifier: Apache-2.0
// The name of a command in menus and on buttons.
#pragma once

#include <QAction>

namespace Viewer {

/// Names a command. Its button in a tool bar shows the name without the key, which languages
/// without Latin letters put in brackets behind it: "開く(&O)" is "開く" there.
void setCommandText(QAction& action, const QString& text);

} // namespace Viewer
