// SPDX-License-Identifier: MIT
import QtQuick 2.15
import com.quillmarsh 1.0

Rectangle {
    id: root

    // Width of the list in pixels; stored by the window when it goes.
    property int listWidth: 400
    readonly property int spacing: 8
    readonly property int rowHeight: 44
    readonly property int smallestPane: 200
    property var currentSong: proxyModel.currentItem()

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

    color: appPalette.window

    onCurrentSongChanged: lyricsPane.contentY = 0
    // Songs may be there before the scene is; its list then makes the first one current.
    Component.onCompleted: currentSong = proxyModel.currentItem()

    Connections {
        target: proxyModel

        function onCurrentIndexChanged(index) {
            list.currentIndex = index;
            root.currentSong = proxyModel.currentItem();
        }
    }

    ListView {
        id: list

        objectName: "songList"
        anchors { left: parent.left; top: parent.top; bottom: info.top }
        width: Math.max(root.smallestPane, Math.min(root.listWidth, root.width - root.smallestPane))
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        KeyNavigation.tab: info.visible ? action : lyricsPane
        Keys.onPressed: {
            if (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace)
                proxyModel.removeSelected();
            else if (event.key === Qt.Key_A && event.modifiers === Qt.ControlModifier)
                proxyModel.selectAll();
            else if (event.key === Qt.Key_L && event.modifiers === Qt.ControlModifier)
                proxyModel.showFound = !proxyModel.showFound;
            else if (event.key === Qt.Key_Home)
                currentIndex = Math.min(0, count - 1);
            else if (event.key === Qt.Key_End)
                currentIndex = count - 1;
            else
                return;
            event.accepted = true;
        }
        model: proxyModel
        onCurrentIndexChanged: proxyModel.currentIndex = currentIndex

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Songs")

        delegate: Rectangle {
            id: row

            readonly property var song: itemRole

            width: list.width
            height: root.rowHeight
            color: selectedRole ? appPalette.listItemSelected : appPalette.listItemBackground
            border { width: ListView.isCurrentItem ? 1 : 0; color: appPalette.listItemCurrentBorder }

            Accessible.role: Accessible.ListItem
            Accessible.name: fileName.text + ", " + state.text

            Text {
                id: fileName

                anchors { left: parent.left; right: parent.right; top: parent.top; margins: root.spacing }
                text: filenameRole
                textFormat: Text.PlainText
                elide: Text.ElideMiddle
                maximumLineCount: 1
                color: selectedRole ? appPalette.listItemSelectedText : appPalette.listItemText
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
                onClicked: {
                    list.forceActiveFocus();
                    proxyModel.itemClicked(index);
                }
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
        color: appPalette.windowText
    }

    // A scan under way, or how many songs are hidden.
    Rectangle {
        id: info

        readonly property bool scanning: folderScanner.processing
        property int found: 0

        anchors { left: list.left; right: list.right; bottom: parent.bottom }
        height: scanning || proxyModel.hiddenCount > 0 ? 34 : 0
        visible: height > 0
        color: appPalette.hiddenInfoBackground

        Timer {
            interval: 100
            repeat: true
            running: info.scanning
            onTriggered: info.found = folderScanner.lastCount()
        }

        Text {
            anchors { left: parent.left; right: action.left; verticalCenter: parent.verticalCenter; margins: root.spacing }
            text: info.scanning ? qsTr("Scanning folder(s) for music files (found %n)", "", info.found)
                                : qsTr("Hidden %n file(s) with lyrics", "", proxyModel.hiddenCount)
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: appPalette.hiddenInfoText
        }

        Text {
            id: action

            function trigger() {
                if (info.scanning)
                    folderScanner.cancel();
                else
                    proxyModel.showFound = true;
            }

            objectName: "infoAction"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter; margins: root.spacing }
            activeFocusOnTab: info.visible
            text: info.scanning ? qsTr("Cancel") : qsTr("Show")
            textFormat: Text.PlainText
            font.underline: true
            font.bold: activeFocus
            color: appPalette.link
            KeyNavigation.tab: lyricsPane
            Keys.onReturnPressed: trigger()
            Keys.onSpacePressed: trigger()

            Accessible.role: Accessible.Button
            Accessible.name: text
            Accessible.onPressAction: trigger()

            MouseArea {
                anchors.fill: parent
                onClicked: action.trigger()
            }
        }
    }

    MouseArea {
        anchors { left: list.right; top: parent.top; bottom: parent.bottom }
        width: root.spacing
        cursorShape: Qt.SplitHCursor
        onPositionChanged: root.listWidth = mapToItem(root, mouse.x, 0).x
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
            color: appPalette.windowText

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
        color: appPalette.mid
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
        border { width: 1; color: appPalette.highlight }
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
