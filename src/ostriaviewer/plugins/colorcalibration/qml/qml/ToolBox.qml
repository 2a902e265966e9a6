// SPDX-License-Identifier: Apache-2.0
// The place of the controls under the picture: loads the tool box of the active step.
import QtQuick 2.6

Item {
    id: toolBox

    property int shownStep: iStep1

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    function pageOf(step) {
        return "Step" + (step >= iStep1 && step <= iStep4 ? step : iStep1) + "ToolBox.qml"
    }

    function activateCurrentStep() {
        var step = qmlModelInterface.activeStep
        // A step announced once more wants its page anew, which a loader with its own source ignores.
        if (step === shownStep)
            loader.source = ""
        shownStep = step
        // A page that goes does not take its tooltip along.
        standardToolTip.visible = false
        loader.source = pageOf(step)
    }

    function runAutoButton() {
        if (loader.item && loader.item.runAutoAdjustGray80Percent)
            loader.item.runAutoAdjustGray80Percent()
    }

    Loader {
        id: loader
        objectName: "toolBoxLoader"
        anchors.fill: parent
        source: "Step1ToolBox.qml"
    }

    Connections {
        target: qmlModelInterface
        function onActiveStepChanged() {
            toolBox.activateCurrentStep()
        }
    }

    Connections {
        target: loader.item
        ignoreUnknownSignals: true
        function onToolTipStandard(mouseX, mouseY, toolTipText) {
            toolBox.toolTipStandard(mouseX + loader.x, mouseY + loader.y, toolTipText)
        }
    }
}
