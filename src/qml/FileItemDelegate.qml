// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."
import "duration.js" as Duration

// One song of the list: cover, names, duration and how it stands. Made of cheap parts, because it is made anew for each
// row that is scrolled in; the locate button is made for the hovered and the current row only.
Item {
    id: row

    readonly property bool current: ListView.isCurrentItem
    readonly property bool selected: selectedRole
    readonly property bool hovered: mouseArea.containsMouse
    readonly property bool toolsShown: hovered || current
    readonly property bool signsShown: toolsShown && (!selected || Measures.whiteOnHighlight)
    readonly property color textColor: selected ? appPalette.listItemSelectedText : appPalette.listItemText
    readonly property color hoverColor: mixed(appPalette.listItemSelected, appPalette.listItemBackground, Measures.hoverStrength)
    // Quiet text must stay readable on the highlight colour.
    readonly property real quiet: selected ? Measures.quietOnHighlight : Measures.quiet
    readonly property real quieter: selected ? Measures.quieterOnHighlight : Measures.quieter

    signal clicked()

    // q parts of the first colour over the second.
    function mixed(first, second, q) {
        return Qt.tint(second, Qt.rgba(first.r, first.g, first.b, q));
    }

    height: Measures.rowHeight
    // The list's place on the way of the Tab key; no less while the row still has the keyboard, which Qt would refuse.
    activeFocusOnTab: current || activeFocus

    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2, %3", "title, artist and how the song stands").arg(title.text).arg(artist.text).arg(state.spokenWord)
    Accessible.description: filenameRole
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.focusable: true
    Accessible.onPressAction: clicked()

    SongState {
        id: state

        processState: processStateRole
        tagsLoaded: tagsLoadedRole
        badFile: tagsLoadedRole && badFileRole
        hasLyrics: lyricsTagRole !== ""
        errorString: itemRole ? itemRole.errorString : ""
        readFailed: itemRole ? itemRole.unreadable : false
        writeError: itemRole ? itemRole.writeError : ""
        namesEdited: itemRole ? itemRole.artistEdited || itemRole.titleEdited : false
        foundNothing: itemRole ? itemRole.foundNothing : false
    }

    Rectangle {
        anchors.fill: parent
        color: row.selected ? appPalette.listItemSelected : row.hoverColor
        visible: row.selected || row.hovered
    }

    // The row that the keyboard moves from; with the keyboard it has a stronger frame.
    Rectangle {
        anchors { fill: parent; margins: 2 }
        radius: 2
        color: "transparent"
        visible: row.current && (row.activeFocus || !row.selected)
        border {
            width: row.activeFocus ? Measures.focusRing : Measures.hairline
            color: row.selected ? appPalette.listItemSelectedText : row.activeFocus ? appPalette.highlight
                                                                                    : appPalette.listItemCurrentBorder
        }
    }

    Image {
        id: cover

        x: Measures.coverMargin
        width: Measures.coverSide
        height: Measures.coverSide
        anchors.verticalCenter: parent.verticalCenter
        source: itemRole && itemRole.hasCover ? fileThumbnailRole : ""
        sourceSize { width: Measures.coverSide; height: Measures.coverSide }
        fillMode: Image.PreserveAspectCrop
    }

    // The picture of no cover lets its ground through, and is not seen on the highlight colour.
    Rectangle {
        anchors.fill: cover
        radius: Measures.radius
        color: row.selected ? appPalette.listItemBackground : "transparent"
        visible: noCover.visible
    }

    Image {
        id: noCover

        anchors.fill: cover
        source: "qrc:/img/no-coverart" + Measures.pictureEnd
        visible: cover.status !== Image.Ready
    }

    // Rounds the cover's corners, which the software renderer cannot cut.
    Rectangle {
        anchors { fill: cover; margins: -border.width }
        radius: Measures.radius + border.width
        color: "transparent"
        visible: cover.status === Image.Ready
        border { width: 2; color: row.selected ? appPalette.listItemSelected : row.hovered ? row.hoverColor : appPalette.listItemBackground }
    }

    Text {
        id: title

        x: Measures.textColumn
        y: Measures.titleTop
        width: Math.min(implicitWidth, duration.x - x - (titleTagRole === "" ? 0 : Measures.icon) - Measures.grid)
        text: titleTagRole || qsTr("No title")
        textFormat: Text.PlainText
        elide: Text.ElideRight
        maximumLineCount: 1
        font { pixelSize: Measures.titleFont; weight: Font.DemiBold; italic: titleTagRole === "" }
        color: row.textColor
        opacity: titleTagRole === "" ? row.quieter : 1
    }

    Text {
        id: artist

        x: Measures.textColumn
        y: Measures.artistTop
        width: Math.min(implicitWidth, row.width - x - Measures.rowMargin - Measures.icon - Measures.halfGrid)
        text: artistTagRole || qsTr("No artist")
        textFormat: Text.PlainText
        elide: Text.ElideRight
        maximumLineCount: 1
        font { pixelSize: Measures.textFont; italic: artistTagRole === "" }
        color: row.textColor
        opacity: artistTagRole === "" ? row.quieter : row.quiet
    }

    Text {
        x: Measures.textColumn
        y: Measures.fileNameTop
        width: Math.max(0, warning.x - x - Measures.grid)
        visible: width > 2 * Measures.smallFont // or it would be an ellipsis alone
        text: filenameRole
        textFormat: Text.PlainText
        elide: Text.ElideMiddle
        maximumLineCount: 1
        font.pixelSize: Measures.smallFont
        color: row.textColor
        opacity: row.quieter
    }

    PaletteImage {
        anchors { left: title.right; leftMargin: Measures.halfGrid; verticalCenter: title.verticalCenter }
        imageName: row.signsShown && titleTagRole !== "" ? (row.selected ? "title_on_highlight" : "title") : ""
    }

    PaletteImage {
        anchors { left: artist.right; leftMargin: Measures.halfGrid; verticalCenter: artist.verticalCenter }
        imageName: row.signsShown ? (row.selected ? "artist_on_highlight" : "artist") : ""
    }

    Text {
        id: duration

        anchors { right: parent.right; rightMargin: Measures.rowMargin; baseline: title.baseline }
        text: durationRole > 0 ? Duration.text(durationRole) : ""
        textFormat: Text.PlainText
        font.pixelSize: Measures.textFont
        color: row.textColor
        opacity: row.quiet
    }

    // The light says what lyrics the song has, not where they are.
    Image {
        id: warning

        anchors { right: word.left; rightMargin: width > 0 ? Measures.halfGrid : 0; verticalCenter: light.verticalCenter }
        width: source == "" ? 0 : Measures.icon
        height: Measures.icon
        source: state.unsaved ? "qrc:/img/exclamation" + Measures.pictureEnd : ""
    }

    Text {
        id: word

        anchors { right: light.left; rightMargin: light.width > 0 ? 6 : 0; verticalCenter: light.verticalCenter }
        width: Math.min(implicitWidth, (row.width - Measures.textColumn) * Measures.wordShare)
        text: state.word
        textFormat: Text.PlainText
        elide: Text.ElideRight
        maximumLineCount: 1
        font { pixelSize: Measures.smallFont; bold: state.unsaved }
        color: row.textColor
        opacity: state.unsaved ? 1 : row.quiet
    }

    // A rim, so that the light stands out from the highlight colour.
    Rectangle {
        anchors { fill: light; margins: -1 }
        radius: width / 2
        color: appPalette.listItemBackground
        visible: row.selected && light.width > 0
    }

    Image {
        id: light

        anchors { right: parent.right; rightMargin: Measures.rowMargin; bottom: parent.bottom; bottomMargin: 5 }
        width: source == "" ? 0 : Measures.light
        height: Measures.light
        source: state.lightSource.replace(".png", Measures.pictureEnd)
    }

    Rectangle {
        x: Measures.textColumn
        y: parent.height - height
        width: parent.width - x
        height: Measures.hairline
        color: appPalette.listItemText
        opacity: Measures.hairlineStrength
        visible: !row.selected
    }

    MouseArea {
        id: mouseArea

        anchors.fill: parent
        hoverEnabled: true
        onClicked: row.clicked()

        Loader {
            x: cover.x + cover.width + Measures.halfGrid - width
            y: cover.y + cover.height + Measures.halfGrid - height
            active: row.toolsShown
            sourceComponent: locateButton
        }
    }

    Component {
        id: locateButton

        ImageButton {
            width: Measures.locateButton
            height: Measures.locateButton
            imageName: "locate"
            text: qsTr("Show in the file manager")
            background: appPalette.listItemBackground
            // The way of the Tab key leads from the current row to its own button alone.
            activeFocusOnTab: row.current || activeFocus
            onClicked: proxyModel.locate(index)
        }
    }
}
