// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// The border between list and details for the keyboard: with it, Left and Right move the border. It lies at the list's
// edge, since the Tab key comes to the handles of a split view after all that they divide.
Item {
    id: handle

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
}
