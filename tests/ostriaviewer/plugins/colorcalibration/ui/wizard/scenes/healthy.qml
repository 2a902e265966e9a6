// SPDX-License-Identifier: Apache-2.0
// A scene that shows what it is given and counts what it is told.
import QtQuick 2.6
import tavrin.trapezoid 1.0
import tavrin.filedialog 1.0

Rectangle {
    objectName: "scene"
    color: "#00ff00"
    focus: true
    property int stepChanges: 0
    property int cleanups: 0
    property var corner: gridOutline.upperLeft
    property real canvasScale: transformer.scale
    property int patches: grid.count()
    property real exposure: exposureTime.value
    property real gain: gainValue.value
    property size liveSize: camera.size
    property alias trapezoid: ownTrapezoid
    property alias dialog: ownDialog
    Trapezoid { id: ownTrapezoid }
    QMLFileDialog { id: ownDialog }
    Connections {
        target: qmlModelInterface
        function onActiveStepChanged() { stepChanges += 1 }
        function onCleanupQML() { cleanups += 1 }
    }
}
