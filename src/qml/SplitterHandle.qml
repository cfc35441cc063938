// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// The border between list and details, at the list's edge: the mouse drags it, and with the keyboard Left and Right move
// it.
Item {
    id: handle

    // By so many pixels to the right. The handle goes along with the border.
    signal moved(int distance)

    width: Measures.focusRing
    activeFocusOnTab: true

    Keys.onLeftPressed: moved(-Measures.splitterStep)
    Keys.onRightPressed: moved(Measures.splitterStep)

    Accessible.role: Accessible.Splitter
    Accessible.name: qsTr("Width of the list")
    Accessible.focusable: true
    Accessible.onIncreaseAction: moved(Measures.splitterStep)
    Accessible.onDecreaseAction: moved(-Measures.splitterStep)

    Rectangle {
        anchors.fill: parent
        color: appPalette.highlight
        visible: handle.activeFocus
    }

    MouseArea {
        property real grabbedAt: 0

        // Further on the side of the details, whose margin has nothing to click.
        anchors { fill: parent; leftMargin: -Measures.hairline; rightMargin: -Measures.hairline - Measures.halfGrid }
        cursorShape: Qt.SplitHCursor
        preventStealing: true
        onPressed: grabbedAt = mouse.x
        onPositionChanged: handle.moved(mouse.x - grabbedAt)
    }
}
