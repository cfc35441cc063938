// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls.Private 1.0
import "."

// A picture that can be pressed, by mouse, by Space or by Enter. Its text is what a screen reader says and the tool tip,
// which comes under the mouse and with the keyboard.
Item {
    id: button

    property string imageName
    property string text
    // Pressed in, as long as what it began goes on.
    property bool checked: false
    property alias background: ground.color
    readonly property bool hovered: mouseArea.containsMouse

    signal clicked()

    implicitWidth: Measures.button
    implicitHeight: Measures.button
    activeFocusOnTab: enabled
    opacity: enabled ? 1 : Measures.disabled

    onActiveFocusChanged: Tooltip.hideText()
    onVisibleChanged: Tooltip.hideText()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: enabled
    Accessible.checked: checked
    Accessible.onPressAction: clicked()

    Rectangle {
        id: ground

        anchors.fill: parent
        radius: Measures.radius
        color: "transparent"
    }

    Rectangle {
        anchors.fill: parent
        radius: Measures.radius
        color: appPalette.highlight
        opacity: Measures.hoverStrength
        visible: button.hovered || button.checked
    }

    // A stronger ground would leave the picture too little contrast.
    Rectangle {
        anchors.fill: parent
        radius: Measures.radius
        color: "transparent"
        border { width: Measures.hairline; color: appPalette.highlight }
        visible: mouseArea.pressed || button.checked
    }

    PaletteImage {
        anchors.centerIn: parent
        imageName: button.imageName
    }

    FocusRing {
        inset: 0
    }

    MouseArea {
        id: mouseArea

        anchors.fill: parent
        hoverEnabled: true
        onClicked: button.clicked()
        onExited: Tooltip.hideText()
        onCanceled: Tooltip.hideText()
    }

    Timer {
        interval: Measures.toolTipDelay
        running: button.visible && (button.hovered || button.activeFocus) && !mouseArea.pressed && Qt.application.state === Qt.ApplicationActive
        onTriggered: {
            var place = button.hovered ? Qt.point(mouseArea.mouseX, mouseArea.mouseY) : Qt.point(0, button.height);
            Tooltip.showText(mouseArea, place, button.text);
        }
    }
}
