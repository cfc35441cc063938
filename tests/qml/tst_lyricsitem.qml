// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtTest 1.2
import com.quillmarsh 1.0
import "qrc:/qml"

Item {
    width: 600
    height: 400

    LyricsItem { id: sheet; anchors.fill: parent; edit: mainWindow.lyricsEdit }
    Component { id: lyricsText; LyricsText { width: 400; height: 300; shownText: "first\nsecond\nthird" } }
    SignalSpy { id: searches; target: sheet; signalName: "forceSearchRequested" }

    TestCase {
        readonly property var song: sheet.song
        readonly property var edit: mainWindow.lyricsEdit

        name: "LyricsItem"
        when: windowShown

        function init() {
            edit.cancel();
            sheet.song = null;
            mainModel.autoStart = false;
            mainWindow.showSongs(["plain.flac"]);
            sheet.song = mainWindow.song(0);
            tryCompare(song, "tagsLoaded", true);
            song.setFoundLyricsTag("A", "B", "first\nsecond");
            song.processState = ModelItem.ProcessComplete;
        }

        function words() {
            return findChild(sheet, "lyricsText");
        }

        function press(name) {
            var button = findChild(sheet, name);
            verify(button.visible && button.enabled, name);
            button.forceActiveFocus();
            keyClick(Qt.Key_Space);
        }

        function test_found_lyrics_are_shown_with_their_names() {
            compare(findChild(sheet, "foundNames").text, "“A” – “B”");
            words().forceActiveFocus();
            keyClick(Qt.Key_X);
            compare(words().text, "first\nsecond");
        }

        function test_an_edit_is_saved_into_the_song() {
            press("editButton");
            verify(words().activeFocus && !words().readOnly);
            keyClick(Qt.Key_X);
            verify(edit.modified && !findChild(sheet, "editButton").enabled);
            song.setFoundLyricsTag("A", "B", "a result that arrives");
            press("saveButton");
            compare(song.lyricsTag, "xfirst\nsecond");
            verify(!sheet.found);
            tryCompare(song, "processState", ModelItem.ProcessComplete);
        }

        function test_cancel_and_search_discard() {
            press("editButton");
            keyClick(Qt.Key_X);
            press("cancelButton");
            verify(!edit.active);
            compare(words().text, "first\nsecond");
            press("searchButton");
            compare(searches.count, 1);
        }

        function test_a_selection_goes_on_beyond_the_view() {
            song.setFoundLyricsTag("A", "B", new Array(200).join("la\n"));
            words().forceActiveFocus();
            keyClick(Qt.Key_End, Qt.ControlModifier | Qt.ShiftModifier);
            verify(words().mapToItem(sheet, 0, 0).y < -100);
        }

        function test_words_that_a_text_is_made_with_have_their_spacing() {
            var made = createTemporaryObject(lyricsText, sheet);
            var height = made.area.contentHeight;
            made.shownText = "other";
            made.shownText = "first\nsecond\nthird";
            compare(made.area.contentHeight, height);
        }

        function test_the_view_stays_where_it_is() {
            var view = words().parent.parent;
            song.setEditedLyricsTag(new Array(100).join("la\n"));
            for (var top = 500; top < 520; top += 3) {
                edit.cancel();
                view.contentY = top;
                press("editButton");
                compare(view.contentY, top);
                verify(words().cursorRectangle.y >= top && words().cursorRectangle.y < top + 100);
            }
            words().cursorPosition = words().length;
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Return);
            var end = view.contentY;
            verify(end > 600);
            press("saveButton");
            compare(view.contentY, end);
            tryCompare(song, "processState", ModelItem.ProcessComplete);
            press("editButton");
            keyClick(Qt.Key_X);
            press("cancelButton");
            compare(view.contentY, end);
            sheet.song = null;
            sheet.song = mainWindow.song(0);
            compare(view.contentY, 0);
        }

        function test_looking_at_lyrics_never_changes_them() {
            song.setEditedLyricsTag("a\u00a0b\r\nc\u2028d");
            press("editButton");
            verify(!edit.modified);
        }

        function test_what_cannot_be_edited() {
            song.processState = ModelItem.ProcessWorking;
            verify(!findChild(sheet, "editButton").enabled);
            sheet.beginEdit();
            verify(!edit.active, "a song that is searched for");
            song.processState = ModelItem.ProcessComplete;
            song.setEditedLyricsTag(new Array(1 << 20).join("la "));
            compare(words().text.length, Measures.lyricsLimit);
            sheet.beginEdit();
            verify(!edit.active, "lyrics that are cut");
        }
    }
}
