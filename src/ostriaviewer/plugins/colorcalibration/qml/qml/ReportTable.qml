// SPDX-License-Identifier: Apache-2.0
// A table of calibration results: one of several in the same place, of which one is shown.
import QtQuick 2.6
import QtQuick.Controls 1.4

TableView {
    id: table

    /// Place of the report in the list of reports, and the one that is chosen there.
    property int index
    property int shownIndex

    /// Breaks a title that is wider than the table into lines.
    property bool wrapsHeader: false

    visible: index === shownIndex
    frameVisible: false
    horizontalScrollBarPolicy: wrapsHeader ? Qt.ScrollBarAlwaysOff : Qt.ScrollBarAsNeeded
    selectionMode: SelectionMode.SingleSelection
    Accessible.name: tValueSummaries

    // By the bar, as the view itself scrolls for the keys of pages.
    function scrollSideways(step) {
        __horizontalScrollBar.value += step
    }

    // Numbers of cameras may have more digits than a column has room for.
    function shown(value) {
        if (value === undefined)
            return ""
        if (!/^-?\d+\.\d{6,}$/.test(value))
            return value
        // A small value must not pass for none.
        return Math.abs(value) < 0.0001 ? Number(value).toPrecision(5) : Number(value).toFixed(5)
    }

    Keys.onLeftPressed: scrollSideways(-mTableColumnMinWidth)
    Keys.onRightPressed: scrollSideways(mTableColumnMinWidth)
    // The view keeps this key to itself as soon as a row is current.
    Keys.onReturnPressed: navigation.jumpNext()

    rowDelegate: Rectangle {
        height: 1.8 * mDefaultPixelSize
        color: styleData.selected ? cTavrinGrey
                                  : styleData.alternate ? palette.alternateBase : palette.base
    }

    itemDelegate: Item {
        implicitWidth: value.implicitWidth + margin

        Text {
            id: value
            anchors.fill: parent
            anchors.leftMargin: margin / 2
            verticalAlignment: Text.AlignVCenter
            elide: styleData.elideMode
            // Colors of the wizard's own have a text that goes with them, whatever the desktop's is.
            color: styleData.selected ? "black" : palette.text
            font.pixelSize: mDefaultPixelSize
            text: table.shown(styleData.value)
        }
    }

    headerDelegate: Rectangle {
        implicitWidth: title.implicitWidth + margin
        height: Math.max(2 * mDefaultPixelSize, title.contentHeight + 0.8 * margin)
        color: cTavrinLightGrey

        Text {
            id: title
            x: margin / 2
            width: (wrapsHeader ? Math.min(parent.width, table.viewport.width) : parent.width)
                   - 0.8 * margin
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: wrapsHeader ? Text.WordWrap : Text.NoWrap
            elide: wrapsHeader ? Text.ElideNone : Text.ElideRight
            color: "black"
            font.pixelSize: mDefaultPixelSize
            text: styleData.value
        }

        Rectangle {
            anchors.right: parent.right
            width: 1
            height: parent.height
            color: cStepColorLight
        }
    }

    SystemPalette {
        id: palette
    }

    Rectangle {
        objectName: "frame"
        parent: table
        anchors.fill: parent
        z: 1
        color: "transparent"
        border.width: 1
        border.color: table.activeFocus ? "black" : cTavrinBorderGrey
    }
}
