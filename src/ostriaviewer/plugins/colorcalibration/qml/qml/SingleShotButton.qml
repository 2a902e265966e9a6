// SPDX-License-Identifier: Apache-2.0
// Takes one image while the camera does not capture continuously.
import QtQuick 2.6
import QtQuick.Controls 1.4

Button {
    id: button
    objectName: "singleShotButton"

    signal toolTip(real mouseX, real mouseY)
    signal closeToolTip()

    width: 2 * mButtonWidth + margin
    height: mButtonHeight
    enabled: qmlModelInterface.singleShotEnabled
    iconSource: "qrc:/ColCal/singleshot.png"
    style: buttonStyle
    text: tGrabPicture
    onClicked: camera.singleGrab()
    onHoveredChanged: hovered ? toolTip(width / 2, height / 2) : closeToolTip()
}
