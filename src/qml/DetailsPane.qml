// SPDX-License-Identifier: MIT
import QtQuick 2.2
import com.quillmarsh 1.0
import "."

// The one selected song: its sound, its names and its lyrics; or how many songs are selected.
Rectangle {
    id: pane

    // Null when none or several are selected.
    property var song: null
    property int selectedCount: 0
    property var edit: null

    readonly property bool searchOffered: song !== null && !song.lyricsEmbedded && song.artistTag !== "" && song.titleTag !== ""
        && (song.lyricsArtist !== "" || song.lyricsTitle !== "")
        && (song.lyricsArtist !== song.artistTag || song.lyricsTitle !== song.titleTag)
        && (song.processState === ModelItem.ProcessFailed || song.processState === ModelItem.ProcessComplete)

    // Something of the song is in no file yet, and nothing is going on that would write it.
    readonly property bool saveOffered: song !== null && song.edited && !song.active && !song.writingTags

    signal saveRequested()
    signal forceSearchRequested()
    signal copyRequested(int id)
    signal browserRequested(url source)
    // What a song needs cannot be made.
    signal failed(url source)

    readonly property bool lyricsFocused: details.item !== null && details.item.lyricsFocused
    readonly property bool lyricsHoldKeyboard: details.item !== null && details.item.lyricsHoldKeyboard
    readonly property bool tagsLoaded: state.tagsLoaded
    readonly property string stateLine: state.line

    function makeDetails() {
        if (song !== null && details.status === Loader.Null)
            details.setSource("SongDetails.qml", { pane: pane });
    }

    function focusLyrics() {
        if (details.item !== null)
            details.item.focusLyrics();
    }

    function beginEdit() {
        if (details.item !== null)
            details.item.beginEdit();
    }

    // Names that were typed for the song of this id but not confirmed yet.
    function confirmNames(id) {
        if (details.item !== null)
            details.item.confirmNames(id);
    }

    onSongChanged: makeDetails()
    Component.onCompleted: makeDetails()

    color: appPalette.window

    SongState {
        id: state

        processState: pane.song ? pane.song.processState : ModelItem.ProcessIdle
        tagsLoaded: pane.song !== null && pane.song.tagsLoaded
        badFile: tagsLoaded && pane.song.bad
        hasLyrics: pane.song !== null && pane.song.lyricsTag !== ""
        errorString: pane.song ? pane.song.errorString : ""
        readFailed: pane.song !== null && pane.song.unreadable
        writeError: pane.song ? pane.song.writeError : ""
        foundNothing: pane.song !== null && pane.song.foundNothing
    }

    Text {
        anchors.centerIn: parent
        width: parent.width - 4 * Measures.grid
        visible: pane.song === null && !mainModel.restoring
        text: pane.selectedCount > 0 ? qsTr("Selected %n files", "", pane.selectedCount) : qsTr("No file is selected")
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Measures.invitationFont
        color: appPalette.windowText
        opacity: Measures.quieter

        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    // Not before there is a song: a start with an empty list need not wait for it. Nor need the first rows of the list.
    Loader {
        id: details

        asynchronous: true
        anchors { fill: parent; margins: Measures.margin }
        onStatusChanged: {
            if (status === Loader.Error)
                pane.failed(source);
        }
    }
}
