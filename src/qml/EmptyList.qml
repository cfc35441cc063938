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

    Flow {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, addFiles.implicitWidth + addFolder.implicitWidth + spacing)
        spacing: 2 * Measures.grid
        visible: !emptyList.allHidden

        LinkButton {
            id: addFiles

            text: qsTr("Add files...")
            onClicked: emptyList.addFilesRequested()
        }

        LinkButton {
            id: addFolder

            text: qsTr("Add a folder...")
            onClicked: emptyList.addFolderRequested()
        }
    }
}
