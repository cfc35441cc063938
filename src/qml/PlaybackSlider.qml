// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// Where the sound stands; it can be dragged, clicked and moved by keys.
Item {
    id: slider

    // Both in milliseconds; without a duration it cannot be moved.
    property real position: 0
    property real duration: 0
    property string spokenPosition
    readonly property real progress: duration > 0 ? Math.max(0, Math.min(1, position / duration)) : 0

    signal seekRequested(real position)

    function seek(to) {
        seekRequested(Math.max(0, Math.min(duration, to)));
    }

    implicitHeight: Measures.button
    enabled: duration > 0
    activeFocusOnTab: enabled

    Keys.onLeftPressed: seek(position - Measures.seekStep)
    Keys.onRightPressed: seek(position + Measures.seekStep)
    Keys.onPressed: {
        event.accepted = true;
        if (event.key === Qt.Key_PageDown)
            seek(position - Measures.seekPage);
        else if (event.key === Qt.Key_PageUp)
            seek(position + Measures.seekPage);
        else if (event.key === Qt.Key_Home)
            seek(0);
        else if (event.key === Qt.Key_End)
            seek(duration);
        else
            event.accepted = false;
    }

    Accessible.role: Accessible.Slider
    Accessible.name: qsTr("Position in the song")
    Accessible.description: spokenPosition
    Accessible.focusable: enabled
    Accessible.onIncreaseAction: seek(position + Measures.seekStep)
    Accessible.onDecreaseAction: seek(position - Measures.seekStep)

    Rectangle {
        id: groove

        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        height: Measures.sliderGroove
        radius: height / 2
        color: appPalette.text
        opacity: Measures.hairlineStrength
    }

    Rectangle {
        anchors { left: groove.left; verticalCenter: groove.verticalCenter }
        width: knob.x + knob.width / 2
        height: groove.height
        radius: groove.radius
        color: appPalette.highlight
        visible: slider.enabled
    }

    Rectangle {
        id: knob

        x: slider.progress * (slider.width - width)
        anchors.verticalCenter: groove.verticalCenter
        width: Measures.sliderKnob + (mouseArea.containsMouse || mouseArea.pressed ? 2 : 0)
        height: width
        radius: width / 2
        color: appPalette.highlight
        visible: slider.enabled
    }

    FocusRing {
        inset: -Measures.halfGrid
    }

    MouseArea {
        id: mouseArea

        anchors.fill: parent
        hoverEnabled: true
        onPressed: slider.seek(mouse.x / width * slider.duration)
        onPositionChanged: {
            if (pressed)
                slider.seek(mouse.x / width * slider.duration);
        }
    }
}
