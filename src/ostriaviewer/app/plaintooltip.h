// SPDX-License-Identifier: Apache-2.0
// Tool tips of words that anybody may have written.
#pragma once

#include <QString>

namespace Viewer {

/// A tool tip that shows a text as it is, whatever looks like markup in it, with its lines wrapped
/// where they would be wider than the screen.
inline QString plainToolTip(const QString& text)
{
    QString escaped = text.toHtmlEscaped();
    escaped.replace(QLatin1Char('\n'), QLatin1String("<br>"));
    return QStringLiteral("<qt>%1</qt>").arg(escaped);
}

} // namespace Viewer
