// SPDX-License-Identifier: Apache-2.0
// The controls of the grid: find the chart, take an image, load earlier settings.
import QtQuick 2.6
import QtQuick.Controls 1.4
import Qt.labs.settings 1.0
import "functions.js" as Utility

Item {
    id: page

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    function setEnabled(enabled) {
        finderButton.enabled = enabled
        Utility.setNaviationEnabled(enabled)
    }

    function runAutoChartFinder() {
        setEnabled(false)
        qmlModelInterface.findChartAsync()
    }

    Component.onCompleted: finderButton.forceActiveFocus()

    Image {
        objectName: "background"
        source: "qrc:/ColCal/step1Toolbg.png"
        anchors.horizontalCenter: parent.horizontalCenter
        y: (parent.height - distanceToImage - height) / 2
    }

    Item {
        y: -distanceToImage
        width: parent.width
        height: pathField.height

        Text {
            id: label
            anchors.verticalCenter: pathField.verticalCenter
            font.pixelSize: mDefaultPixelSize
            text: tPreviousCalibration
        }

        FiledialogTextfield {
            id: pathField
            objectName: "previousCalibrationField"
            anchors { left: label.right; leftMargin: margin }
            text: qmlModelInterface.previousCalibrationFile
            Accessible.name: tPreviousCalibration
            onOpenFileDialog: fileDialog.openDialog()
            onToolTip: Utility.showToolTip(page, pathField, mouseX, mouseY, tPreviousCalibrationTooltip)
            onCloseToolTip: Utility.hideToolTip()
        }
    }

    Settings {
        id: pathSettings
        category: "ColCalPlugin/Paths/PreviousCalibration"
        property string folder: qmlModelInterface.ostriaStandardLocation
    }

    FiledialogCalibration {
        id: fileDialog
        objectName: "previousCalibrationDialog"
        useFilters: [qsTr("OstriaFeatureStream files (*.cst )")]
        folder: pathSettings.folder
        onSignalFileName: {
            pathSettings.folder = folder
            qmlModelInterface.previousCalibrationFile = fileName
        }
    }

    Text {
        objectName: "explanation"
        anchors { left: parent.left; bottom: parent.bottom }
        width: parent.width - 2 * mButtonWidth - 2 * margin
        wrapMode: Text.WordWrap
        font.pixelSize: mDefaultPixelSize
        text: tAdjustGridExplanation
    }

    Button {
        id: finderButton
        objectName: "finderButton"
        anchors { right: parent.right; bottom: singleShot.top; bottomMargin: margin }
        width: 2 * mButtonWidth + margin
        height: mButtonHeight
        isDefault: true
        style: buttonStyle
        text: tAutoChartFinder
        onClicked: page.runAutoChartFinder()
        onHoveredChanged: {
            if (hovered)
                Utility.showToolTip(page, finderButton, width / 2, height / 2, tAutoChartFinderTooltip)
            else
                Utility.hideToolTip()
        }
    }

    SingleShotButton {
        id: singleShot
        anchors { right: parent.right; bottom: parent.bottom }
        onToolTip: Utility.showToolTip(page, singleShot, mouseX, mouseY, tGrabPictureTooltip)
        onCloseToolTip: Utility.hideToolTip()
    }

    Connections {
        target: qmlModelInterface
        function onAutoChartFindFinished(valid) {
            if (!valid) {
                modelWarning.text = tWarningAutoChartFailed
                modelWarning.open()
            }
            page.setEnabled(true)
        }
    }
}
