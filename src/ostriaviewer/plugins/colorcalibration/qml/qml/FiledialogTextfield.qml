// SPDX-License-Identifier: Apache-2.0
// A path that can be typed or picked in a dialog.
import QtQuick 2.6

MouseArea {
    id: field

    property alias text: input.text

    // Return only confirms what was typed, in place of leading to the next step.
    property bool confirmsWithReturn: false

    signal editFinished(string text)
    signal openFileDialog()
    signal toolTip(real mouseX, real mouseY)
    signal closeToolTip()

    width: 2 * mButtonWidth
    height: 2 * margin
    y: mTextFieldCorrection
    hoverEnabled: true
    onEntered: toolTip(mouseX, mouseY)
    onExited: closeToolTip()
    onPressed: input.forceActiveFocus()

    Rectangle {
        anchors.fill: parent
        color: "white"
        border.width: 1
        border.color: "lightgray"
        clip: true

        // The cursor blinks, and is away half of the time.
        FocusFrame {
            radius: 0
            border.width: 1
            control: input
        }

        TextInput {
            id: input
            objectName: "textInput"
            x: margin / 2
            y: mTextInputCursorCorrection
            width: parent.width - mIconSize - margin
            clip: true
            font.pixelSize: mDefaultPixelSize
            selectByMouse: true
            activeFocusOnTab: true
            Accessible.role: Accessible.EditableText
            Accessible.name: field.Accessible.name
            onTextChanged: forceActiveFocus()
            onEditingFinished: field.editFinished(text)
            Keys.priority: Keys.AfterItem
            Keys.onReturnPressed: event.accepted = field.confirmsWithReturn
            Keys.onEnterPressed: event.accepted = field.confirmsWithReturn
        }

        Rectangle {
            id: icon
            objectName: "openIcon"
            anchors {
                right: parent.right
                rightMargin: margin / 2
                verticalCenter: parent.verticalCenter
            }
            width: mIconSize
            height: mIconSize
            color: "transparent"
            border.width: activeFocus ? 1 : 0
            activeFocusOnTab: true
            Accessible.role: Accessible.Button
            Accessible.name: field.Accessible.name
            Keys.onSpacePressed: field.openFileDialog()

            Image {
                anchors.fill: parent
                source: "qrc:/ColCal/fileopen.png"
                z: -1
            }

            MouseArea {
                anchors.fill: parent
                onClicked: field.openFileDialog()
            }
        }
    }
}
