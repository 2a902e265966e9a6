// SPDX-License-Identifier: Apache-2.0
// Loads a page that needs a module that nobody has.
import QtQuick 2.6

Rectangle {
    Loader { source: "qrc:/ColCal/qml/Part.qml" }
}
