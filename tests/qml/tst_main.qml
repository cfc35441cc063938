// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtTest 1.2
import com.quillmarsh 1.0

Item {
    width: 900
    height: 320

    Loader { id: scene; anchors.fill: parent; source: "qrc:/qml/main.qml"; onLoaded: item.complete = true }
    SignalSpy { id: removals; target: scene.item; signalName: "listRemoveSelected" }
    SignalSpy { id: searches; target: scene.item; signalName: "listForceSearchSelected" }
    SignalSpy { id: copies; target: scene.item; signalName: "listCopyPathToClipboard" }

    TestCase {
        readonly property var root: scene.item
        readonly property var list: root && root.complete ? part("songList") : null
        readonly property var menu: root && root.complete ? part("songMenu") : null

        name: "Scene"
        when: windowShown

        function init() {
            mainModel.autoStart = false;
            root.qtVersion = 551;
            proxyModel.showFound = true;
            root.listWidth = 400;
            mainWindow.showSongs(["lyrics.mp3", "untagged.mp3", "plain.flac", "lyrics.ogg", "plain.ogg", "plain.m4a",
                                  "cover.mp3"]);
            compare(list.count, 7);
            tryCompare(mainWindow.song(6), "tagsLoaded", true); // they are read from first to last
            list.forceActiveFocus();
            removals.clear();
            searches.clear();
        }

        function cleanup() {
            mainWindow.lyricsEdit.cancel();
            menu.__dismissAndDestroy();
        }

        function part(name) {
            return findChild(scene.item, name);
        }

        function test_keys_move_the_current_row_data() {
            return [
                { tag: "Down at the end", from: 6, key: Qt.Key_Down, to: 6 },
                { tag: "Up at the beginning", from: 0, key: Qt.Key_Up, to: 0 },
                { tag: "Page Down moves by the whole rows in view", from: 0, key: Qt.Key_PageDown, to: "page" },
                { tag: "Page Up stops at the first row", from: 3, key: Qt.Key_PageUp, to: 0 },
                { tag: "nothing moves without a current row", from: -1, key: Qt.Key_Down, to: -1 }
            ];
        }

        function test_keys_move_the_current_row(row) {
            proxyModel.currentIndex = row.from;
            var to = row.to === "page" ? Math.floor(list.height / list.currentItem.height) : row.to;
            keyClick(row.key);
            compare([proxyModel.currentIndex, list.currentIndex], [to, to]);
            keyClick(Qt.Key_Backspace, Qt.ShiftModifier);
            compare(removals.count, 0);
            keyClick(Qt.Key_Backspace);
            compare(removals.count, 1);
        }

        function test_a_row_that_only_moves_leaves_the_keyboard_where_it_is() {
            var field = part("titleField");
            proxyModel.currentIndex = 6;
            field.forceActiveFocus();
            mainModel.removeWithLyrics();
            compare(proxyModel.currentIndex, list.currentIndex);
            verify(proxyModel.currentIndex < 6 && field.activeFocus);
            proxyModel.currentIndex = 0;
            verify(list.activeFocus);
        }

        function test_the_bar_tells_of_hidden_songs() {
            var bar = part("hiddenBar");
            verify(!bar.visible);
            proxyModel.showFound = false;
            verify(proxyModel.hiddenCount > 0 && bar.visible);
            var height = bar.height;
            root.listWidth = 200; // too narrow for words and links in one line
            verify(bar.height > height);
        }

        function test_details_are_those_of_one_song() {
            [-1, 1].forEach(function(index) {
                proxyModel.currentIndex = index;
                compare(part("lyricsItem").visible && part("audioPreview").visible, index === 1);
            });
            mouseClick(list, 150, 30, Qt.LeftButton, Qt.ControlModifier);
            compare(proxyModel.selectedCount, 2);
            verify(!part("lyricsItem").visible && !part("audioPreview").visible);
        }

        function test_menu_shows_what_fits_data() {
            return [
                { tag: "a row", songs: 7, selectAll: false, row: 1, texts: 6 },
                { tag: "several rows", songs: 7, selectAll: true, row: 1, texts: 4 },
                { tag: "beside the rows", songs: 1, selectAll: false, row: -1, texts: 1 }
            ];
        }

        function test_menu_shows_what_fits(row) {
            if (row.songs === 1)
                mainWindow.showSongs(["plain.flac"]);
            proxyModel.currentIndex = 0;
            if (row.selectAll)
                proxyModel.selectAll();
            list.positionViewAtBeginning();
            mouseClick(list, 150, row.row < 0 ? 200 : 90, Qt.RightButton);
            tryCompare(menu, "__popupVisible", true);
            compare(menu.row, row.row);
            compare(proxyModel.selectedCount === 0, row.row < 0);
            var shown = 0;
            for (var item = 0; item < menu.items.length; ++item)
                shown += menu.items[item].visible ? 1 : 0;
            compare(shown, row.texts);
        }

        function test_the_menu_keeps_to_its_song() {
            proxyModel.currentIndex = 6;
            keyClick(Qt.Key_F10, Qt.ShiftModifier);
            tryCompare(menu, "__popupVisible", true);
            compare(menu.row, 6);
            mainModel.removeWithLyrics();
            menu.copyPath();
            compare(copies.signalArguments[0][0], proxyModel.currentIndex);
            mainModel.removeAll();
            menu.copyPath();
            compare(copies.signalArguments[1][0], -1);
        }

        function test_several_songs_are_selected_by_key() {
            proxyModel.currentIndex = 2;
            keyClick(Qt.Key_Down, Qt.ShiftModifier);
            keyClick(Qt.Key_Down, Qt.ShiftModifier);
            compare(proxyModel.selectedCount, 3);
            keyClick(Qt.Key_Home, Qt.ShiftModifier);
            compare(proxyModel.selectedCount, 3);
            verify(proxyModel.isSelected(0) && !proxyModel.isSelected(3));
            keyClick(Qt.Key_Down, Qt.ControlModifier);
            compare(proxyModel.currentIndex, 1);
            keyClick(Qt.Key_Space, Qt.ControlModifier);
            compare(proxyModel.selectedCount, 2);
            verify(!proxyModel.isSelected(1));
            list.positionViewAtBeginning();
            mouseClick(list, 150, 90);
            compare(proxyModel.selectedCount, 1);
            verify(proxyModel.isSelected(1));
            keyClick(Qt.Key_PageDown, Qt.ShiftModifier);
            compare(proxyModel.selectedCount, list.rowsInView + 1);
            keyClick(Qt.Key_Home);
            compare(proxyModel.selectedCount, 1);
        }

        function test_a_forced_search_discards_the_draft() {
            proxyModel.currentIndex = 0;
            tryVerify(function() { return part("lyricsItem") !== null; });
            root.editLyrics();
            mainWindow.lyricsEdit.text = "draft";
            keyClick(Qt.Key_R, Qt.ControlModifier);
            verify(!mainWindow.lyricsEdit.active);
            compare(searches.count, 1);
        }

        function test_lyrics_of_other_names_offer_a_search() {
            var song = mainWindow.song(2);
            var link = part("searchLink");
            proxyModel.currentIndex = 2;
            song.setFoundLyricsTag(song.artistTag, song.titleTag, "words");
            song.processState = ModelItem.ProcessComplete;
            verify(!link.visible);
            song.setFoundLyricsTag("another", song.titleTag, "words");
            verify(link.visible && link.width > 10 && link.contentWidth <= link.width);
            mouseClick(link);
            tryCompare(song, "processState", ModelItem.ProcessNotSuitable); // a search was asked for; none is there
        }

        function test_names_are_kept_and_saved_without_lyrics() {
            var song = mainWindow.song(1);
            var field = part("artistField");
            var save = part("saveButton");
            proxyModel.currentIndex = 1;
            field.forceActiveFocus();
            keyClick(Qt.Key_X);
            proxyModel.currentIndex = 0;
            verify(field.text !== "x");
            proxyModel.currentIndex = 1;
            compare(field.text, "x");
            verify(field.pending && !save.visible);
            field.forceActiveFocus();
            keyClick(Qt.Key_Return);
            verify(field.unsaved && save.visible && !part("titleField").unsaved);
            part("titleField").forceActiveFocus();
            keyClick(Qt.Key_T); // not confirmed
            keyClick(Qt.Key_S, Qt.ControlModifier);
            compare(song.titleTag, "t");
            verify(!save.visible);
            tryCompare(song, "processState", ModelItem.ProcessComplete);
            verify(!song.edited && !field.unsaved);
            mainWindow.showSongs([]);
        }

        function test_the_border_is_dragged() {
            var before = root.listWidth;
            var rows = list.width;
            mouseDrag(root, before + 4, 200, -40, 0);
            compare(root.listWidth, before - 40);
            compare(list.width, rows - 40);
            mouseDrag(root, before - 41, 200, -900, 0);
            verify(root.listWidth < before - 40 && root.listWidth >= 200); // as far as the list can be read
        }

        function test_the_scanning_bar_is_there_while_folders_are_read() {
            var scanning = part("scanningBar");
            compare(scanning.height, 0);
            folderScanner.addFolder(mainWindow.folder());
            verify(scanning.visible && scanning.height > 0);
            tryCompare(scanning, "visible", false);
        }
    }
}
