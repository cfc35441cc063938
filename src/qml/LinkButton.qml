// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// A command written as a link; pressed by mouse, by Space or by Enter.
Text {
    id: link

    signal clicked()

    textFormat: Text.PlainText
    color: appPalette.link
    font { pixelSize: Measures.textFont; underline: true }
    elide: Text.ElideRight
    activeFocusOnTab: true

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: clicked()

    Rectangle {
        anchors { fill: parent; margins: -Measures.halfGrid }
        radius: Measures.radius
        color: appPalette.highlight
        opacity: Measures.hoverStrength
        visible: mouseArea.containsMouse
    }

    FocusRing {
        inset: -Measures.halfGrid
    }

    MouseArea {
        id: mouseArea

        anchors { fill: parent; margins: -Measures.halfGrid }
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: link.clicked()
    }
}
