// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// The list of songs with the bars around it and its menu.
Rectangle {
    id: pane

    property int qtVersion: 0

    signal removeSelectedRequested()
    signal removeAllRequested()
    signal removeWithLyricsRequested()
    signal forceSearchRequested()
    signal exportLyricsRequested()
    signal copyPathRequested(int row)
    signal searchInBrowserRequested(int row)
    signal addFilesRequested()
    signal addFolderRequested()
    // The user wants the list so many pixels wider.
    signal edgeMoved(int distance)

    // Whether a modified draft is of a song that is not shown any more.
    function draftLeft() {
        var song = proxyModel.selectedItem();
        var edit = mainWindow.lyricsEdit;
        return edit.modified && (song === null || song.id !== edit.songId);
    }

    function takeFocus() {
        if (songs.count === 0 && !emptyList.allHidden)
            emptyList.takeFocus();
        else
            songs.takeFocus();
    }

    // Another colour node, to the eye the same, whenever the scroll bar goes: the software renderer does not paint over
    // what is left of it by itself.
    color: songs.hasScrollBar ? appPalette.listBackground : Qt.tint(appPalette.listBackground, "#01808080")

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
        onRemoveSelectedRequested: pane.removeSelectedRequested()
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

    EmptyList {
        id: emptyList

        anchors.centerIn: songs
        width: parent.width - 4 * Measures.grid
        visible: songs.count === 0
        allHidden: proxyModel.hiddenCount > 0
        onAddFilesRequested: pane.addFilesRequested()
        onAddFolderRequested: pane.addFolderRequested()
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
            onClicked: pane.removeWithLyricsRequested()
        }
    }

    SplitterHandle {
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        onMoved: pane.edgeMoved(distance)
    }

    SongMenu {
        id: menu

        objectName: "songMenu"
        qtVersion: pane.qtVersion
        selectedCount: proxyModel.selectedCount
        searchProvider: mainWindow ? mainWindow.searchEngine(settings.searchProvider) : ""
        onForceSearch: pane.forceSearchRequested()
        onExportLyrics: pane.exportLyricsRequested()
        onRemoveSelected: pane.removeSelectedRequested()
        onRemoveAll: pane.removeAllRequested()
        // The rows may have moved since the menu was opened, or the song may have gone.
        onCopyPath: pane.copyPathRequested(proxyModel.rowOf(songId))
        onSearchInBrowser: pane.searchInBrowserRequested(proxyModel.rowOf(songId))
    }
}
