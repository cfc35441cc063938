// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// The sheet with the lyrics of a song: whose they are, the buttons for them, the words, and how the song stands.
FocusScope {
    id: sheet

    property var song: null
    // The edit of lyrics that the window keeps; it is of this song or of none that is seen here.
    property var edit: null
    property string stateLine
    property bool searchOffered: false
    // Something of the song is in no file yet, beside a draft.
    property bool saveOffered: false

    readonly property bool editing: song !== null && edit !== null && edit.active && edit.songId === song.id
    readonly property string lyrics: song ? song.lyricsTag : ""
    readonly property bool tooLong: lyrics.length > Measures.lyricsLimit
    readonly property bool found: song !== null && lyrics !== "" && !song.lyricsEmbedded
                                  && (song.lyricsArtist !== "" || song.lyricsTitle !== "")
    // The words have the keyboard.
    readonly property bool focused: words.area.activeFocus
    readonly property bool wide: width >= Measures.sideBySideWidth

    signal saveRequested()
    signal searchRequested()
    signal forceSearchRequested()
    signal copyRequested(int id)
    signal browserRequested(url source)

    function takeFocus() {
        words.area.forceActiveFocus();
    }

    function beginEdit() {
        if (song === null || tooLong)
            return;
        edit.begin(song);
        if (editing) {
            words.cursorIntoView();
            takeFocus();
        }
    }

    onSongChanged: words.toTop()

    Rectangle {
        anchors.fill: parent
        radius: Measures.radius + 2
        // For the reason that the list's background has.
        color: words.hasScrollBar ? appPalette.base : Qt.tint(appPalette.base, "#01808080")
    }

    Item {
        id: header

        readonly property real buttonsTop: (Measures.toolbarHeight - buttons.height) / 2

        width: parent.width
        height: Measures.toolbarHeight + (sheet.found && !sheet.wide ? 2 * Measures.margin : 0)

        Row {
            id: names

            x: Measures.margin
            y: sheet.wide ? (Measures.toolbarHeight - height) / 2 : Measures.toolbarHeight
            spacing: Measures.halfGrid
            visible: sheet.found
            opacity: Measures.quiet

            Text {
                id: prefix

                text: qsTr("This lyrics for:")
                textFormat: Text.PlainText
                font.pixelSize: Measures.textFont
                color: appPalette.text
            }

            Text {
                objectName: "foundNames"
                width: Math.min(implicitWidth, (sheet.wide ? buttons.x : header.width) - Measures.margin - prefix.width - 2 * Measures.grid)
                text: sheet.found ? qsTr("“%1” – “%2”", "artist and title").arg(sheet.song.lyricsArtist).arg(sheet.song.lyricsTitle) : ""
                textFormat: Text.PlainText
                elide: Text.ElideRight
                maximumLineCount: 1
                font { pixelSize: Measures.textFont; bold: true }
                color: appPalette.text
            }
        }

        LyricsToolbar {
            id: buttons

            anchors { right: parent.right; rightMargin: Measures.grid }
            y: header.buttonsTop
            editing: sheet.editing
            modified: sheet.editing && sheet.edit.modified
            editable: sheet.song !== null && sheet.song.tagsLoaded && sheet.song.editable && !sheet.tooLong
            hasLyrics: sheet.lyrics !== ""
            fontSize: settings.lyricsFontSize
            searchProvider: mainWindow ? mainWindow.searchEngine(settings.searchProvider) : ""
            onEditToggled: sheet.editing ? sheet.edit.cancel() : sheet.beginEdit()
            saveOffered: sheet.saveOffered
            onSaveRequested: sheet.editing ? sheet.edit.save() : sheet.saveRequested()
            onCancelRequested: sheet.edit.cancel()
            onSearchRequested: sheet.forceSearchRequested()
            onCopyRequested: sheet.copyRequested(sheet.song.id)
            onBrowserRequested: sheet.browserRequested(sheet.song.url)
            onFontSizeRequested: settings.lyricsFontSize = size
        }
    }

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: header.bottom }
        height: Measures.hairline
        color: appPalette.text
        opacity: Measures.hairlineStrength
    }

    LyricsText {
        id: words

        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: footer.top; margins: Measures.hairline }
        editing: sheet.editing
        fontSize: settings.lyricsFontSize
        shownText: sheet.editing ? sheet.edit.text : sheet.tooLong ? sheet.lyrics.slice(0, Measures.lyricsLimit) : sheet.lyrics
        onEdited: {
            if (sheet.editing)
                sheet.edit.text = text;
        }
    }

    StateLine {
        id: footer

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Measures.hairline }
        height: implicitHeight
        text: sheet.stateLine === "" && sheet.tooLong ? qsTr("These lyrics are very long; their beginning is shown.") : sheet.stateLine
        searchOffered: sheet.searchOffered
        onSearchRequested: sheet.searchRequested()
    }

    // The frame is drawn last, so that nothing lies over its corners.
    Rectangle {
        readonly property bool strong: sheet.focused

        anchors.fill: parent
        radius: Measures.radius + 2
        color: "transparent"
        opacity: strong ? 1 : 1.5 * Measures.hairlineStrength
        border { width: strong ? Measures.focusRing : Measures.hairline; color: strong ? appPalette.highlight : appPalette.text }
    }
}
