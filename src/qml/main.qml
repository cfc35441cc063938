// SPDX-License-Identifier: MIT
import QtQuick 2.5
import QtQuick.Window 2.2
import "."

// The whole of the window's content: the list of songs at the left, the selected song at the right. It talks to the
// program through the context properties and through the signals below.
Rectangle {
    id: root

    // Wanted width of the list in pixels; stored by the window when it goes.
    property int listWidth: Measures.listWidth
    // The version of Qt as one number; 0 until the window sets it.
    property int qtVersion: 0
    // The first frame is on the screen: time to make what it could do without. Set by the window.
    property bool complete: false
    // Whether the window waits for a dialog; set by the window.
    property bool blocked: false
    // Null while the window goes.
    readonly property var edit: mainWindow ? mainWindow.lyricsEdit : null
    // Null where nobody is to be asked whether usage events may be sent.
    readonly property var consent: mainWindow && mainWindow.usageConsent ? mainWindow.usageConsent : null
    // The one selected song; null when there is none or there are several.
    property var shownSong: null
    // In pixels; below them something is cut.
    readonly property int leastWidth: Measures.listMinimumWidth + Measures.detailsMinimumWidth + Measures.hairline
    readonly property int leastHeight: Measures.minimumHeight + consentBar.height

    signal listForceSearchSelected()
    signal listExportLyricsSelected()
    signal listRemoveSelected()
    signal listRemoveAll()
    signal listRemoveWithLyrics()
    signal listCopyPathToClipboard(int itemIndex)
    signal listSearchLyricsInBrowser(int itemIndex)
    signal listSearchLyricsInBrowser_url(url itemUrl)
    signal listLyricsToClipboard(int itemIndex)
    // The user wants to leave a modified draft.
    signal leaveEditRequested()
    // What is made after the first frame cannot be made.
    signal partFailed(url source)
    signal addFilesRequested()
    signal addFolderRequested()

    function editLyrics() {
        details.beginEdit();
    }

    function focusLyrics() {
        details.focusLyrics();
    }

    function leaveEdit() {
        edit.modified && !details.lyricsFocused ? leaveEditRequested() : edit.cancel();
    }

    // With the names of its song, which are saved without lyrics too.
    function saveLyrics() {
        if (edit.active)
            edit.save();
        else
            saveSong();
    }

    // A search that is under way would not find a song that is being written; what it finds is written with the names.
    function saveSong() {
        if (shownSong === null || shownSong.active)
            return;
        details.confirmNames(shownSong.id);
        if (shownSong.edited)
            mainModel.writeTags(shownSong.id);
    }

    // Discards the draft of an edit: whoever searches anew wants other words.
    function forceSearch() {
        edit.cancel();
        listForceSearchSelected();
    }

    // Called by the window when what had the keyboard is hidden or switched off.
    function rescueKeyboard() {
        details.lyricsHoldKeyboard ? details.focusLyrics() : list.takeFocus();
    }

    function boundedListWidth(wanted) {
        var most = width - Measures.detailsMinimumWidth - Measures.hairline;
        return Math.max(Measures.listMinimumWidth, Math.min(wanted, most));
    }

    function showSelectedSong() {
        shownSong = proxyModel.selectedItem();
    }

    color: appPalette.window

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Songs and lyrics")

    Component.onCompleted: {
        showSelectedSong();
        list.takeFocus();
    }

    Binding {
        target: Measures
        property: "screenRatio"
        value: Screen.devicePixelRatio
    }

    Connections {
        target: root.edit

        // Names that were typed but not confirmed are written along with the lyrics.
        function onAboutToSave() {
            details.confirmNames(root.edit.songId);
        }
    }

    Connections {
        target: proxyModel

        function onCurrentIndexChanged() {
            root.showSelectedSong();
        }

        function onSelectedCountChanged() {
            root.showSelectedSong();
        }

        // A selection that moves without growing is told as a change of data in named roles.
        function onDataChanged(first, last, roles) {
            if (roles.length > 0)
                root.showSelectedSong();
        }
    }

    Shortcut {
        sequence: "F2"
        enabled: !root.blocked
        onActivated: root.editLyrics()
    }

    Shortcut {
        sequence: "Ctrl+S"
        enabled: !root.blocked
        onActivated: root.saveLyrics()
    }

    Shortcut {
        sequence: "Ctrl+R"
        enabled: !root.blocked
        onActivated: root.forceSearch()
    }

    Shortcut {
        sequence: "Escape"
        enabled: !root.blocked && root.edit !== null && root.edit.active
        onActivated: root.leaveEdit()
    }

    ListSide {
        id: list

        anchors { left: parent.left; top: parent.top; bottom: consentBar.top }
        width: root.boundedListWidth(root.listWidth)
        complete: root.complete
        qtVersion: root.qtVersion
        keyboardElsewhere: consentBar.activeFocus
        onFailed: root.partFailed(source)
        onEdgeMoved: root.listWidth = root.boundedListWidth(width + distance)
        onRemoveSelectedRequested: root.listRemoveSelected()
        onRemoveAllRequested: root.listRemoveAll()
        onRemoveWithLyricsRequested: root.listRemoveWithLyrics()
        onForceSearchRequested: root.forceSearch()
        onExportLyricsRequested: root.listExportLyricsSelected()
        onCopyPathRequested: root.listCopyPathToClipboard(row)
        onSearchInBrowserRequested: root.listSearchLyricsInBrowser(row)
        onAddFilesRequested: root.addFilesRequested()
        onAddFolderRequested: root.addFolderRequested()
    }

    Rectangle {
        id: border

        anchors { left: list.right; top: parent.top; bottom: consentBar.top }
        width: Measures.hairline
        color: Qt.tint(appPalette.window, Qt.rgba(appPalette.windowText.r, appPalette.windowText.g, appPalette.windowText.b,
                                                  Measures.hairlineStrength))
    }

    DetailsPane {
        id: details

        anchors { left: border.right; right: parent.right; top: parent.top; bottom: consentBar.top }
        song: root.shownSong
        selectedCount: proxyModel.selectedCount
        edit: root.edit
        onFailed: root.partFailed(source)
        onSaveRequested: root.saveLyrics()
        onForceSearchRequested: root.forceSearch()
        onCopyRequested: root.listLyricsToClipboard(id)
        onBrowserRequested: root.listSearchLyricsInBrowser_url(source)
    }

    // No longer than there is something to ask.
    Loader {
        id: consentBar

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        source: root.consent !== null && root.consent.pending ? "ConsentBar.qml" : ""
    }

    Connections {
        target: consentBar.item

        function onExampleRequested() {
            root.consent.showExample();
        }

        function onAnswered(yes) {
            // Before the button with the keyboard goes.
            list.takeFocus();
            root.consent.answer(yes);
        }
    }

    DropArea {
        id: dropArea

        anchors.fill: parent
        onEntered: drag.accepted = drag.hasUrls
        onDropped: {
            if (drop.hasUrls) {
                mainModel.addUrlsFromDrop(drop.urls);
                drop.accept(Qt.CopyAction);
            }
        }
    }

    // Where songs that are being dragged would go.
    Rectangle {
        x: list.x
        width: list.width
        height: list.height
        visible: dropArea.containsDrag
        color: "transparent"
        border { width: Measures.focusRing; color: appPalette.highlight }
    }
}
