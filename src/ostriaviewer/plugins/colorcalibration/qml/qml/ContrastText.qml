// SPDX-License-Identifier: Apache-2.0
// A text that can be read on any image: white, a pixel off the same in black.
import QtQuick 2.6

Item {
    property string text
    property int pixelSize: mDefaultPixelSize

    width: dark.implicitWidth
    height: dark.implicitHeight

    Text {
        id: dark
        text: parent.text
        font.pixelSize: parent.pixelSize
        color: "black"
    }

    Text {
        x: 1
        y: 1
        text: parent.text
        font.pixelSize: parent.pixelSize
        color: "white"
    }
}
