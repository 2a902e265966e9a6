// SPDX-License-Identifier: Apache-2.0
// Needs a module that nobody has.
import QtQuick 2.6
import Not.There 1.0

Item {}
