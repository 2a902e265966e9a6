// SPDX-License-Identifier: Apache-2.0
// A column of a report, which cannot be made so narrow that it is lost.
import QtQuick 2.6
import QtQuick.Controls 1.4

TableViewColumn {
    property int minimumWidth: mTableColumnMinWidth

    width: mTableColumnWidth
    onWidthChanged: {
        if (width < minimumWidth)
            width = minimumWidth
    }
}
