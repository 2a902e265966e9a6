// SPDX-License-Identifier: Apache-2.0
// The controls of the brightness, and the gauge that shows how far it is off.
import QtQuick 2.6
import QtQuick.Controls 1.4
import QtQuick.Dialogs 1.2
import "functions.js" as Utility

Item {
    id: page

    property bool completed: false

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    function setEnabled(enabled) {
        exposureSlider.enabled = enabled
        gainSlider.enabled = enabled
        autoButton.enabled = enabled
        checkTimer.controlsEnabled = enabled
        Utility.setPageEnabled(enabled)
    }

    function runAutoAdjustGray80Percent() {
        // Another run would only begin the one that is under way anew.
        if (!autoButton.enabled)
            return
        checkTimer.updateImages = true
        setEnabled(false)
        if (qmlModelInterface.autoAdjustGray80PercentPatch())
            return
        setEnabled(true)
        autoAdjustGrayError.open()
    }

    function showError(text) {
        if (text === "")
            return
        modelError.text = text
        modelError.open()
    }

    function takeValue(adapter, slider) {
        // A page that is being made moves nothing, and neither does a slider that only follows.
        if (!completed)
            return
        checkTimer.updateImages = true
        if (slider.enabled && stepBar.isCameraFree)
            adapter.value = slider.value
        Utility.hideToolTip()
    }

    function showSliderToolTip(slider, text) {
        if (!slider.hovered) {
            Utility.hideToolTip()
            return
        }
        var range = slider.maximumValue - slider.minimumValue
        var part = range > 0 ? (slider.value - slider.minimumValue) / range : 0
        Utility.showToolTip(page, slider, part * slider.width, slider.height / 2, text)
    }

    Component.onCompleted: {
        completed = true
        autoButton.forceActiveFocus()
    }

    Column {
        id: sliders
        y: -distanceToImage
        spacing: margin

        Row {
            Text {
                id: exposureLabel
                width: implicitWidth + margin
                height: exposureSlider.height
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: mDefaultPixelSize
                text: tExposureTime
            }
            Slider {
                id: exposureSlider
                objectName: "exposureSlider"
                width: mSliderWidth - exposureLabel.width
                minimumValue: exposureTime.min
                maximumValue: exposureTime.max
                stepSize: mStepSize
                value: exposureTime.value
                activeFocusOnPress: true
                Accessible.name: tExposureTime
                onValueChanged: page.takeValue(exposureTime, exposureSlider)
                onHoveredChanged: page.showSliderToolTip(exposureSlider, tExposureTimeTooltip)

                FocusFrame {
                    anchors.margins: -0.3 * margin
                }
            }
        }

        Row {
            Text {
                width: exposureLabel.width
                height: gainSlider.height
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: mDefaultPixelSize
                text: tGain
            }
            Slider {
                id: gainSlider
                objectName: "gainSlider"
                width: mSliderWidth - exposureLabel.width
                minimumValue: mSliderMin
                maximumValue: mSliderMax
                stepSize: mStepSize
                value: gainValue.value
                activeFocusOnPress: true
                Accessible.name: tGain
                onValueChanged: page.takeValue(gainValue, gainSlider)
                onHoveredChanged: page.showSliderToolTip(gainSlider, tGainTooltip)

                FocusFrame {
                    anchors.margins: -0.3 * margin
                }
            }
        }
    }

    Image {
        id: gauge
        objectName: "gauge"

        readonly property real hitRate: qmlModelInterface.gray80PercentHitRate
        readonly property real distance: Math.abs(hitRate - 100)
        readonly property bool hasValue: distance <= mGray80PercentHitRateNoValue
        readonly property real angle: Math.max(-90, Math.min(90,
            (hitRate - 100) / 100.0 * mGray80PercentHitScale))

        anchors { left: sliders.right; leftMargin: 4 * margin }
        y: -distanceToImage
        source: "qrc:/ColCal/targetvalue.png"

        onAngleChanged: {
            bImageToDark = distance > 20 && hitRate < 100
            bImageToBright = distance > 20 && hitRate >= 100
        }

        Image {
            id: needle
            objectName: "needle"
            visible: gauge.hasValue
            anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
            source: "qrc:/ColCal/targetpointer.png"
            transform: Rotation {
                objectName: "needleRotation"
                origin.x: needle.width / 2
                origin.y: needle.height - needle.width / 2
                angle: gauge.angle
            }
        }

        MouseArea {
            objectName: "gaugeArea"
            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.NoButton
            onEntered: {
                var place = mapToItem(page, mouseX, mouseY)
                gaugeToolTip.x = place.x - gaugeToolTip.width + margin / 2
                gaugeToolTip.y = place.y + 1.5 * margin
                gaugeToolTip.visible = true
            }
            onExited: gaugeToolTip.visible = false
        }
    }

    Text {
        objectName: "gaugeComment"
        visible: gauge.hasValue
        anchors {
            top: gauge.bottom
            topMargin: margin / 3
            horizontalCenter: gauge.horizontalCenter
        }
        font.pixelSize: mDefaultPixelSize
        text: gauge.distance < 20 ? tJustRight : gauge.hitRate < 100 ? tTooDark : tTooBright
    }

    Text {
        objectName: "explanation"
        anchors { left: parent.left; bottom: parent.bottom }
        width: parent.width - 2 * mButtonWidth - 2 * margin
        wrapMode: Text.WordWrap
        font.pixelSize: mDefaultPixelSize
        text: tStep2Explanation
    }

    Button {
        id: autoButton
        objectName: "autoButton"
        anchors { right: parent.right; bottom: singleShot.top; bottomMargin: margin }
        width: 2 * mButtonWidth + margin
        height: mButtonHeight
        isDefault: true
        style: buttonStyle
        text: tAuto
        onClicked: page.runAutoAdjustGray80Percent()
        onHoveredChanged: {
            if (hovered)
                Utility.showToolTip(page, autoButton, width / 2, height / 2, tAutoTooltip)
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

    TavrinToolTip {
        id: gaugeToolTip
        objectName: "gaugeToolTip"
        visible: false
        text: tSkalaTooltip
    }

    // Not among the items, as in main.qml.
    QtObject {
        readonly property MessageDialog error: MessageDialog {
            id: autoAdjustGrayError
            objectName: "autoAdjustGrayError"
            modality: Qt.ApplicationModal
            title: qsTr("autoadjust error")
            text: tAutoAdjustValuesImpossible
            width: 300
        }
    }

    // A new image after a change, where no images come by themselves.
    Timer {
        id: checkTimer
        objectName: "checkTimer"

        property bool updateImages: false
        property bool controlsEnabled: false

        running: true
        repeat: true
        interval: 500
        onTriggered: {
            if (!stepBar.isCameraFree || !updateImages || (controlsEnabled && autoRefreshChecked))
                return
            camera.singleGrab()
            updateImages = false
        }
    }

    Connections {
        target: exposureTime
        function onLastErrorChanged() {
            page.showError(exposureTime.lastError)
        }
    }

    Connections {
        target: gainValue
        function onLastErrorChanged() {
            page.showError(gainValue.lastError)
        }
    }

    Connections {
        target: qmlModelInterface
        function onAutoAdjustGray80PercentPatchFinished() {
            page.setEnabled(true)
        }
        function onCameraLost() {
            autoAdjustGrayError.close()
        }
        function onCleanupQML() {
            Utility.cleanUpQml()
            checkTimer.stop()
            autoAdjustGrayError.close()
        }
    }
}
