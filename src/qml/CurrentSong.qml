// SPDX-License-Identifier: MIT
import QtQuick 2.2

// The song of the current row, whatever row that is: tells who is to have the keyboard, and what is to be selected, when
// another song takes its place.
QtObject {
    // What has the keyboard in the window; null for nothing.
    property var focusItem: null
    property var song: null
    property int songId: -1

    // Another song is the current one, and the keyboard is to go to its row.
    signal keyboardWanted()
    // Nothing is selected any more, where keys and clicks would have nothing to work on.
    signal successorWanted(int row)

    function note() {
        song = proxyModel.currentItem();
        songId = song !== null ? song.id : -1;
    }

    // A song that goes by itself while something is typed leaves the keyboard where it is: what is typed on must not
    // remove songs.
    function keyboardInText() {
        return focusItem !== null && focusItem.cursorPosition !== undefined && !focusItem.readOnly;
    }

    // The current row is another one.
    function follow() {
        // Rows that come and go around the current song move its row, which is no reason to take the keyboard away.
        var isOther = proxyModel.currentItem() !== song;
        // The one before was hidden or removed.
        var isSuccessor = proxyModel.currentItem() !== null && songId >= 0 && proxyModel.rowOf(songId) < 0;
        var staysInText = isSuccessor && keyboardInText();
        note();
        if (isOther && song !== null && !staysInText)
            keyboardWanted();
        if (isSuccessor && !staysInText)
            Qt.callLater(selectSuccessor); // the selection is told of after the current row
    }

    function selectSuccessor() {
        if (proxyModel.selectedCount === 0 && proxyModel.currentIndex >= 0)
            successorWanted(proxyModel.currentIndex);
    }
}
