// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Layouts 1.0
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

    readonly property bool lyricsFocused: lyrics.focused

    function focusLyrics() {
        lyrics.takeFocus();
    }

    function beginEdit() {
        lyrics.beginEdit();
    }

    // Names that were typed for the song of this id but not confirmed yet.
    function confirmNames(id) {
        artist.confirmOf(id);
        title.confirmOf(id);
    }

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
        visible: pane.song === null
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

    ColumnLayout {
        anchors { fill: parent; margins: Measures.margin }
        spacing: Measures.margin
        visible: pane.song !== null

        AudioPreview {
            objectName: "audioPreview"
            Layout.fillWidth: true
            source: pane.song ? pane.song.url : ""
        }

        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: Measures.grid
            rowSpacing: Measures.grid
            enabled: state.tagsLoaded

            Text {
                Layout.alignment: Qt.AlignRight | Qt.AlignVCenter
                text: qsTr("Artist:")
                textFormat: Text.PlainText
                font.pixelSize: Measures.fieldFont
                color: appPalette.windowText
                opacity: Measures.quiet
            }

            EditableField {
                id: artist

                objectName: "artistField"
                Layout.fillWidth: true
                subject: pane.song
                role: "artistTag"
                unsaved: pane.saveOffered && pane.song.artistEdited
                label: qsTr("Artist")
            }

            Text {
                Layout.alignment: Qt.AlignRight | Qt.AlignVCenter
                text: qsTr("Title:")
                textFormat: Text.PlainText
                font.pixelSize: Measures.fieldFont
                color: appPalette.windowText
                opacity: Measures.quiet
            }

            EditableField {
                id: title

                objectName: "titleField"
                Layout.fillWidth: true
                subject: pane.song
                role: "titleTag"
                unsaved: pane.saveOffered && pane.song.titleEdited
                label: qsTr("Title")
            }
        }

        LyricsItem {
            id: lyrics

            objectName: "lyricsItem"
            Layout.fillWidth: true
            Layout.fillHeight: true
            song: pane.song
            edit: pane.edit
            stateLine: state.line
            searchOffered: pane.searchOffered
            saveOffered: pane.saveOffered
            onSaveRequested: pane.saveRequested()
            onSearchRequested: {
                pane.confirmNames(pane.song.id);
                mainModel.startSearch(pane.song.id);
            }
            onForceSearchRequested: pane.forceSearchRequested()
            onCopyRequested: pane.copyRequested(id)
            onBrowserRequested: pane.browserRequested(source)
        }
    }
}
