// SPDX-License-Identifier: Apache-2.0
// How Qt draws the scenes of plugins.
#include "drawing.h"

#include <QByteArray>
#include <QSurfaceFormat>

namespace Viewer {

void drawScenesQuickly()
{
    // Qt waits 5 ms before each picture for further changes. The mouse and the images of a camera
    // come far less often, so that they would only be seen later.
    constexpr auto idleTime = "QT_QPA_UPDATE_IDLE_TIME";
    if (!qEnvironmentVariableIsSet(idleTime))
        qputenv(idleTime, QByteArrayLiteral("0"));
    // A scene needs them only where it clips aslant. Where the processor draws, they cost a third
    // of each picture.
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setDepthBufferSize(0);
    format.setStencilBufferSize(0);
    QSurfaceFormat::setDefaultFormat(format);
}

} // namespace Viewer
