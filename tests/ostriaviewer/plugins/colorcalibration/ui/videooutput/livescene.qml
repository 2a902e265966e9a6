// SPDX-License-Identifier: Apache-2.0
// The live image over the whole window, on a page that can be loaded anew.
import QtQuick 2.5
import QtMultimedia 5.8

Item {
    width: 160
    height: 120

    function showPage(shown) {
        page.active = shown;
    }

    Loader {
        id: page

        objectName: "page"
        anchors.fill: parent
        sourceComponent: VideoOutput {
            source: camera
            fillMode: VideoOutput.Stretch
        }
    }
}
