// SPDX-License-Identifier: Apache-2.0
// Calibrates again without the user's help, for exhibitions.
import QtQuick 2.6
import QtQuick.Controls 1.4
import "functions.js" as Utility

Button {
    id: button
    objectName: "recalibrateButton"

    /// The page that holds it, with setEnabled and toolTipStandard.
    property Item owner

    width: 2 * mButtonWidth + margin
    height: mButtonHeight
    style: buttonStyle
    text: tAutoCalibration
    visible: qmlModelInterface.useAutoCalibration
    onHoveredChanged: hovered ? Utility.showToolTip(owner, button, width / 2, height / 2,
                                                    tAutoCalibrationToolTip)
                              : Utility.hideToolTip()

    function start() {
        owner.setEnabled(false)
        if (!qmlModelInterface.autoAdjustGray80PercentPatch()) {
            owner.setEnabled(true)
            modelError.text = tAutoAdjustValuesImpossible
        }
    }
}
