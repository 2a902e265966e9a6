// SPDX-License-Identifier: Apache-2.0
// Explains the three parts into which each patch of the image is divided.
import QtQuick 2.6
import "functions.js" as Utility

Item {
    id: legend

    implicitWidth: texts.width + margin + square.width
    implicitHeight: square.height

    Column {
        id: texts

        Text {
            id: targetValue
            font.pixelSize: mDefaultPixelSize
            text: tTargetValue
        }
        Text {
            font.pixelSize: mDefaultPixelSize
            text: tOriginalValue
        }
        Text {
            font.pixelSize: mDefaultPixelSize
            text: tCalibratedValue
        }
    }

    Rectangle {
        id: square
        objectName: "legendSquare"
        anchors.right: parent.right
        width: 4 * targetValue.height
        height: width
        color: "white"
        border.color: cTavrinBorderGrey

        Canvas {
            anchors.fill: parent
            onPaint: {
                var ctx = getContext("2d")
                var middle = width / 2
                ctx.reset()
                ctx.strokeStyle = cStepColorDark
                ctx.lineWidth = 2
                ctx.beginPath()
                Utility.drawDashed(ctx, 0, 0, middle, middle, 3)
                Utility.drawDashed(ctx, width, 0, middle, middle, 3)
                Utility.drawDashed(ctx, middle, height, middle, middle, 3)
                ctx.stroke()
            }
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            y: (parent.height / 2 - height) / 2
            font.pixelSize: mDefaultPixelSize
            text: qsTr("1")
        }
        Text {
            x: parent.width / 4 - width / 2
            y: parent.height * 5 / 8 - height / 2
            font.pixelSize: mDefaultPixelSize
            text: qsTr("2")
        }
        Text {
            x: parent.width * 3 / 4 - width / 2
            y: parent.height * 5 / 8 - height / 2
            font.pixelSize: mDefaultPixelSize
            text: qsTr("3")
        }
    }
}
