// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// One line of text of a song. Enter confirms what was typed, Escape restores the song's value. Leaving the field does
// neither: what was typed stays, marked as not taken over yet, until the field shows another song.
FocusScope {
    id: field

    // Whose value it is; another subject drops what was typed.
    property var subject
    property string value
    property string label
    property string placeholder: qsTr("<empty>")
    readonly property alias text: input.text
    readonly property bool pending: input.text !== shownValue
    // What the input made of the value; it has no line breaks.
    property string shownValue

    signal confirmed(string text)

    function confirm() {
        if (!pending)
            return;
        shownValue = input.text;
        confirmed(input.text);
        restore(); // to the value that the song has now: it may have refused this one
    }

    // As if the user had typed it.
    function type(words) {
        input.text = words;
    }

    function restore() {
        input.text = value;
        shownValue = input.text;
        input.cursorPosition = 0;
    }

    implicitWidth: 120
    implicitHeight: Measures.fieldHeight
    activeFocusOnTab: false

    onSubjectChanged: restore()
    onValueChanged: {
        if (!pending)
            restore();
    }

    Rectangle {
        anchors.fill: parent
        radius: Measures.radius
        color: appPalette.base

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: "transparent"
            opacity: (mouseArea.containsMouse ? 3 : 1.5) * Measures.hairlineStrength
            border { width: Measures.hairline; color: appPalette.text }
        }
    }

    TextInput {
        id: input

        anchors {
            left: parent.left; right: hint.left; verticalCenter: parent.verticalCenter
            leftMargin: Measures.grid; rightMargin: Measures.grid
        }
        clip: true
        focus: true
        enabled: field.enabled
        activeFocusOnTab: true
        selectByMouse: true
        color: appPalette.text
        selectionColor: appPalette.highlight
        selectedTextColor: appPalette.highlightedText
        font.pixelSize: Measures.fieldFont

        // The Tab key selects the whole text, a click puts the cursor where it went.
        onActiveFocusChanged: activeFocus && !mouseArea.pressing ? selectAll() : deselect()
        Keys.onReturnPressed: field.confirm()
        Keys.onEnterPressed: field.confirm()
        // Before the window's own use of Escape.
        Keys.onShortcutOverride: event.accepted = field.pending && event.key === Qt.Key_Escape
        Keys.onEscapePressed: {
            event.accepted = field.pending;
            field.restore();
        }

        Accessible.role: Accessible.EditableText
        Accessible.name: field.label
        Accessible.description: hint.text
        Accessible.focusable: true
        Accessible.editable: true
    }

    Text {
        anchors { left: input.left; right: input.right; verticalCenter: parent.verticalCenter }
        text: field.placeholder
        textFormat: Text.PlainText
        elide: Text.ElideRight
        visible: input.text === "" && !input.inputMethodComposing
        font { pixelSize: Measures.fieldFont; italic: true }
        color: appPalette.text
        opacity: Measures.quieter
    }

    Text {
        id: hint

        anchors { right: parent.right; rightMargin: text === "" ? 0 : Measures.grid; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, field.width / 2)
        text: field.pending ? qsTr("Enter to apply") : ""
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font { pixelSize: Measures.smallFont; italic: true }
        color: appPalette.text
        opacity: Measures.quieter
    }

    MouseArea {
        id: mouseArea

        property bool pressing: false

        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.IBeamCursor
        onPressed: {
            pressing = true;
            input.forceActiveFocus();
            pressing = false;
            mouse.accepted = false; // the rest is the input's
        }
    }

    FocusRing {
        inset: 0
    }
}
