// SPDX-License-Identifier: Apache-2.0
// Switches between images at an interval and single ones.
import QtQuick 2.6
import QtQuick.Controls 1.4

CheckBox {
    id: box
    objectName: "autoRefreshCheckBox"

    signal toolTip(real mouseX, real mouseY)
    signal closeToolTip()

    checked: autoRefreshChecked
    style: checkBoxStyle
    text: tShowAutoRefresh
    onHoveredChanged: hovered ? toolTip(width / 2, height / 2) : closeToolTip()
    onClicked: {
        autoRefreshChecked = !autoRefreshChecked
        // The click has put a value in the place of the binding.
        checked = Qt.binding(function() { return autoRefreshChecked })
        if (autoRefreshChecked)
            camera.startGrab()
        else
            camera.stopGrab()
    }
}
