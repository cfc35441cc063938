// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// The list of songs with the bars around it and its menu.
Item {
    id: pane

    // The ListSide that holds it.
    property var side: null
    readonly property alias count: songs.count
    readonly property alias hasScrollBar: songs.hasScrollBar
    // Heights of the bars that are shown.
    readonly property alias above: scanningBar.height
    readonly property alias below: hiddenBar.height

    // Whether a modified draft is of a song that is not shown any more.
    function draftLeft() {
        var song = proxyModel.selectedItem();
        var edit = mainWindow.lyricsEdit;
        return edit.modified && (song === null || song.id !== edit.songId);
    }

    function takeFocus() {
        songs.takeFocus();
    }

    InfoBar {
        id: scanningBar

        property int found: 0

        objectName: "scanningBar"
        width: parent.width
        height: implicitHeight
        shown: folderScanner.processing
        hairlineAtTop: false
        color: appPalette.scanningFolderBackground
        textColor: appPalette.scanningFolderText
        text: qsTr("Scanning folder(s) for music files (found %n)", "", found)

        LinkButton {
            text: qsTr("Cancel")
            onClicked: folderScanner.cancel()
        }

        Timer {
            interval: Measures.scanPollInterval
            repeat: true
            running: scanningBar.shown
            triggeredOnStart: true
            onTriggered: scanningBar.found = folderScanner.lastCount()
        }
    }

    SongList {
        id: songs

        anchors { left: parent.left; right: parent.right; top: scanningBar.bottom; bottom: hiddenBar.top }
        focus: true
        onRemoveSelectedRequested: side.removeSelectedRequested()
        onMenuRequested: {
            // A click on another row may have left a draft that has to be asked about first.
            if (pane.draftLeft())
                return;
            var song = proxyModel.itemAt(row);
            menu.row = row;
            menu.songId = song ? song.id : -1;
            if (byKey)
                menu.openAt(x, y);
            else
                menu.openAtPointer(x, y);
        }
    }

    InfoBar {
        id: hiddenBar

        objectName: "hiddenBar"
        anchors.bottom: parent.bottom
        width: parent.width
        height: implicitHeight
        shown: proxyModel.hiddenCount > 0
        text: qsTr("Hidden %n file(s) with lyrics", "", proxyModel.hiddenCount)

        LinkButton {
            text: qsTr("Show")
            Accessible.name: qsTr("Show hidden files")
            onClicked: proxyModel.showFound = true
        }

        LinkButton {
            text: qsTr("Remove")
            Accessible.name: qsTr("Remove hidden files from the list")
            onClicked: side.removeWithLyricsRequested()
        }
    }

    SongMenu {
        id: menu

        objectName: "songMenu"
        title: songs.label
        qtVersion: side ? side.qtVersion : 0
        selectedCount: proxyModel.selectedCount
        searchProvider: mainWindow ? mainWindow.searchEngine(settings.searchProvider) : ""
        onForceSearch: side.forceSearchRequested()
        onExportLyrics: side.exportLyricsRequested()
        onRemoveSelected: side.removeSelectedRequested()
        onRemoveAll: side.removeAllRequested()
        // The rows may have moved since the menu was opened, or the song may have gone.
        onCopyPath: side.copyPathRequested(proxyModel.rowOf(songId))
        onSearchInBrowser: side.searchInBrowserRequested(proxyModel.rowOf(songId))
    }
}
