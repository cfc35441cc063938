// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Layouts 1.0
import "."

// The sound, the names and the lyrics of the selected song. The pane around it makes it when the first song is shown.
ColumnLayout {
    id: details

    // The DetailsPane that this lies in.
    property var pane
    readonly property bool lyricsFocused: lyrics.focused
    // They or their buttons have it.
    readonly property bool lyricsHoldKeyboard: lyrics.visible && lyrics.activeFocus

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

    spacing: Measures.margin
    visible: pane.song !== null

    Connections {
        target: mainWindow

        function onTypedNamesAsked() {
            mainWindow.noteTypedNames(artist.typedIds().concat(title.typedIds()));
        }

        function onTypedNamesWanted(ids) {
            artist.confirmAmong(ids);
            title.confirmAmong(ids);
        }
    }

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
        enabled: pane.tagsLoaded

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
        stateLine: pane.stateLine
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
