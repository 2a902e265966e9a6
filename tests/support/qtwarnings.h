// SPDX-License-Identifier: Apache-2.0
// Which messages are Qt's own complaints.
#pragma once

#include <QtGlobal>

#include <cstring>

/// Whether Qt or its engine for QML warns of how it is used; the program's own log has other
/// categories. What the screen's server says is left out: without a window manager it refuses the
/// keys to a window that is just coming or going.
inline bool isWarningOfQt(QtMsgType type, const QMessageLogContext& context)
{
    if (type != QtWarningMsg && type != QtCriticalMsg)
        return false;
    const char* category = context.category;
    if (!category)
        return true;
    if (std::strncmp(category, "qt.", 3) == 0)
        return std::strncmp(category, "qt.qpa.", 7) != 0;
    for (const char* each : {"default", "qml", "js"})
        if (std::strcmp(category, each) == 0)
            return true;
    return false;
}
