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

    // Rows that go in the same moment keep the view from following.
    function showCurrentRow() {
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
    }

    function requestMenuByKey() {
        var item = list.currentItem;
        if (item)
            showCurrentRow();
        var place = item ? item.mapToItem(null, Measures.textColumn, item.height / 2) : mapToItem(null, width / 2, height / 2);
        menuRequested(list.currentIndex, place.x, place.y, true);
    }

    horizontalScrollBarPolicy: Qt.ScrollBarAlwaysOff
    style: SlimScrollStyle {}

    ListView {
        id: list

        readonly property int rowsInView: Math.max(1, Math.floor(height / Measures.rowHeight))
        property int countBefore: 0

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
            current.note();
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
        Keys.onPressed: event.accepted = keys.press(event.key, event.modifiers & ~Qt.KeypadModifier)

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

        ListKeys {
            id: keys

            view: list
            onRowChosen: songList.select(row)
            onRemoveSelectedRequested: songList.removeSelectedRequested()
            onMenuRequested: songList.requestMenuByKey()
            onMoved: songList.showCurrentRow()
        }

        ListPlace {
            id: keptPlace

            view: list
        }

        CurrentSong {
            id: current

            focusItem: list.Window.activeFocusItem
            onKeyboardWanted: songList.takeFocus()
            onSuccessorWanted: songList.select(row)
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
                songList.follow();
                current.follow();
            }

            function onModelAboutToBeReset() {
                keptPlace.keep();
            }

            function onModelReset() {
                songList.follow();
                Qt.callLater(keptPlace.restore); // the view hears of the reset after this, and begins at its top
            }
        }
    }
}
