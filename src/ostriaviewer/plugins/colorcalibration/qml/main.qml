// SPDX-License-Identifier: Apache-2.0
// The wizard's frame: what every page shares, the keys, the message boxes and the places of the pages.
import QtQuick 2.6
import QtQuick.Controls 1.4
import QtQuick.Controls.Styles 1.4
import QtQuick.Dialogs 1.2
import QtQuick.Window 2.1
import "qml"

Rectangle {
    id: root
    objectName: "root"

    readonly property int iStep1: 1
    readonly property int iStep2: 2
    readonly property int iStep3: 3
    readonly property int iStep4: 4

    readonly property real mSliderMin: 0
    readonly property real mSliderMax: 1
    readonly property real mStepSize: 0.01
    readonly property int mSliderWidth: 430
    readonly property int mDefaultPixelSize: 11
    readonly property int mToolboxHeight: 180
    readonly property int mButtonHeight: 24
    readonly property int mButtonWidth: 100
    readonly property int mIconSize: 16
    readonly property int margin: 10
    readonly property int mTouchPointRadius: 8
    readonly property int mBorderDist: 10
    readonly property int mMinLineThickness: 1
    readonly property int mTextFieldCorrection: -2
    readonly property int mTextInputCursorCorrection: 3
    readonly property int mGray80PercentHitRateNoValue: 1000
    readonly property int mGray80PercentHitScale: 200
    readonly property int mImageReloadInterval: 200
    readonly property int mMaxWidth: 800
    readonly property int mTableColumnWidth: 80
    readonly property int mTableColumnMinWidth: 60

    readonly property color cTavrinBlue: "#00649E"
    readonly property color cTavrinLightGrey: "#f0f0f0"
    readonly property color cTavrinBorderGrey: "#828790"
    readonly property color cTouchPointColor: "#333333"
    readonly property color cTavrinGrey: "#a3a3a3"
    readonly property color cStepColorDark: "#666666"
    readonly property color cStepColorLight: "#cccccc"

    property bool bImageToDark: false
    property bool bImageToBright: false
    // The space between the fitted image and the bottom of its canvas.
    property real distanceToImage: 0
    property bool autoRefreshChecked: true

    readonly property string tStep1: qsTr("Position Grid")
    readonly property string tStep2: qsTr("Adjust Brightness")
    readonly property string tStep3: qsTr("Review Calibration Results")
    readonly property string tStep4: qsTr("Save Calibration Results")
    readonly property string tPrev: qsTr("Back")
    readonly property string tNext: qsTr("Next")
    readonly property string tFinish: qsTr("Finish")
    readonly property string tCancel: qsTr("Cancel")
    readonly property string tCancelWarning:
        qsTr("If you cancel the color calibration, any changes you made will be lost. The original settings will be restored. \nDo you really want to cancel?")
    readonly property string tLiveView: qsTr("Live View")
    readonly property string tTextShowGrid: qsTr("Show Grid")
    readonly property string tTextShowGridTooltip: qsTr("Show/hide grid pattern.")
    readonly property string tShowAutoRefresh: qsTr("Continuous Shot")
    readonly property string tShowAutoRefreshTooltip:
        qsTr("Continuously capture five images per second.")
    readonly property string tSelectedCamera: qsTr("Selected Camera: ")
    readonly property string tPreviousCalibration: qsTr("Load camera settings")
    readonly property string tPreviousCalibrationTooltip:
        qsTr("Load camera settings that were saved in a .cst file in a previous session.")
    readonly property string tAdjustGridExplanation:
        qsTr("To manually change the size and position of the grid, use the handles provided. The grid must be at least the same size as the color chart.<br>Click <b>Next</b> to confirm the position of the grid.")
    readonly property string tAutoChartFinder: qsTr("Auto-position Grid")
    readonly property string tAutoChartFinderTooltip:
        qsTr("Automatically position the grid over the color chart.")
    readonly property string tAuto: qsTr("Auto")
    readonly property string tAutoTooltip:
        qsTr("Automatically adjust the exposure time and the gain once.")
    readonly property string tStep2Explanation:
        qsTr("Change the <b>Exposure Time</b> and <b>Gain</b> settings, using the sliders or the arrow keys of your keyboard, to adjust the brightness in the image (the needle should point to the green section of the dial). Clicking the <b>Auto</b> button will adjust the settings automatically. The image is temporarily displayed in grayscale to achieve an optimal calibration result. Any changes you make here will immediately change the camera’s settings. Click <b>Next</b> to start the calibration.")
    readonly property string tGrabPicture: qsTr("Single Shot")
    readonly property string tGrabPictureTooltip: qsTr("Capture a single image.")
    readonly property string tExposureTime: qsTr("Exposure Time")
    readonly property string tExposureTimeTooltip: qsTr("Set the exposure time.")
    readonly property string tGain: qsTr("Gain")
    readonly property string tGainTooltip: qsTr("Set the gain.")
    readonly property string tSaveCalibration: qsTr("Save camera settings to file")
    readonly property string tSaveCalibrationTooltip: qsTr("Save camera settings as .cst file.")
    readonly property string tSaveSummary: qsTr("Save calibration summary")
    readonly property string tSaveSummaryTooltip:
        qsTr("Save camera settings, images, and the calibration report.")
    readonly property string tStep4Explanation:
        qsTr("Use the slider to compare the colors in the image before and after calibration. Click <b>Save</b> to save all selected files and settings. Click <b>Finish</b> to complete the calibration. If you click <b>Cancel</b>, the original settings will be restored.")
    readonly property string tSaveSettings: qsTr("Save")
    readonly property string tSaveSettingsTooltip: qsTr("Execute all selected save options.")
    readonly property string tSaveSettingsAsUserSet: qsTr("Save camera settings in user set")
    readonly property string tSaveSettingsAsUserSetTooltip:
        qsTr("Save camera settings in a user set.")
    readonly property string tSaveSettingsAsDefault: qsTr("Save settings as default")
    readonly property string tSaveSettingsAsDefaultTooltip: qsTr("Save settings as default.")
    readonly property string tValueSummaries: qsTr("Calibration Reports")
    readonly property string tValueSummariesTooltip:
        qsTr("Show an overview of the original and new camera settings by parameter.")
    readonly property string tCompareCalibratedExplanation:
        qsTr("Review the color values in the above image by moving the mouse over the patches in the grid. To display an overview of the values of a certain parameter, pick an item in the <b>Calibration Reports</b> list. Click <b>Next</b> to continue with these values.")
    readonly property string tLut:
        qsTr("To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color Calibrator at the same time, would adversely affect the color calibration.")
    readonly property string tTargetValue: qsTr("1 - Target Value")
    readonly property string tOriginalValue: qsTr("2 - Original Value")
    readonly property string tCalibratedValue: qsTr("3 - Current Value")
    readonly property string tNone: qsTr("None")
    readonly property string tSkalaTooltip:
        qsTr("Shows whether the target value for calibration has been reached.")
    readonly property string tTooBright: qsTr("Too bright")
    readonly property string tTooDark: qsTr("Too dark")
    readonly property string tJustRight: qsTr("Just right")
    readonly property string tImageOverlayTooltip:
        qsTr("Use the slider to compare the colors in images before and after calibration.")
    readonly property string tBeforeCalibration: qsTr("Before Calibration")
    readonly property string tAfterCalibration: qsTr("After Calibration")
    readonly property string tAutoCalibration: qsTr("Recalibrate Camera")
    readonly property string tAutoCalibrationToolTip: qsTr("Automatically recalibrate the camera.")
    readonly property string tMsgHeader: qsTr("Color Calibrator")
    readonly property string tAutoAdjustValuesImpossible: qsTr("Autoadjust values <br> impossible!")
    readonly property string tMsgErrImageSizeTooSmall:
        qsTr("The image size is too small to achieve a good calibration result. Ideally, the color checker should fill the whole image view area.")
    readonly property string tMsgErrImageTooDark:
        qsTr("The image is too dark and the calibration failed. Adjust the exposure time and the gain to achieve optimum brightness.<br>")
    readonly property string tMsgErrImageTooBright:
        qsTr("The image is too bright and the calibration failed. Adjust the exposure time and the gain to achieve optimum brightness.<br>")
    readonly property string tMsgErrSelectSaveOption:
        qsTr("You haven’t selected any of the save options. To save settings or results, select one of the available options.<br>")
    readonly property string tMsgErrSaveToFilePath: qsTr("Couldn't save settings to file path!<br>")
    readonly property string tMsgErrSaveSummary: qsTr("Couldn't save summary!<br>")
    readonly property string tMsgErrSaveUserSet: qsTr("Couldn't store settings in user set: ")
    readonly property string tWarningAutoChartFailed:
        qsTr("Grid could not be positioned automatically.")
    readonly property string tMsgWarningImageTooDark:
        qsTr("The image is too dark. Adjust the exposure time and the gain to achieve optimum brightness.<br>")
    readonly property string tMsgWarningImageTooBright:
        qsTr("The image is too bright. Adjust the exposure time and the gain to achieve optimum brightness.<br>")
    readonly property string tMsgWarningImageTooBrightOrTooDark:
        qsTr("The calibration process failed because the image is either too bright or too dark. Adjust the brightness and try again.")
    readonly property string tSource: qsTr("Source")
    readonly property string tBlue: qsTr("Blue")
    readonly property string tGreen: qsTr("Green")
    readonly property string tRed: qsTr("Red")
    readonly property string tMagenta: qsTr("Magenta")
    readonly property string tYellow: qsTr("Yellow")
    readonly property string tCyan: qsTr("Cyan")

    readonly property Component buttonStyle: ButtonStyle {
        background: Rectangle {
            radius: 2
            color: !control.enabled ? cTavrinLightGrey
                 : control.pressed ? cStepColorLight
                 : control.hovered ? "#ffffff" : "#fafafa"
            border.width: control.activeFocus ? 2 : 1
            border.color: !control.enabled ? cStepColorLight
                        : control.activeFocus || control.isDefault ? cTouchPointColor
                                                                   : cTavrinBorderGrey
        }
        label: Item {
            implicitWidth: content.implicitWidth
            implicitHeight: content.implicitHeight

            Row {
                id: content
                anchors.centerIn: parent
                spacing: margin / 2
                opacity: control.enabled ? 1 : 0.5

                Image {
                    source: control.iconSource
                    visible: source != ""
                    sourceSize: Qt.size(mIconSize, mIconSize)
                    anchors.verticalCenter: parent.verticalCenter
                }
                Text {
                    text: control.text
                    font.pixelSize: mDefaultPixelSize
                    anchors.verticalCenter: parent.verticalCenter
                }
            }
        }
    }

    readonly property Component checkBoxStyle: CheckBoxStyle {
        spacing: margin / 2
        indicator: Rectangle {
            implicitWidth: 13
            implicitHeight: 13
            color: control.enabled ? "white" : cTavrinLightGrey
            border.width: control.activeFocus ? 2 : 1
            border.color: control.activeFocus ? cTouchPointColor : cTavrinBorderGrey

            Image {
                objectName: "checkMark"
                anchors.fill: parent
                source: "qrc:/ColCal/checked.png"
                opacity: !control.checked ? 0 : control.enabled ? 1 : 0.5

                Behavior on opacity {
                    NumberAnimation { duration: 80 }
                }
            }
        }
        label: Text {
            text: control.text
            font.pixelSize: mDefaultPixelSize
            color: control.enabled ? "black" : cTavrinBorderGrey
        }
    }

    function disableNavigation() {
        navigation.disable()
    }

    function enableNavigation() {
        navigation.enable()
    }

    function closeBoxes() {
        modelError.close()
        modelWarning.close()
        criticalError.answered = true
        criticalError.close()
        navigation.closeQuestion()
    }

    function placeToolTip(item, mouseX, mouseY, toolTipText) {
        standardToolTip.text = toolTipText
        var toolTipWidth = standardToolTip.width
        var posX = mouseX + item.x + item.parent.x
        if (posX > item.parent.width - toolTipWidth + 2.5 * margin)
            posX -= toolTipWidth
        standardToolTip.x = posX + margin / 2
        standardToolTip.y = mouseY + item.y + item.parent.y + 2 * margin
    }

    // For the pages, whose loaders have a progress of their own.
    readonly property alias stepBar: progress

    property Item keysBefore: null
    property int stepBefore: 0

    // What has the keys must not act on the camera while it is led to another step.
    function holdKeys() {
        keysBefore = Window.activeFocusItem
        stepBefore = qmlModelInterface.activeStep
        root.forceActiveFocus()
    }

    function giveKeysBack() {
        // Pages that are new have taken the keys themselves, or leave them here.
        var stays = stepBefore === qmlModelInterface.activeStep || isIn(navigation, keysBefore)
        if (stays && keysBefore && root.activeFocus)
            keysBefore.forceActiveFocus()
        keysBefore = null
    }

    function isIn(parent, item) {
        for (; item; item = item.parent) {
            if (item === parent)
                return true
        }
        return false
    }

    anchors.fill: parent
    color: cTavrinLightGrey
    focus: true

    onAutoRefreshCheckedChanged: qmlModelInterface.singleShotEnabled = !autoRefreshChecked

    function goOn() {
        if (progress.moving)
            return
        if (qmlModelInterface.activeStep === iStep2)
            toolBox.runAutoButton()
        else
            navigation.jumpNext()
    }

    // The window lets none of these through again while it is held.
    Keys.onReturnPressed: goOn()
    Keys.onEnterPressed: goOn()
    Keys.onEscapePressed: navigation.jumpCancel()
    Keys.onPressed: {
        if (progress.moving)
            event.accepted = true
        else if (event.key === Qt.Key_Z && event.modifiers === Qt.ControlModifier
                && qmlModelInterface.activeStep === iStep1) {
            gridOutline.resetOutline()
            event.accepted = true
        }
    }

    // Not among the items: a box takes its item's window for its own parent, and the wizard's view,
    // which stands in another window, can be none.
    QtObject {
        readonly property MessageDialog error: MessageDialog {
            id: modelError
            objectName: "modelError"
            modality: Qt.ApplicationModal
            icon: StandardIcon.Critical
            title: tMsgHeader
            text: ""

            // A box that is on the screen keeps the text that it came up with.
            onTextChanged: {
                if (visible) {
                    close()
                    open()
                }
            }
        }

        readonly property MessageDialog warning: MessageDialog {
            id: modelWarning
            objectName: "modelWarning"
            modality: Qt.ApplicationModal
            icon: StandardIcon.Warning
            title: tMsgHeader
            text: ""
        }

        readonly property MessageDialog critical: MessageDialog {
            id: criticalError
            objectName: "criticalError"
            modality: Qt.ApplicationModal
            icon: StandardIcon.Critical
            title: tMsgHeader
            text: ""

            // The box tells of one answer twice.
            property bool answered: false

            // There is no way on from here, so Escape is an answer as good as OK.
            function endWizard() {
                if (answered)
                    return
                answered = true
                qmlModelInterface.cancel()
            }

            onVisibleChanged: {
                if (visible)
                    answered = false
            }
            onAccepted: endWizard()
            onRejected: endWizard()
        }
    }

    // A box that outlived the wizard would lock the viewer, and answer for a camera that is closed.
    Connections {
        target: qmlModelInterface
        function onCameraLost() {
            closeBoxes()
        }
        function onCleanupQML() {
            closeBoxes()
        }
    }

    Progress {
        id: progress
        objectName: "progress"
        anchors { top: parent.top; left: parent.left; right: parent.right; margins: margin }

        onMovingChanged: moving ? holdKeys() : giveKeysBack()
        onCancelAgain: navigation.tryCancel()
        onClose: {
            autoRefreshChecked = false
            camera.stopGrab()
            qmlModelInterface.finish()
        }
    }

    Body {
        id: body
        objectName: "body"
        anchors {
            top: progress.bottom
            bottom: toolBox.top
            left: parent.left
            right: parent.right
            margins: margin
            // The check boxes stand under the picture.
            bottomMargin: 2.5 * margin
        }

        onToolTipStandard: placeToolTip(body, mouseX, mouseY, toolTipText)
    }

    ToolBox {
        id: toolBox
        objectName: "toolBox"
        height: mToolboxHeight
        anchors {
            bottom: navigation.top
            left: parent.left
            right: parent.right
            margins: margin
        }

        onToolTipStandard: placeToolTip(toolBox, mouseX, mouseY, toolTipText)
    }

    // Nor must the mouse; it may still cancel.
    MouseArea {
        objectName: "lock"
        anchors.fill: parent
        visible: progress.moving
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel.accepted = true
    }

    Navigation {
        id: navigation
        objectName: "navigation"
        anchors { bottom: parent.bottom; right: parent.right; margins: margin }

        onNext: progress.jumpNext()
        onPrev: progress.jumpPrev()
        onCancel: {
            camera.stopGrab()
            qmlModelInterface.cancel()
        }
    }

    TavrinToolTip {
        id: standardToolTip
        objectName: "standardToolTip"
        visible: false
    }
}
