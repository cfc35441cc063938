// SPDX-License-Identifier: MIT
import QtQuick 2.7
import QtQuick.Controls 1.1
import QtQuick.Window 2.2
import "."

// The rows of the songs. The current row is the model's; the list follows it and hands its own changes to it.
ScrollView {
    id: songList

    readonly property string label: qsTr("Songs")
    readonly property alias count: list.count
    readonly property bool hasScrollBar: __verticalScrollBar.visible

    signal removeSelectedRequested()
    // row: -1 beside all rows; x and y: where, in the scene's coordinates.
    signal menuRequested(int row, real x, real y, bool byKey)

    // The current row has the keyboard; the list itself only without one. Asking the list would give it to whatever had
    // it last in there, which may be a row's button.
    function takeFocus() {
        (list.currentItem || list).forceActiveFocus();
    }

    function follow() {
        list.currentIndex = proxyModel.currentIndex;
    }

    // With the modifiers that are held.
    function click(row) {
        if (proxyModel.itemClicked(row))
            select(row);
    }

    // Selects this row alone; the current one as well, which the model takes for no change.
    function select(row) {
        if (row === proxyModel.currentIndex && (!proxyModel.isSelected(row) || proxyModel.selectedCount > 1))
            proxyModel.currentIndex = -1;
        proxyModel.currentIndex = row;
    }

    // By how many rows a key moves; 0 for other keys.
    function stepOf(key) {
        switch (key) {
        case Qt.Key_Up:
            return -1;
        case Qt.Key_Down:
            return 1;
        case Qt.Key_PageUp:
            return -list.rowsInView;
        case Qt.Key_PageDown:
            return list.rowsInView;
        }
        return 0;
    }

    // Where a key moves to; -1 for other keys, and for a step without a current row.
    function targetOf(key) {
        var last = list.count - 1;
        if (key === Qt.Key_Home)
            return Math.min(0, last);
        if (key === Qt.Key_End)
            return last;
        var step = stepOf(key);
        return step === 0 || list.currentIndex < 0 ? -1 : Math.max(0, Math.min(last, list.currentIndex + step));
    }

    // Keys without a modifier. Whether the key was one of them.
    function moveByKey(key) {
        var target = key === Qt.Key_Space ? list.currentIndex : targetOf(key);
        if (target >= 0) {
            select(target);
            showCurrentRow();
        }
        return target >= 0 || stepOf(key) !== 0;
    }

    // Keys with a modifier, which select several songs. Whether the key was one of them.
    function selectByKey(key, modifiers) {
        var target = targetOf(key);
        if (modifiers === Qt.ControlModifier && key === Qt.Key_Space)
            proxyModel.toggleCurrent();
        else if (modifiers === Qt.ShiftModifier && target >= 0 && list.currentIndex >= 0)
            proxyModel.extendSelection(target);
        else if (modifiers === Qt.ControlModifier && target >= 0 && list.currentIndex >= 0)
            proxyModel.moveCurrent(target);
        else
            return false;
        showCurrentRow();
        return true;
    }

    // Rows that go in the same moment keep the view from following.
    function showCurrentRow() {
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
    }

    function requestMenuByKey() {
        var item = list.currentItem;
        if (item)
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        var place = item ? item.mapToItem(null, Measures.textColumn, item.height / 2) : mapToItem(null, width / 2, height / 2);
        menuRequested(list.currentIndex, place.x, place.y, true);
    }

    horizontalScrollBarPolicy: Qt.ScrollBarAlwaysOff
    style: SlimScrollStyle {}

    ListView {
        id: list

        readonly property int rowsInView: Math.max(1, Math.floor(height / Measures.rowHeight))
        // Before a reset: how far the view was scrolled, and where in it the current row was.
        property real keptY: 0
        property real keptTop: 0
        property var shownSong: null
        property int shownId: -1
        property int countBefore: 0

        function keepPlace() {
            keptY = contentY - originY; // rows that went above the view have moved its origin
            keptTop = currentItem !== null ? currentItem.y - contentY : -Measures.rowHeight;
        }

        // The current row stays where it was seen; where it was not, the view does.
        function restorePlace() {
            var seen = currentIndex >= 0 && keptTop > -Measures.rowHeight && keptTop < height;
            var wanted = seen ? currentIndex * Measures.rowHeight - keptTop : keptY;
            contentY = Math.max(0, Math.min(wanted, count * Measures.rowHeight - height));
            if (seen)
                positionViewAtIndex(currentIndex, ListView.Contain);
        }

        // The song that takes the place of one that is hidden or removed: where none is selected, keys and clicks
        // would have nothing to work on. A song that goes by itself while its names are typed leaves the keyboard where
        // it is: what is typed on must not remove songs.
        function selectSuccessor() {
            if (proxyModel.selectedCount === 0 && proxyModel.currentIndex >= 0)
                songList.select(proxyModel.currentIndex);
        }

        function keyboardInText() {
            var item = Window.activeFocusItem;
            return item !== null && item.cursorPosition !== undefined && !item.readOnly;
        }

        function showCurrent() {
            songList.follow();
            // Rows that come and go around the current song move its row, which is no reason to take the keyboard away.
            var song = proxyModel.currentItem();
            var isSuccessor = song !== null && shownId >= 0 && proxyModel.rowOf(shownId) < 0;
            if (song !== shownSong && song !== null && !(isSuccessor && keyboardInText()))
                songList.takeFocus();
            if (isSuccessor && !keyboardInText())
                Qt.callLater(selectSuccessor); // the selection is told of after the current row
            shownSong = song;
            shownId = song ? song.id : -1;
        }

        objectName: "songList"
        focus: true
        // Not before the keyboard has left for the current row: Qt refuses that.
        activeFocusOnTab: currentItem === null || Window.activeFocusItem === list
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: false
        model: proxyModel
        currentIndex: -1

        Component.onCompleted: {
            songList.follow();
            shownSong = proxyModel.currentItem();
            shownId = shownSong ? shownSong.id : -1;
        }
        // The first songs of an empty list make the first of them current.
        onCountChanged: {
            if (countBefore === 0 && count > 0 && proxyModel.currentIndex < 0)
                proxyModel.currentIndex = 0;
            countBefore = count;
        }
        onCurrentIndexChanged: {
            if (currentIndex !== proxyModel.currentIndex)
                proxyModel.currentIndex = currentIndex;
        }
        Keys.onPressed: {
            var modifiers = event.modifiers & ~Qt.KeypadModifier;
            event.accepted = true;
            if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && modifiers === Qt.ShiftModifier))
                songList.requestMenuByKey();
            else if (modifiers !== Qt.NoModifier)
                event.accepted = songList.selectByKey(event.key, modifiers);
            else if (event.key === Qt.Key_Backspace)
                songList.removeSelectedRequested();
            else
                event.accepted = songList.moveByKey(event.key);
        }

        Accessible.role: Accessible.List
        Accessible.name: songList.label
        Accessible.focusable: true

        delegate: FileItemDelegate {
            width: list.width
            onClicked: {
                songList.takeFocus();
                songList.click(index);
            }
        }

        MouseArea {
            anchors.fill: parent
            z: -1
            acceptedButtons: Qt.LeftButton
            onClicked: songList.takeFocus()
        }

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.RightButton
            onClicked: {
                var row = list.indexAt(mouse.x + list.contentX, mouse.y + list.contentY);
                songList.takeFocus();
                if (row < 0 || !proxyModel.isSelected(row))
                    songList.click(row);
                var place = mapToItem(null, mouse.x, mouse.y);
                songList.menuRequested(row, place.x, place.y, false);
            }
        }

        // A list without a current row has no row that could show the keyboard.
        FocusRing {
            inset: 0
            visible: list.activeFocus && list.currentItem === null
        }

        Connections {
            target: proxyModel

            function onCurrentIndexChanged() {
                list.showCurrent();
            }

            function onModelAboutToBeReset() {
                list.keepPlace();
            }

            function onModelReset() {
                songList.follow();
                Qt.callLater(list.restorePlace); // the view hears of the reset after this, and begins at its top
            }
        }
    }
}
