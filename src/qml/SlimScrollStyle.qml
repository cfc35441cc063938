// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls.Styles 1.1
import "."

// Scroll bars as a slim handle without a trough, in the palette's colours.
ScrollViewStyle {
    property color handleColor: appPalette.text

    transientScrollBars: false
    handleOverlap: 0
    minimumHandleLength: 4 * Measures.grid
    frame: Item {}
    corner: Item {}
    incrementControl: Item {}
    decrementControl: Item {}
    scrollBarBackground: Item {
        implicitWidth: Measures.scrollBar
        implicitHeight: Measures.scrollBar
    }
    handle: Item {
        implicitWidth: Measures.scrollBar
        implicitHeight: Measures.scrollBar

        Rectangle {
            anchors { fill: parent; margins: 2 }
            radius: width / 2
            color: Qt.rgba(handleColor.r, handleColor.g, handleColor.b,
                           (styleData.hovered || styleData.pressed ? 3 : 1.5) * Measures.hairlineStrength)
        }
    }
}
