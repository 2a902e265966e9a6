// SPDX-License-Identifier: Apache-2.0
// Saves settings and summary to folders, and the settings to a user set of the camera.
import QtQuick 2.6
import QtQuick.Controls 1.4
import Qt.labs.settings 1.0
import "functions.js" as Utility

Item {
    id: page

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    readonly property real sideWidth: 2 * mButtonWidth + margin
    readonly property real mainWidth: width - sideWidth - 2 * margin
    readonly property real labelWidth: Math.ceil(Math.max(calibrationLabel.implicitWidth,
                                                          summaryLabel.implicitWidth,
                                                          userSetLabel.implicitWidth))
    readonly property real rowDistance: mButtonHeight + margin / 2

    property var userSetArray: []
    property bool pageEnabled: true

    function setEnabled(enabled) {
        pageEnabled = enabled
        Utility.setPageEnabled(enabled)
    }

    // Where results are still to be measured, the camera can be lost meanwhile.
    function showError(text) {
        if (stepBar.closed)
            return
        modelError.text = text
        modelError.open()
    }

    function loadUserSets() {
        var sets = JSON.parse(qmlModelInterface.getAvailableUserSets()).UserSets
        userSetArray = sets ? sets : []
        var names = [tNone]
        for (var i = 0; i < userSetArray.length; ++i)
            names = names.concat(Object.keys(userSetArray[i]))
        userSets.model = names
    }

    function selectorValue(userSet) {
        var value = ""
        for (var name in userSet)
            value = userSet[name]
        return value
    }

    function saveUserSet() {
        if (autoRefreshChecked)
            camera.stopGrab()
        var value = selectorValue(userSetArray[userSets.currentIndex - 1])
        console.log("Store Settings in user set: " + value)
        if (!qmlModelInterface.storeSettingsInUserSet(value, saveSettingsAsDefault.checked))
            showError(tMsgErrSaveUserSet + value)
        if (autoRefreshChecked)
            camera.startGrab()
    }

    function saveAllSettings() {
        if (userSets.currentIndex === 0 && qmlModelInterface.calibrationFileToSave === ""
                && qmlModelInterface.summaryFileToSave === "") {
            showError(tMsgErrSelectSaveOption)
            return
        }
        if (!qmlModelInterface.saveSettingsToFilePath())
            showError(tMsgErrSaveToFilePath)
        if (!qmlModelInterface.saveSummaryToFilePath())
            showError(tMsgErrSaveSummary)
        if (userSets.currentIndex !== 0 && !stepBar.closed)
            saveUserSet()
    }

    Settings {
        id: calibrationPath
        category: "ColCalPlugin/Paths/SaveCalibration"
        property string folder: qmlModelInterface.ostriaStandardLocation
    }

    Settings {
        id: summaryPath
        category: "ColCalPlugin/Paths/SummaryReport"
        property string folder: qmlModelInterface.ostriaStandardLocation
    }

    FiledialogSave {
        id: calibrationDialog
        objectName: "calibrationDialog"
        folder: calibrationPath.folder
        onSignalFileName: {
            qmlModelInterface.calibrationFileToSave = fileName
            calibrationPath.folder = folder
        }
    }

    FiledialogSave {
        id: summaryDialog
        objectName: "summaryDialog"
        folder: summaryPath.folder
        onSignalFileName: {
            qmlModelInterface.summaryFileToSave = fileName
            summaryPath.folder = folder
        }
    }

    Item {
        // Below the check box, which leaves its usual place to the handle of the divider.
        y: 1.4 * margin - distanceToImage
        width: page.mainWidth
        height: 4 * page.rowDistance + margin / 2

        Text {
            id: calibrationLabel
            height: mButtonHeight
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: mDefaultPixelSize
            text: tSaveCalibration
        }
        FiledialogTextfield {
            id: calibrationFile
            objectName: "calibrationFile"
            x: page.labelWidth + margin
            anchors.verticalCenter: calibrationLabel.verticalCenter
            text: qmlModelInterface.calibrationFileToSave
            confirmsWithReturn: true
            onEditFinished: qmlModelInterface.calibrationFileToSave = text
            onOpenFileDialog: calibrationDialog.openDialog()
            onToolTip: Utility.showToolTip(page, calibrationFile, mouseX, mouseY,
                                           tSaveCalibrationTooltip)
            onCloseToolTip: Utility.hideToolTip()
        }

        Text {
            id: summaryLabel
            y: page.rowDistance
            height: mButtonHeight
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: mDefaultPixelSize
            text: tSaveSummary
        }
        FiledialogTextfield {
            id: summaryFile
            objectName: "summaryFile"
            x: page.labelWidth + margin
            anchors.verticalCenter: summaryLabel.verticalCenter
            text: qmlModelInterface.summaryFileToSave
            confirmsWithReturn: true
            onEditFinished: qmlModelInterface.summaryFileToSave = text
            onOpenFileDialog: summaryDialog.openDialog()
            onToolTip: Utility.showToolTip(page, summaryFile, mouseX, mouseY, tSaveSummaryTooltip)
            onCloseToolTip: Utility.hideToolTip()
        }

        Text {
            id: userSetLabel
            y: 2 * page.rowDistance
            height: mButtonHeight
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: mDefaultPixelSize
            text: tSaveSettingsAsUserSet
        }
        TavrinComboBox {
            id: userSets
            objectName: "userSets"
            x: page.labelWidth + margin
            y: 2 * page.rowDistance
            width: 2 * mButtonWidth
            Accessible.name: tSaveSettingsAsUserSet
            model: [tNone]
            onHoveredChanged: hovered ? Utility.showToolTip(page, userSets, width / 2, height / 2,
                                                            tSaveSettingsAsUserSetTooltip)
                                      : Utility.hideToolTip()

            FocusFrame {}
        }

        CheckBox {
            id: saveSettingsAsDefault
            objectName: "saveSettingsAsDefault"
            anchors.left: userSets.right
            anchors.leftMargin: margin
            anchors.verticalCenter: userSets.verticalCenter
            style: checkBoxStyle
            text: tSaveSettingsAsDefault
            onHoveredChanged: hovered ? Utility.showToolTip(page, saveSettingsAsDefault, width / 2,
                                                            height, tSaveSettingsAsDefaultTooltip)
                                      : Utility.hideToolTip()
        }

        Button {
            id: saveButton
            objectName: "saveButton"
            x: page.labelWidth + margin
            y: 3 * page.rowDistance + margin / 2
            width: 2 * mButtonWidth
            height: mButtonHeight
            style: buttonStyle
            text: tSaveSettings
            enabled: page.pageEnabled && (userSets.currentIndex !== 0 || calibrationFile.text !== ""
                                          || summaryFile.text !== "")
            onHoveredChanged: hovered ? Utility.showToolTip(page, saveButton, width / 2, height / 2,
                                                            tSaveSettingsTooltip)
                                      : Utility.hideToolTip()
            onClicked: {
                // A path that is still being typed is taken over when its field loses the focus.
                forceActiveFocus()
                page.saveAllSettings()
            }
        }
    }

    Text {
        anchors.bottom: parent.bottom
        width: page.mainWidth
        wrapMode: Text.WordWrap
        font.pixelSize: mDefaultPixelSize
        text: tStep4Explanation
    }

    RecalibrateButton {
        anchors.right: parent.right
        anchors.bottom: singleShot.top
        anchors.bottomMargin: margin
        owner: page
        onClicked: start()
    }

    SingleShotButton {
        id: singleShot
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        onToolTip: Utility.showToolTip(page, singleShot, mouseX, mouseY, tGrabPictureTooltip)
        onCloseToolTip: Utility.hideToolTip()
    }

    Connections {
        target: qmlModelInterface
        function onAutoAdjustGray80PercentPatchFinished() {
            // What ended the run is the way to another step, or the end of the wizard.
            if (!stepBar.isCameraFree)
                return
            Utility.autoCalibrate()
            if (stepBar.closed)
                return
            if (!autoRefreshChecked)
                camera.singleGrab()
            page.setEnabled(true)
        }
    }

    Component.onCompleted: loadUserSets()
}
