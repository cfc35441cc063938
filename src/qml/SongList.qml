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

    // Nothing without a current row.
    function moveTo(row) {
        if (list.currentIndex >= 0)
            proxyModel.currentIndex = Math.max(0, Math.min(list.count - 1, row));
    }

    // Where a key moves to; -1 for other keys.
    function targetOf(key) {
        switch (key) {
        case Qt.Key_Up:
            return list.currentIndex - 1;
        case Qt.Key_Down:
            return list.currentIndex + 1;
        case Qt.Key_Home:
            return 0;
        case Qt.Key_End:
            return list.count - 1;
        }
        return -1;
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
        return true;
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
        property real keptY: 0
        property var shownSong: null
        property int countBefore: 0

        function restorePlace() {
            contentY = Math.max(0, Math.min(keptY, count * Measures.rowHeight - height));
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
            else if (event.key === Qt.Key_Up)
                songList.moveTo(currentIndex - 1);
            else if (event.key === Qt.Key_Down)
                songList.moveTo(currentIndex + 1);
            else if (event.key === Qt.Key_PageUp)
                songList.moveTo(currentIndex - rowsInView);
            else if (event.key === Qt.Key_PageDown)
                songList.moveTo(currentIndex + rowsInView);
            else if (event.key === Qt.Key_Home && count > 0)
                proxyModel.currentIndex = 0;
            else if (event.key === Qt.Key_End && count > 0)
                proxyModel.currentIndex = count - 1;
            else
                event.accepted = false;
        }

        Accessible.role: Accessible.List
        Accessible.name: songList.label
        Accessible.focusable: true

        delegate: FileItemDelegate {
            width: list.width
            onClicked: {
                songList.takeFocus();
                proxyModel.itemClicked(index);
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
                    proxyModel.itemClicked(row);
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
                songList.follow();
                // Rows that come and go around the current song move its row, which is no reason to take the keyboard away.
                var song = proxyModel.currentItem();
                if (song !== list.shownSong && song !== null)
                    songList.takeFocus();
                list.shownSong = song;
            }

            function onModelAboutToBeReset() {
                list.keptY = list.contentY;
            }

            function onModelReset() {
                songList.follow();
                Qt.callLater(list.restorePlace); // the view hears of the reset after this, and begins at its top
            }
        }
    }
}
