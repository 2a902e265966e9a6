// SPDX-License-Identifier: Apache-2.0
// Picks a folder.
import QtQuick 2.6
import tavrin.filedialog 1.0
import "functions.js" as Utility

Item {
    property alias useFilters: dialog.nameFilters
    property alias folder: dialog.folder

    signal signalFileName(string fileName)

    function openDialog() {
        dialog.open()
    }

    QMLFileDialog {
        id: dialog
        title: qsTr("Choose a Folder")
        selectMultiple: false
        selectFolder: true
        onAccepted: signalFileName(Utility.pathOfUrl(fileUrl))
        onRejected: console.log("file rejected")
    }
}
