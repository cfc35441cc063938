// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// The border between list and details; with the keyboard on it, Left and Right move it.
Rectangle {
    id: handle

    signal moved(int distance)

    width: Measures.hairline
    color: appPalette.window
    activeFocusOnTab: true

    Keys.onLeftPressed: moved(-Measures.splitterStep)
    Keys.onRightPressed: moved(Measures.splitterStep)

    Accessible.role: Accessible.Grip
    Accessible.name: qsTr("Width of the list")
    Accessible.focusable: true
    Accessible.onIncreaseAction: moved(Measures.splitterStep)
    Accessible.onDecreaseAction: moved(-Measures.splitterStep)

    Rectangle {
        anchors { fill: parent; margins: handle.activeFocus ? -1 : 0 }
        color: handle.activeFocus ? appPalette.highlight : appPalette.windowText
        opacity: handle.activeFocus ? 1 : Measures.hairlineStrength
    }
}
