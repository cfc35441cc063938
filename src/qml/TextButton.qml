// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// A button with words; pressed by mouse, by Space or by Enter.
Rectangle {
    id: button

    property string text

    signal clicked()

    implicitWidth: label.implicitWidth + 3 * Measures.grid
    implicitHeight: Measures.textButton
    radius: Measures.radius
    color: appPalette.button
    border { width: Measures.hairline; color: Qt.tint(color, Qt.rgba(label.color.r, label.color.g, label.color.b, Math.max(Measures.disabled, Measures.hairlineStrength))) }
    activeFocusOnTab: true

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: clicked()

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: appPalette.highlight
        opacity: mouseArea.pressed ? 2 * Measures.hoverStrength : Measures.hoverStrength
        visible: mouseArea.containsMouse
    }

    Text {
        id: label

        anchors.centerIn: parent
        text: button.text
        textFormat: Text.PlainText
        font.pixelSize: Measures.textFont
        color: appPalette.buttonText
    }

    FocusRing {}

    MouseArea {
        id: mouseArea

        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.clicked()
    }
}
