// SPDX-License-Identifier: Apache-2.0
// The buttons Back, Next and Cancel, and the question before a calibration is given up.
import QtQuick 2.6
import QtQuick.Controls 1.4
import QtQuick.Dialogs 1.2

Row {
    id: buttons

    readonly property int step: qmlModelInterface.activeStep
    property bool buttonsEnabled: true

    signal next()
    signal prev()
    signal cancel()

    function disable() {
        buttonsEnabled = false
    }

    function enable() {
        buttonsEnabled = true
    }

    function jumpNext() {
        next()
    }

    function jumpCancel() {
        tryCancel()
    }

    function tryCancel() {
        if (progress.moving)
            progress.cancelWanted = true
        else if (step >= iStep2)
            cancelWarningDialog.open()
        else
            cancel()
    }

    function closeQuestion() {
        cancelWarningDialog.close()
    }

    spacing: margin

    Button {
        objectName: "backButton"
        width: mButtonWidth
        height: mButtonHeight
        visible: buttons.step !== iStep1
        enabled: buttons.buttonsEnabled
        style: buttonStyle
        text: tPrev
        onClicked: buttons.prev()
    }

    Button {
        objectName: "nextButton"
        width: mButtonWidth
        height: mButtonHeight
        enabled: buttons.buttonsEnabled
        isDefault: buttons.step !== iStep2
        style: buttonStyle
        text: buttons.step === iStep4 ? tFinish : tNext
        onClicked: buttons.jumpNext()
    }

    Button {
        objectName: "cancelButton"
        width: mButtonWidth
        height: mButtonHeight
        enabled: buttons.buttonsEnabled
        style: buttonStyle
        text: tCancel
        onClicked: buttons.tryCancel()
    }

    // Not among the items, as in main.qml.
    QtObject {
        readonly property MessageDialog question: MessageDialog {
            id: cancelWarningDialog
            objectName: "cancelWarningDialog"
            modality: Qt.ApplicationModal
            icon: StandardIcon.Warning
            title: tMsgHeader
            text: tCancelWarning
            standardButtons: StandardButton.Yes | StandardButton.No
            onYes: buttons.cancel()
            onNo: close()
        }
    }
}
