// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtTest 1.2
import "qrc:/qml"

Item {
    width: 300
    height: 100

    QtObject {
        id: song

        property string title: "Old"
    }

    EditableField {
        id: field

        width: 200
        subject: song
        value: song.title
        onConfirmed: song.title = text
    }

    Item {
        id: elsewhere
    }

    TestCase {
        name: "EditableField"
        when: windowShown

        function init() {
            song.title = "Old";
            field.subject = song;
            field.restore();
            elsewhere.forceActiveFocus();
            mouseClick(field, 150, 14); // behind the text, which stays unselected
            keyClick(Qt.Key_E);
            compare(field.text, "Olde");
            compare(song.title, "Old");
        }

        function test_Enter_confirms_data() {
            return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter }];
        }

        function test_Enter_confirms(row) {
            keyClick(row.key);
            compare(song.title, "Olde");
            verify(!field.pending);
        }

        function test_Escape_restores() {
            keyClick(Qt.Key_Escape);
            compare(field.text, "Old");
            compare(song.title, "Old");
        }

        function test_leaving_keeps_what_was_typed_unconfirmed() {
            elsewhere.forceActiveFocus();
            compare(field.text, "Olde");
            verify(field.pending);
            compare(song.title, "Old");
        }

        function test_a_value_that_arrives_does_not_overwrite_what_was_typed() {
            song.title = "New";
            compare(field.text, "Olde");
            keyClick(Qt.Key_Escape);
            compare(field.text, "New");
        }

        function test_another_song_drops_what_was_typed() {
            field.subject = elsewhere;
            compare(field.text, "Old");
            verify(!field.pending);
        }

        function test_a_line_break_in_the_value_is_no_edit() {
            field.restore();
            song.title = "two\nlines";
            verify(!field.pending);
        }
    }
}
