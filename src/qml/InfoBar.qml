// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// A quiet line above or below the list: words at the left and, as its children, links at the right, or below them where
// the line is too short for both. It takes no room while it is not shown.
Rectangle {
    id: bar

    property bool shown: false
    property string text
    property color textColor: appPalette.hiddenInfoText
    property bool hairlineAtTop: true
    default property alias links: links.data
    readonly property bool inOneLine: words.implicitWidth + links.width + 3 * Measures.rowMargin <= width

    implicitHeight: !shown ? 0 : inOneLine ? Measures.barHeight : words.height + links.height + 3 * Measures.grid
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
        id: words

        x: Measures.rowMargin
        y: bar.inOneLine ? (bar.height - height) / 2 : Measures.grid
        width: (bar.inOneLine ? links.x : bar.width) - x - Measures.rowMargin
        text: bar.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pixelSize: Measures.textFont
        color: bar.textColor

        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Row {
        id: links

        x: bar.width - width - Measures.rowMargin
        y: bar.inOneLine ? (bar.height - height) / 2 : bar.height - height - Measures.grid
        spacing: Measures.margin
    }
}
