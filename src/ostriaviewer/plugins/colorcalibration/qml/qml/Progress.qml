// SPDX-License-Identifier: Apache-2.0
// The four steps: the bar at the top, and what the camera goes through from one step to the next.
import QtQuick 2.6

Item {
    id: bar

    property Rectangle active
    property string errorText: ""
    property string warningText: ""
    property string criticalText: ""

    // The camera's images are waited for in event loops, in which clicks, keys and the end of the
    // wizard arrive. What changes the camera must not begin a second time in there.
    property bool moving: false
    property bool cancelWanted: false

    // The wizard has ended, or will as soon as the user has read that the camera is lost.
    property bool closed: false

    // Otherwise pages would ask a camera that is being led on, or that is not there.
    readonly property bool isCameraFree: !moving && !closed

    readonly property int activeStep: qmlModelInterface.activeStep
    readonly property real outerLine: (width - 8 * margin) / 8
    readonly property real innerLine: (width - 8 * margin) / 4

    signal close()
    signal cancelAgain()

    // Does this unless something of the kind is under way. A wish to cancel is heard afterwards.
    function runAlone(work) {
        if (moving)
            return
        moving = true
        cancelWanted = false
        try {
            work()
        } finally {
            moving = false
            // That box ends the wizard, whatever the answer is.
            if (cancelWanted && !closed && !criticalError.visible)
                cancelAgain()
        }
    }

    function stepColor(step) {
        return step <= activeStep ? cStepColorDark : cStepColorLight
    }

    function centerOf(index) {
        return outerLine + margin + index * (innerLine + 2 * margin)
    }

    // None as long as not all are made.
    function circleAt(index) {
        return circles.count === iStep4 ? circles.itemAt(index) : null
    }

    function moveTo(circle) {
        // A search for the chart that still runs would enable the buttons of a page that has gone.
        if (active.step === iStep1)
            enableNavigation()
        active = circle
        qmlModelInterface.activeStep = circle.step
    }

    // The live image goes on after a step that failed.
    function resumeGrab() {
        if (autoRefreshChecked)
            camera.startGrab()
    }

    function jumpNext() {
        runAlone(goOn)
    }

    function jumpPrev() {
        runAlone(goBack)
    }

    function goOn() {
        var success = false
        if (active.step === iStep1) {
            success = leaveGrid()
        } else if (active.step === iStep2) {
            success = leaveBrightness()
        } else if (active.step === iStep3) {
            success = initStep4()
        } else {
            camera.stopGrab()
            close()
            return
        }

        if (closed)
            return
        var ended = criticalText !== ""
        showMessages()
        if (success)
            moveTo(active.next)
        else if (!ended)
            resumeGrab()
    }

    function leaveGrid() {
        camera.stopGrab()
        // A backup of the neutral, gray state would be of no use.
        if (qmlModelInterface.isBackupOwed() && !qmlModelInterface.restoreSettingsBackup())
            return fail(qmlModelInterface.restoreProblem())
        // The first backup is what Cancel goes back to, the second takes the pictures of before and
        // after.
        if (!qmlModelInterface.createSettingsBackup() || !qmlModelInterface.createSettingsBackup(true))
            return fail(qmlModelInterface.backupProblem())
        if (initStep2())
            return true
        // The next attempt makes its backup of what the camera holds then.
        if (!closed)
            qmlModelInterface.restoreSettingsBackup()
        return false
    }

    function leaveBrightness() {
        if (initStep3())
            return true
        if (closed)
            return false
        console.log("calibration failed: restore settings")
        camera.stopGrab()
        qmlModelInterface.restoreSettingsBackup()
        initStep2()
        return false
    }

    function showMessages() {
        if (warningText !== "") {
            modelWarning.text = warningText
            warningText = ""
            modelWarning.open()
        }
        if (errorText !== "") {
            modelError.text = errorText
            errorText = ""
            modelError.open()
        }
        if (criticalText !== "") {
            criticalError.text = criticalText
            criticalText = ""
            criticalError.open()
        }
    }

    function goBack() {
        if (active.step === iStep2) {
            camera.stopGrab()
            qmlModelInterface.restoreSettingsBackup()
        } else if (active.step === iStep3) {
            initStep2()
        }
        if (!closed)
            moveTo(active.prev)
    }

    function initStep2() {
        camera.stopGrab()
        if (qmlModelInterface.previousCalibrationFile !== ""
                && !qmlModelInterface.loadSettings(qmlModelInterface.previousCalibrationFile))
            return fail(qsTr("Could not load previous settings."))
        if (!qmlModelInterface.setNeutralSettings())
            return failUnlessFailed(qsTr("Unable to set neutral settings."))
        if (!qmlModelInterface.executeWhitebalance()) {
            if (criticalText === "")
                criticalText = tMsgWarningImageTooBrightOrTooDark
            return false
        }
        qmlModelInterface.activateMonoImage()
        // The sliders of step 2 would fight with the camera's own automatics.
        qmlModelInterface.disableAutoFunctions()
        if (!exposureTime.initialize())
            return fail(qsTr("No initial parameters (min, max, value) <br> for exposure time available."))
        if (!gainValue.initialize())
            return fail(qsTr("No initial parameters (min, max, value) <br> for gain value available."))
        return true
    }

    function initStep3() {
        camera.stopGrab()
        noteBrightness()
        if (!qmlModelInterface.storeDetectedExposureAndGain())
            return fail(qsTr("Couldn't store detected exposure and gain values."))
        if (!qmlModelInterface.restoreSettingsBackup(true))
            return fail(qsTr("Couldn't restore preneutral camera settings."))
        if (!qmlModelInterface.restoreDetectedExposureAndGain())
            return fail(qsTr("Couldn't restore detected exposure and gain values."))
        if (!qmlModelInterface.applyInitialCameraImageAndPatchValues())
            return fail(qsTr("Couldn't apply initial camera image or set original patch color values."))
        if (!qmlModelInterface.setNeutralSettings())
            return failUnlessFailed(qsTr("Unable to set neutral settings."))
        if (!qmlModelInterface.restoreDetectedExposureAndGain())
            return fail(qsTr("Couldn't restore detected exposure and gain values."))
        if (!qmlModelInterface.applyInitialColorPatchValues())
            return failUnlessFailed(qsTr("Couldn't apply <br> initial values."))
        if (!qmlModelInterface.executeCalibrationAndApply())
            return failCalibration()
        errorText = ""
        warningText = ""
        return true
    }

    function initStep4() {
        return true
    }

    function noteBrightness() {
        if (bImageToBright) {
            warningText = tMsgWarningImageTooBright
            bImageToBright = false
        }
        if (bImageToDark) {
            warningText = tMsgWarningImageTooDark
            bImageToDark = false
        }
    }

    function fail(text) {
        errorText = text
        return false
    }

    function failUnlessFailed(text) {
        return fail(errorText === "" ? text : errorText)
    }

    // A picture known to be too bright or too dark is the reason why the calibration failed.
    function failCalibration() {
        if (errorText !== "")
            return false
        if (warningText === tMsgWarningImageTooBright) {
            warningText = ""
            return fail(tMsgErrImageTooBright)
        }
        if (warningText === tMsgWarningImageTooDark) {
            warningText = ""
            return fail(tMsgErrImageTooDark)
        }
        return fail(qsTr("Calibration process failed.<br>"))
    }

    Connections {
        target: qmlModelInterface
        function onCameraLost() {
            bar.closed = true
        }
        function onCleanupQML() {
            bar.closed = true
        }
    }

    height: 2 * margin + 2 * mDefaultPixelSize
    Component.onCompleted: active = circles.itemAt(0)

    // Each step's line comes before its circle; the last line has a step's color, but no circle.
    Repeater {
        model: 5

        Rectangle {
            readonly property bool outer: index === 0 || index === 4

            objectName: "stepLine" + (index + 1)
            x: index === 0 ? 0 : bar.centerOf(index - 1) + margin
            y: margin - height / 2
            width: (outer ? bar.outerLine : bar.innerLine) + 1
            height: 2 * mMinLineThickness
            color: bar.stepColor(Math.min(index + 1, iStep4))
        }
    }

    Repeater {
        id: circles
        model: [tStep1, tStep2, tStep3, tStep4]

        Rectangle {
            readonly property int step: index + 1
            readonly property Rectangle next: bar.circleAt(step % circles.count)
            readonly property Rectangle prev: bar.circleAt((step + 2) % circles.count)

            objectName: "step" + step
            x: bar.centerOf(index) - margin
            width: 2 * margin
            height: width
            radius: margin
            color: bar.stepColor(step)

            Rectangle {
                objectName: "innerCircle" + parent.step
                visible: parent.step !== iStep1 && parent.step > bar.activeStep
                anchors { fill: parent; margins: 2 }
                radius: width / 2
                color: cTavrinLightGrey
            }

            Text {
                objectName: "stepName" + parent.step
                anchors {
                    top: parent.bottom
                    topMargin: margin / 3
                    horizontalCenter: parent.horizontalCenter
                }
                text: modelData
                font.pixelSize: mDefaultPixelSize
                color: parent.color
            }
        }
    }
}
