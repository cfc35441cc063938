// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtTest 1.2
import "qrc:/qml"

Item {
    width: 300
    height: 100

    QtObject { id: song; property int id: 1; property string title }
    QtObject { id: otherSong; property int id: 2; property string title }
    EditableField { id: field; width: 200; subject: song; role: "title" }
    Item { id: elsewhere }

    TestCase {
        name: "EditableField"
        when: windowShown

        function init() {
            song.title = "Old";
            otherSong.title = "Other";
            field.leftTexts = null;
            field.subject = song;
            field.restore();
            elsewhere.forceActiveFocus();
            mouseClick(field, 150, 14); // behind the text, which stays unselected
            keyClick(Qt.Key_E);
            compare(field.text, "Olde");
            compare(song.title, "Old");
        }

        function test_Enter_confirms() {
            keyClick(Qt.Key_Return);
            compare(song.title, "Olde");
            verify(!field.pending);
            keyClick(Qt.Key_S);
            keyClick(Qt.Key_Enter);
            compare(song.title, "sOlde"); // the cursor went back to the beginning
        }

        function test_what_was_typed_stays_until_Escape() {
            elsewhere.forceActiveFocus();
            verify(field.pending);
            song.title = "New";
            compare(field.text, "Olde");
            field.forceActiveFocus();
            keyClick(Qt.Key_Escape);
            compare(field.text, "New");
            compare(song.title, "New");
        }

        function test_what_was_typed_stays_with_its_song() {
            field.subject = otherSong;
            compare(field.text, "Other");
            verify(!field.pending);
            field.subject = song;
            compare(field.text, "Olde");
            verify(field.pending);
            keyClick(Qt.Key_Escape);
            field.subject = otherSong;
            field.subject = song;
            compare(field.text, "Old");
            song.title = "two\nlines"; // which a field has not
            verify(!field.pending);
        }

        // Typing what the next song has by itself is no reason to forget it.
        function test_the_same_text_in_two_songs() {
            otherSong.title = "Olde";
            field.subject = otherSong;
            field.subject = song;
            verify(field.pending);
            field.subject = null;
            field.confirmOf(song.id);
            compare(song.title, "Olde");
            field.subject = song;
            verify(!field.pending);
        }

        function test_a_song_that_goes_gets_what_was_typed_for_it() {
            var gone = Qt.createQmlObject("import QtQuick 2.2; QtObject { property int id: 3; property string title }", field);
            field.subject = gone;
            keyClick(Qt.Key_G);
            field.subject = otherSong;
            gone.destroy();
            wait(0);
            compare(field.typedIds(), [song.id]);
            field.confirmAmong([2, 3]);
            compare(song.title, "Old");
            keyClick(Qt.Key_O);
            field.confirmAmong([]);
            compare(song.title, "Olde");
            compare(otherSong.title, field.text);
            field.subject = song;
            keyClick(Qt.Key_X);
            keyClick(Qt.Key_Escape); // given up
            field.confirmAmong([]);
            compare(song.title, "Olde");
        }
    }
}
