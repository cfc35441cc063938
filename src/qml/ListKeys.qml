// SPDX-License-Identifier: MIT
import QtQuick 2.2

// What keys do in the list of songs.
QtObject {
    // The view of the rows.
    property var view: null
    readonly property int last: view.count - 1

    // The user wants this row to be the only selected one.
    signal rowChosen(int row)
    signal removeSelectedRequested()
    signal menuRequested()
    // A key has moved the current row, or chosen it once more.
    signal moved()

    // Modifiers are without that of the keypad. Whether the key was one of the list.
    function press(key, modifiers) {
        if (key === Qt.Key_Menu || (key === Qt.Key_F10 && modifiers === Qt.ShiftModifier)) {
            menuRequested();
            return true;
        }
        if (modifiers !== Qt.NoModifier)
            return pressWith(modifiers, key);
        if (key === Qt.Key_Backspace) {
            removeSelectedRequested();
            return true;
        }
        return move(key);
    }

    // By how many rows a key moves; 0 for other keys.
    function stepOf(key) {
        switch (key) {
        case Qt.Key_Up:
            return -1;
        case Qt.Key_Down:
            return 1;
        case Qt.Key_PageUp:
            return -view.rowsInView;
        case Qt.Key_PageDown:
            return view.rowsInView;
        }
        return 0;
    }

    // Where a key moves to; -1 for other keys, and for a step without a current row.
    function targetOf(key) {
        if (key === Qt.Key_Home)
            return Math.min(0, last);
        if (key === Qt.Key_End)
            return last;
        var step = stepOf(key);
        return step === 0 || view.currentIndex < 0 ? -1 : Math.max(0, Math.min(last, view.currentIndex + step));
    }

    function move(key) {
        var target = key === Qt.Key_Space ? view.currentIndex : targetOf(key);
        if (target >= 0) {
            rowChosen(target);
            moved();
        }
        return target >= 0 || stepOf(key) !== 0;
    }

    // Keys with modifiers select several songs.
    function pressWith(modifiers, key) {
        var target = view.currentIndex >= 0 ? targetOf(key) : -1;
        if (modifiers === Qt.ControlModifier && key === Qt.Key_Space)
            proxyModel.toggleCurrent();
        else if (modifiers === Qt.ShiftModifier && target >= 0)
            proxyModel.extendSelection(target);
        else if (modifiers === Qt.ControlModifier && target >= 0)
            proxyModel.moveCurrent(target);
        else
            return false;
        moved();
        return true;
    }
}
