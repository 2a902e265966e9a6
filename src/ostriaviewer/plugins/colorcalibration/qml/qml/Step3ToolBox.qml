// SPDX-License-Identifier: Apache-2.0
// The results of the calibration in tables, beside the legend of the image above.
import QtQuick 2.6
import QtQuick.Controls 1.4
import "functions.js" as Utility

Item {
    id: page

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    readonly property real sideWidth: 2 * mButtonWidth + margin
    readonly property real mainWidth: width - sideWidth - 2 * margin

    function setEnabled(enabled) {
        Utility.setPageEnabled(enabled)
    }

    function translateRootKey(key) {
        return key === "Original" ? key : qsTr("Current")
    }

    function appendRow(model, source, values) {
        var row = { "source": source }
        for (var name in values)
            row[name] = values[name]
        model.append(row)
    }

    function appendSettings(key, settings) {
        var source = translateRootKey(key)
        appendRow(blackLevelModel, source, { "BlackLevel": settings.BlackLevel })
        appendRow(whiteBalanceModel, source, settings.WhiteBalance)
        appendRow(matrixModel, source, settings.Matrix)
        appendRow(hueModel, source, settings.BC6x2.Hue)
        appendRow(saturationModel, source, settings.BC6x2.Saturation)
        appendRow(gammaModel, source, { "Gamma": settings.Gamma })
        appendRow(hsbcModel, source, settings.HSBC)
    }

    function fillJasonStatisticsToModel() {
        var json = qmlModelInterface.calibrationsResultsJson
        var models = [colorsModel, blackLevelModel, whiteBalanceModel, matrixModel, hueModel,
                      saturationModel, gammaModel, hsbcModel]
        for (var i = 0; i < models.length; ++i)
            models[i].clear()

        var results = JSON.parse(json)
        var roots = ["Original", "Calibrated"]
        for (i = 0; i < roots.length; ++i) {
            if (results[roots[i]])
                appendSettings(roots[i], results[roots[i]])
        }
        for (var patch in results.Colors) {
            var colors = results.Colors[patch]
            Utility.convertModelValuesToRGB(colors)
            appendRow(colorsModel, patch, colors)
        }
    }

    function showPatch(patch) {
        colorsTable.selection.clear()
        if (patch >= colorsModel.count)
            return
        colorsTable.selection.select(patch)
        colorsTable.positionViewAtRow(patch, ListView.Beginning)
    }

    ListModel { id: colorsModel }
    ListModel { id: blackLevelModel }
    ListModel { id: whiteBalanceModel }
    ListModel { id: matrixModel }
    ListModel { id: hueModel }
    ListModel { id: saturationModel }
    ListModel { id: gammaModel }
    ListModel { id: hsbcModel }
    ListModel { id: lutModel }

    TavrinComboBox {
        id: reports
        objectName: "reports"
        anchors.left: reportsLabel.right
        anchors.leftMargin: margin
        y: -distanceToImage
        width: Math.min(3.5 * mButtonWidth, page.mainWidth - x)
        Accessible.name: tValueSummaries
        model: [qsTr("Colors"), qsTr("Black Level"), qsTr("White Balance"),
                qsTr("Color Transformation"), qsTr("Color Adjustment Hue"),
                qsTr("Color Adjustment Saturation"), qsTr("Gamma"),
                qsTr("Hue, Saturation, Brightness, Contrast"), qsTr("LUT")]
        onHoveredChanged: hovered ? Utility.showToolTip(page, reports, width / 2, height / 2,
                                                        tValueSummariesTooltip)
                                  : Utility.hideToolTip()

        FocusFrame {}
    }

    Text {
        id: reportsLabel
        anchors.verticalCenter: reports.verticalCenter
        font.pixelSize: mDefaultPixelSize
        text: tValueSummaries
    }

    Item {
        id: tables
        anchors.top: reports.bottom
        anchors.topMargin: margin / 2
        anchors.bottom: explanation.top
        anchors.bottomMargin: margin / 2
        width: page.mainWidth

        ReportTable {
            id: colorsTable
            objectName: "report0"
            anchors.fill: parent
            index: 0
            shownIndex: reports.currentIndex
            model: colorsModel

            ReportColumn { role: "source"; title: tSource; width: 75 }
            ReportColumn { role: "Current"; title: qsTr("Current"); width: 150 }
            ReportColumn { role: "DeltaE"; title: qsTr("Delta E"); width: 80 }
            ReportColumn { role: "DeltaC"; title: qsTr("Delta C"); width: 80 }
            ReportColumn { role: "Initial"; title: qsTr("Original"); width: 150; minimumWidth: 50 }
            ReportColumn { role: "Target"; title: qsTr("Target"); width: 150 }
        }

        ReportTable {
            objectName: "report1"
            anchors.fill: parent
            index: 1
            shownIndex: reports.currentIndex
            model: blackLevelModel

            ReportColumn { role: "source"; title: tSource; width: 90 }
            ReportColumn { role: "BlackLevel"; title: qsTr("Black Level"); width: 75 }
        }

        ReportTable {
            objectName: "report2"
            anchors.fill: parent
            index: 2
            shownIndex: reports.currentIndex
            model: whiteBalanceModel

            ReportColumn { role: "source"; title: tSource; width: 90 }
            ReportColumn { role: "Blue"; title: tBlue; width: 75 }
            ReportColumn { role: "Green"; title: tGreen; width: 75 }
            ReportColumn { role: "Red"; title: tRed; width: 75 }
        }

        ReportTable {
            objectName: "report3"
            anchors.fill: parent
            index: 3
            shownIndex: reports.currentIndex
            model: matrixModel

            ReportColumn { role: "source"; title: tSource; width: 90 }
            ReportColumn { role: "Gain00"; title: qsTr("Gain00"); width: 75 }
            ReportColumn { role: "Gain01"; title: qsTr("Gain01"); width: 75 }
            ReportColumn { role: "Gain02"; title: qsTr("Gain02"); width: 75 }
            ReportColumn { role: "Gain10"; title: qsTr("Gain10"); width: 75 }
            ReportColumn { role: "Gain11"; title: qsTr("Gain11"); width: 75 }
            ReportColumn { role: "Gain12"; title: qsTr("Gain12"); width: 75 }
            ReportColumn { role: "Gain20"; title: qsTr("Gain20"); width: 75 }
            ReportColumn { role: "Gain21"; title: qsTr("Gain21"); width: 75 }
            ReportColumn { role: "Gain22"; title: qsTr("Gain22"); width: 75 }
        }

        ReportTable {
            objectName: "report4"
            anchors.fill: parent
            index: 4
            shownIndex: reports.currentIndex
            model: hueModel

            ReportColumn { role: "source"; title: tSource; width: 90 }
            ReportColumn { role: "Blue"; title: tBlue; width: 75 }
            ReportColumn { role: "Cyan"; title: tCyan; width: 75 }
            ReportColumn { role: "Green"; title: tGreen; width: 75 }
            ReportColumn { role: "Magenta"; title: tMagenta; width: 75 }
            ReportColumn { role: "Red"; title: tRed; width: 75 }
            ReportColumn { role: "Yellow"; title: tYellow; width: 75 }
        }

        ReportTable {
            objectName: "report5"
            anchors.fill: parent
            index: 5
            shownIndex: reports.currentIndex
            model: saturationModel

            ReportColumn { role: "source"; title: tSource; width: 90 }
            ReportColumn { role: "Blue"; title: tBlue; width: 75 }
            ReportColumn { role: "Cyan"; title: tCyan; width: 75 }
            ReportColumn { role: "Green"; title: tGreen; width: 75 }
            ReportColumn { role: "Magenta"; title: tMagenta; width: 75 }
            ReportColumn { role: "Red"; title: tRed; width: 75 }
            ReportColumn { role: "Yellow"; title: tYellow; width: 75 }
        }

        ReportTable {
            objectName: "report6"
            anchors.fill: parent
            index: 6
            shownIndex: reports.currentIndex
            model: gammaModel

            ReportColumn { role: "source"; title: tSource; width: 90 }
            ReportColumn { role: "Gamma"; title: qsTr("Gamma"); width: 75 }
        }

        ReportTable {
            objectName: "report7"
            anchors.fill: parent
            index: 7
            shownIndex: reports.currentIndex
            model: hsbcModel

            ReportColumn { role: "source"; title: tSource; width: 90 }
            ReportColumn { role: "Brightness"; title: qsTr("Brightness"); width: 75 }
            ReportColumn { role: "Contrast"; title: qsTr("Contrast"); width: 75 }
            ReportColumn { role: "Hue"; title: qsTr("Hue"); width: 75 }
            ReportColumn { role: "Saturation"; title: qsTr("Saturation"); width: 75 }
        }

        // The header of this one is its message.
        ReportTable {
            objectName: "report8"
            anchors.fill: parent
            index: 8
            shownIndex: reports.currentIndex
            model: lutModel
            wrapsHeader: true

            ReportColumn { role: "explanation"; title: tLut; width: 1000 }
        }
    }

    Text {
        id: explanation
        anchors.bottom: parent.bottom
        width: page.mainWidth
        wrapMode: Text.WordWrap
        font.pixelSize: mDefaultPixelSize
        text: tCompareCalibratedExplanation
    }

    Step3Legend {
        anchors.right: parent.right
        y: -distanceToImage
    }

    RecalibrateButton {
        id: recalibrate
        anchors.right: parent.right
        anchors.bottom: singleShot.top
        anchors.bottomMargin: margin
        owner: page

        onClicked: {
            forceActiveFocus()
            start()
        }
    }

    SingleShotButton {
        id: singleShot
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        onToolTip: Utility.showToolTip(page, singleShot, mouseX, mouseY, tGrabPictureTooltip)
        onCloseToolTip: Utility.hideToolTip()
    }

    Connections {
        target: grid
        function onSelectedPatchChanged() {
            if (grid.selectedPatch >= 0)
                page.showPatch(grid.selectedPatch)
        }
    }

    Connections {
        target: qmlModelInterface
        function onCalibrationFinished() {
            page.setEnabled(true)
            page.fillJasonStatisticsToModel()
        }
        function onAutoAdjustGray80PercentPatchFinished() {
            // What ended the run is the way to another step, or the end of the wizard.
            if (!stepBar.isCameraFree)
                return
            var succeeded = Utility.autoCalibrate()
            if (stepBar.closed)
                return
            // Without results nothing else would enable the page again, and those of before are not
            // those of the settings that the camera has now.
            if (!succeeded) {
                page.setEnabled(true)
                page.fillJasonStatisticsToModel()
            }
            if (!autoRefreshChecked)
                camera.singleGrab()
        }
    }

    Component.onCompleted: {
        var problem = grid.lastError
        if (problem !== "") {
            modelError.text = problem
            modelError.open()
        }
        fillJasonStatisticsToModel()
        reports.forceActiveFocus()
    }
}
