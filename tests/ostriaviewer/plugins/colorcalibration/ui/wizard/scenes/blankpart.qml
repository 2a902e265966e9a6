// SPDX-License-Identifier: Apache-2.0
// Loads a page that does not exist.
import QtQuick 2.6

Rectangle {
    Loader { source: "qrc:/ColCal/qml/Absent.qml" }
}
