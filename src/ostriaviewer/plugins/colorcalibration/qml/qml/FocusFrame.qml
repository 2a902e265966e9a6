// SPDX-License-Identifier: Apache-2.0
// Shows which control has the keys, where its own look does not. As the border of a button.
import QtQuick 2.6

Rectangle {
    /// What has the keys, if it is not the parent.
    property Item control: parent

    anchors.fill: parent
    z: 1
    visible: control.activeFocus
    color: "transparent"
    radius: 2
    border.width: 2
    border.color: cTouchPointColor
}
