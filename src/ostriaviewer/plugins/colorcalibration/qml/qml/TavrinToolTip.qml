// SPDX-License-Identifier: Apache-2.0
// A short explanation beside the mouse.
import QtQuick 2.6
import QtGraphicalEffects 1.0

Item {
    property alias text: label.text

    width: label.width + margin
    height: label.height + 0.6 * margin
    z: 1

    DropShadow {
        anchors.fill: frame
        source: frame
        horizontalOffset: 3
        verticalOffset: 4
        radius: 4.0
        samples: 8
        color: "#60000000"
    }

    Rectangle {
        id: frame
        anchors.fill: parent
        color: "white"
        border.width: 1
        border.color: "black"

        Text {
            id: label
            objectName: "toolTipText"
            anchors.centerIn: parent
            // A long line would not fit beside the mouse in a window of 800.
            width: Math.min(implicitWidth, 3.4 * mButtonWidth)
            font.pixelSize: mDefaultPixelSize
            wrapMode: Text.WordWrap
        }
    }
}
