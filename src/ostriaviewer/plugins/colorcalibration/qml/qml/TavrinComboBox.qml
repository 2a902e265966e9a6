// SPDX-License-Identifier: Apache-2.0
// A list to choose from. The desktop's own would be written in the desktop's font.
import QtQuick 2.6
import QtQuick.Controls 1.4
import QtQuick.Controls.Styles 1.4

ComboBox {
    height: mButtonHeight
    style: ComboBoxStyle {
        font.pixelSize: mDefaultPixelSize
        // The style is bright in every theme.
        textColor: "black"
    }
}
