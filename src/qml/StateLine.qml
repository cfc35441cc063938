// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// How a song stands, in words, and a link to search for it once more. It takes no room while there is nothing to say.
Item {
    id: line

    property string text
    property bool searchOffered: false

    signal searchRequested()

    implicitHeight: visible ? Math.max(Measures.barHeight, words.implicitHeight + Measures.grid) : 0
    visible: text !== "" || searchOffered

    Rectangle {
        width: parent.width
        height: Measures.hairline
        color: appPalette.text
        opacity: Measures.hairlineStrength
    }

    Text {
        id: words

        objectName: "stateLine"
        anchors {
            left: parent.left; right: line.searchOffered ? link.left : parent.right; verticalCenter: parent.verticalCenter
            leftMargin: Measures.margin; rightMargin: Measures.grid
        }
        text: line.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
        font { pixelSize: Measures.textFont; italic: true }
        color: appPalette.text
        opacity: Measures.quiet

        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    LinkButton {
        id: link

        objectName: "searchLink"
        anchors { right: parent.right; rightMargin: Measures.margin; verticalCenter: parent.verticalCenter }
        visible: line.searchOffered
        text: qsTr("search for lyrics")
        onClicked: line.searchRequested()
    }
}
