// SPDX-License-Identifier: Apache-2.0
// The place of a page.
import QtQuick 2.6

Item {
    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)
}
