// SPDX-License-Identifier: Apache-2.0
// The place of the legend.
import QtQuick 2.6

Item {
}
