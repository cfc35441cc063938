// SPDX-License-Identifier: MIT
import QtQuick 2.15
import com.quillmarsh 1.0

Rectangle {
    id: root

    readonly property int spacing: 8
    readonly property int rowHeight: 44
    readonly property var currentSong: list.currentItem ? list.currentItem.song : null

    // Words for how a song stands; a search that ended without lyrics and without an error found nothing.
    function stateText(song) {
        if (!song)
            return "";
        if (song.processState !== ModelItem.ProcessComplete)
            return song.processStateText;
        if (song.errorString !== "")
            return song.errorString;
        return song.lyricsTag === "" ? qsTr("no lyrics found") : qsTr("has lyrics");
    }

    color: colors.window

    onCurrentSongChanged: lyricsPane.contentY = 0

    SystemPalette {
        id: colors
    }

    ListView {
        id: list

        objectName: "songList"
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: Math.max(200, Math.round(parent.width * 0.4))
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        KeyNavigation.tab: lyricsPane
        Keys.onPressed: {
            if (event.key === Qt.Key_Home)
                currentIndex = Math.min(0, count - 1);
            else if (event.key === Qt.Key_End)
                currentIndex = count - 1;
            else
                return;
            event.accepted = true;
        }
        model: mainModel

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Songs")

        delegate: Rectangle {
            id: row

            readonly property var song: itemRole

            width: list.width
            height: root.rowHeight
            color: ListView.isCurrentItem ? colors.highlight : colors.base

            Accessible.role: Accessible.ListItem
            Accessible.name: fileName.text + ", " + state.text

            Text {
                id: fileName

                anchors { left: parent.left; right: parent.right; top: parent.top; margins: root.spacing }
                text: filenameRole
                textFormat: Text.PlainText
                elide: Text.ElideMiddle
                maximumLineCount: 1
                color: row.ListView.isCurrentItem ? colors.highlightedText : colors.text
            }

            Text {
                id: state

                anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: root.spacing / 2; leftMargin: root.spacing }
                text: root.stateText(row.song)
                textFormat: Text.PlainText
                elide: Text.ElideRight
                maximumLineCount: 1
                font.pixelSize: fileName.font.pixelSize * 0.9
                opacity: 0.75
                color: fileName.color
            }

            MouseArea {
                anchors.fill: parent
                onClicked: list.currentIndex = index
            }
        }
    }

    Text {
        anchors.centerIn: list
        width: list.width - 4 * root.spacing
        visible: list.count === 0
        text: qsTr("Drop music files or folders here")
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        opacity: 0.75
        color: colors.windowText
    }

    Flickable {
        id: lyricsPane

        function scrollBy(distance) {
            contentY = Math.max(0, Math.min(contentHeight - height, contentY + distance));
        }

        objectName: "lyricsPane"
        anchors { left: list.right; right: parent.right; top: parent.top; bottom: parent.bottom; margins: 2 * root.spacing }
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        contentHeight: lyrics.implicitHeight
        activeFocusOnTab: true
        KeyNavigation.tab: list
        Keys.onUpPressed: scrollBy(-root.rowHeight)
        Keys.onDownPressed: scrollBy(root.rowHeight)
        Keys.onPressed: {
            if (event.key === Qt.Key_PageUp)
                scrollBy(-height);
            else if (event.key === Qt.Key_PageDown)
                scrollBy(height);
            else
                return;
            event.accepted = true;
        }

        Text {
            id: lyrics

            objectName: "lyricsText"
            width: parent.width
            text: root.currentSong ? (root.currentSong.lyricsTag || root.stateText(root.currentSong)) : qsTr("No file is selected")
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            lineHeight: 1.35
            font.pointSize: settings.lyricsFontSize
            color: colors.windowText

            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    // What part of long lyrics is seen.
    Rectangle {
        anchors.right: parent.right
        y: lyricsPane.y + lyricsPane.visibleArea.yPosition * lyricsPane.height
        width: root.spacing / 2
        height: lyricsPane.visibleArea.heightRatio * lyricsPane.height
        radius: width / 2
        visible: lyricsPane.visibleArea.heightRatio < 1
        color: colors.mid
    }

    // The pane that has the keyboard.
    Rectangle {
        readonly property Item pane: lyricsPane.activeFocus ? lyricsPane : list

        x: pane.x
        y: pane.y
        width: pane.width
        height: pane.height
        visible: list.activeFocus || lyricsPane.activeFocus
        color: "transparent"
        border { width: 1; color: colors.highlight }
    }

    DropArea {
        anchors.fill: parent
        onDropped: {
            if (drop.hasUrls) {
                mainModel.addUrlsFromDrop(drop.urls);
                drop.accept(Qt.CopyAction);
            }
        }
    }
}
