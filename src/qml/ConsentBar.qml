// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."

// One quiet line that asks whether usage events may be sent, until it is answered. Its words take a second line where
// one is too short for them.
Rectangle {
    id: bar

    signal answered(bool yes)
    signal exampleRequested()

    objectName: "consentBar"
    implicitHeight: Math.max(Measures.barHeight, question.implicitHeight + 2 * Measures.halfGrid)
    color: appPalette.hiddenInfoBackground

    Accessible.role: Accessible.Grouping
    Accessible.name: question.text

    Rectangle {
        width: parent.width
        height: Measures.hairline
        color: appPalette.hiddenInfoText
        opacity: Measures.hairlineStrength
    }

    Text {
        id: question

        anchors { left: parent.left; right: choices.left; verticalCenter: parent.verticalCenter; leftMargin: Measures.rowMargin; rightMargin: Measures.margin }
        text: qsTr("May usage events be sent to the maker? Those about searches name artist and title.")
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pixelSize: Measures.textFont
        color: appPalette.hiddenInfoText

        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Row {
        id: choices

        // Neither answer is larger than the other.
        readonly property real buttonWidth: Math.max(yes.implicitWidth, no.implicitWidth)

        anchors { right: parent.right; rightMargin: Measures.rowMargin; verticalCenter: parent.verticalCenter }
        spacing: Measures.margin

        LinkButton {
            objectName: "consentExample"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("What is sent?")
            Accessible.name: qsTr("Show an example of a usage event")
            onClicked: bar.exampleRequested()
        }

        Row {
            spacing: Measures.grid

            TextButton {
                id: yes

                objectName: "consentYes"
                width: choices.buttonWidth
                text: qsTr("Yes")
                Accessible.name: qsTr("Yes, send usage events")
                onClicked: bar.answered(true)
            }

            TextButton {
                id: no

                objectName: "consentNo"
                width: choices.buttonWidth
                text: qsTr("No")
                Accessible.name: qsTr("No, send nothing")
                onClicked: bar.answered(false)
            }
        }
    }
}
