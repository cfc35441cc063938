// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// A quiet line above or below the list: words at the left and, as its children, links at the right. It takes no room
// while it is not shown.
Rectangle {
    id: bar

    property bool shown: false
    property string text
    property color textColor: appPalette.hiddenInfoText
    property bool hairlineAtTop: true
    default property alias links: links.data

    implicitHeight: shown ? Measures.barHeight : 0
    visible: shown
    color: appPalette.hiddenInfoBackground

    Accessible.role: Accessible.Grouping
    Accessible.name: text

    Rectangle {
        y: bar.hairlineAtTop ? 0 : parent.height - height
        width: parent.width
        height: Measures.hairline
        color: bar.textColor
        opacity: Measures.hairlineStrength
    }

    Text {
        anchors { left: parent.left; right: links.left; verticalCenter: parent.verticalCenter; margins: Measures.rowMargin }
        text: bar.text
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font.pixelSize: Measures.textFont
        color: bar.textColor

        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Row {
        id: links

        anchors { right: parent.right; rightMargin: Measures.rowMargin; verticalCenter: parent.verticalCenter }
        spacing: Measures.margin
    }
}
