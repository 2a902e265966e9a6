// SPDX-License-Identifier: Apache-2.0
// The handle of one corner of the grid.
import QtQuick 2.6

Item {
    id: point

    /// Which corner it is, for screen readers.
    property string cornerName

    property bool dragActive: false

    signal pointChanged(int movedX, int movedY)
    signal mouseReleased()
    signal mousePressed()
    signal keyPressed()

    function moveByKey(dx, dy) {
        keyPressed()
        x += dx
        y += dy
        pointChanged(disc.x, disc.y)
    }

    width: 2 * mTouchPointRadius
    height: 2 * mTouchPointRadius
    activeFocusOnTab: true
    Accessible.role: Accessible.Indicator
    Accessible.name: cornerName

    Keys.onLeftPressed: moveByKey(-1, 0)
    Keys.onRightPressed: moveByKey(1, 0)
    Keys.onUpPressed: moveByKey(0, -1)
    Keys.onDownPressed: moveByKey(0, 1)

    Rectangle {
        id: disc
        width: 2 * mTouchPointRadius
        height: width
        radius: mTouchPointRadius
        color: cTouchPointColor
        border.width: point.activeFocus ? 1 : 0
        border.color: "white"

        Rectangle {
            anchors.centerIn: parent
            width: 1.5 * mTouchPointRadius
            height: width
            radius: width / 2
            color: "white"
        }
    }

    MouseArea {
        property real pressX: 0
        property real pressY: 0

        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor

        onPressed: {
            pressX = mouse.x
            pressY = mouse.y
            point.dragActive = true
            point.mousePressed()
        }
        onMouseXChanged: {
            if (!point.dragActive || mouseX === pressX)
                return
            point.x += mouseX - pressX
            point.pointChanged(disc.x, disc.y)
        }
        onMouseYChanged: {
            if (!point.dragActive || mouseY === pressY)
                return
            point.y += mouseY - pressY
            point.pointChanged(disc.x, disc.y)
        }
        onReleased: endDrag()
        onCanceled: endDrag()

        function endDrag() {
            point.dragActive = false
            point.mouseReleased()
        }
    }
}
