// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// One line of text of a song. Enter confirms what was typed, Escape restores the song's value. Leaving the field or the
// song does neither: what was typed stays with its song, marked as not taken over yet.
FocusScope {
    id: field

    // Whose text it is: an object with an `id`, and the name of its property; null for none.
    property var subject: null
    property string role
    // The subject's text was confirmed, but is in no file yet.
    property bool unsaved: false
    property string label
    property string placeholder: qsTr("<empty>")
    readonly property alias text: input.text
    readonly property bool pending: input.text !== shownValue
    readonly property string value: textOf(subject)
    // What the input made of the value; it has no line breaks.
    property string shownValue
    // Whose text the input holds. The id, since the subject may be gone when another one comes.
    property var shownSubject: null
    property int shownId: -1
    // What was typed for subjects that are not shown, as { subject, text } by their ids; made when it is needed first.
    property var leftTexts: null

    function textOf(object) {
        return object ? object[role] : "";
    }

    function confirm() {
        if (!pending)
            return;
        shownValue = input.text;
        subject[role] = input.text;
        restore(); // to the value that the song has now: it may have refused this one
    }

    // The same for the subject of this id, which need not be shown.
    function confirmOf(id) {
        var left = takeLeft(id);
        if (id === shownId)
            confirm();
        else if (left)
            left.subject[role] = left.text;
    }

    // The same for all subjects of these ids; for every subject when there is no id.
    function confirmAmong(ids) {
        Object.keys(leftTexts || {}).concat(shownId).map(Number).forEach(function (id) {
            if (ids.length === 0 || ids.indexOf(id) >= 0)
                confirmOf(id);
        });
    }

    // Of the subjects, those for which something was typed and not confirmed.
    function typedIds() {
        return Object.keys(leftTexts || {}).map(Number).filter(function (id) {
            var left = leftTexts[id].subject;
            return left && left.id === id; // it may be gone
        }).concat(pending && subject ? shownId : []);
    }

    function leave() {
        if (!pending)
            return;
        if (!leftTexts)
            leftTexts = {};
        leftTexts[shownId] = { subject: shownSubject, text: input.text };
    }

    function takeLeft(id) {
        if (!leftTexts)
            return undefined;
        var left = leftTexts[id];
        delete leftTexts[id];
        return left;
    }

    function restore() {
        input.text = textOf(subject);
        shownValue = input.text;
        input.cursorPosition = 0;
    }

    function showSubject() {
        leave();
        shownSubject = subject;
        shownId = subject ? subject.id : -1;
        restore();
        var left = takeLeft(shownId);
        if (left && left.subject === subject) // ids are used again when songs have gone
            input.text = left.text;
    }

    implicitWidth: 120
    implicitHeight: Measures.fieldHeight
    activeFocusOnTab: false

    onSubjectChanged: showSubject()
    onValueChanged: {
        if (!pending && shownSubject === subject)
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
        text: field.pending ? qsTr("Enter to apply") : field.unsaved ? qsTr("not saved yet (Ctrl+S saves)") : ""
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
