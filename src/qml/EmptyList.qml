// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// What stands in the place of an empty list: an invitation, or that all songs are hidden.
Column {
    id: emptyList

    // There are songs, but none of them is shown.
    property bool allHidden: false

    signal addFilesRequested()
    signal addFolderRequested()

    function takeFocus() {
        addFiles.forceActiveFocus();
    }

    spacing: Measures.grid

    PaletteImage {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Measures.emptyPicture
        height: Measures.emptyPicture
        imageName: "empty-list"
        opacity: Measures.quiet
        visible: !emptyList.allHidden
    }

    Text {
        width: parent.width
        text: emptyList.allHidden ? qsTr("All files here have lyrics and are hidden") : qsTr("Drop music files or folders here")
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Measures.invitationFont
        color: appPalette.text
        opacity: Measures.quieter

        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    // Side by side where there is room. They are at their places at once, which a Flow's are a moment later.
    Item {
        id: links

        readonly property int gap: 2 * Measures.grid
        readonly property bool inOneRow: addFiles.implicitWidth + gap + addFolder.implicitWidth <= emptyList.width

        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.max(addFiles.width, addFolder.x + addFolder.width)
        height: addFolder.y + addFolder.height
        visible: !emptyList.allHidden

        LinkButton {
            id: addFiles

            width: Math.min(implicitWidth, emptyList.width)
            text: qsTr("Add files...")
            onClicked: emptyList.addFilesRequested()
        }

        LinkButton {
            id: addFolder

            x: links.inOneRow ? addFiles.width + links.gap : 0
            y: links.inOneRow ? 0 : addFiles.height + links.gap
            width: Math.min(implicitWidth, emptyList.width)
            text: qsTr("Add a folder...")
            onClicked: emptyList.addFolderRequested()
        }
    }
}
