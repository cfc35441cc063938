// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// Shows that its parent has the keyboard, drawn around it.
Rectangle {
    property int inset: -2

    anchors { fill: parent; margins: inset }
    radius: Measures.radius
    color: "transparent"
    visible: parent.activeFocus
    border { width: Measures.focusRing; color: appPalette.highlight }
}
