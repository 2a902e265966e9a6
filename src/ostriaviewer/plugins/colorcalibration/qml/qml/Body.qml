// SPDX-License-Identifier: Apache-2.0
// The place of the picture: loads the canvas of the active step.
import QtQuick 2.6

Item {
    id: body

    property int shownStep: iStep1

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    function pageOf(step) {
        switch (step) {
        case iStep3:
            return "CanvasStep3.qml"
        case iStep4:
            return "CanvasStep4.qml"
        default:
            return "CanvasStep12.qml"
        }
    }

    function activateCurrentStep() {
        var step = qmlModelInterface.activeStep
        // A step announced once more wants its page anew, which a loader with its own source ignores.
        if (step === shownStep)
            loader.source = ""
        shownStep = step
        loader.source = pageOf(step)
        if ((step === iStep1 || step === iStep2) && autoRefreshChecked)
            camera.startGrab()
    }

    Loader {
        id: loader
        objectName: "bodyLoader"
        anchors.fill: parent
        source: "CanvasStep12.qml"
    }

    Connections {
        target: qmlModelInterface
        function onActiveStepChanged() {
            body.activateCurrentStep()
        }
    }

    Connections {
        target: loader.item
        ignoreUnknownSignals: true
        function onToolTipStandard(mouseX, mouseY, toolTipText) {
            body.toolTipStandard(mouseX + loader.x, mouseY + loader.y, toolTipText)
        }
    }
}
