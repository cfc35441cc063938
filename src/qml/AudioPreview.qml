// SPDX-License-Identifier: MIT
import QtQuick 2.2
import "."
import "duration.js" as Duration

// Plays a song for a moment. The player is loaded and the file opened when Play is pressed for the first time; without
// QtMultimedia, a sound device or a codec for the file there are words in place of the slider, and nothing else is lost.
Item {
    id: preview

    property url source
    property url playerDocument: "AudioPlayer.qml"
    readonly property var player: loader.item
    readonly property bool playing: player !== null && player.playing
    readonly property bool missing: loader.status === Loader.Error
    readonly property bool failed: missing || (player !== null && player.failed)
    readonly property real position: player !== null && !failed ? player.position : 0

    function toggle() {
        loader.active = true;
        if (player === null)
            return;
        if (player.playing) {
            player.pause();
        } else {
            if (String(player.source) !== String(source))
                player.source = source;
            player.play();
        }
    }

    // Closes the file as well.
    function stop() {
        if (player === null)
            return;
        player.stop();
        player.source = "";
    }

    implicitHeight: Measures.playButton

    onSourceChanged: stop()

    Loader {
        id: loader

        active: false
        source: preview.playerDocument
    }

    Rectangle {
        id: playButton

        readonly property string text: preview.playing ? qsTr("Pause") : qsTr("Play")
        // White is seen on it.
        readonly property color ground: Measures.whiteOnHighlight ? appPalette.highlight : Qt.darker(appPalette.highlight, 2)

        objectName: "playButton"
        anchors.verticalCenter: parent.verticalCenter
        width: Measures.playButton
        height: Measures.playButton
        radius: width / 2
        color: mouseArea.pressed ? Qt.darker(ground, 1.2) : mouseArea.containsMouse ? Qt.lighter(ground, 1.15) : ground
        enabled: !preview.missing
        opacity: enabled ? 1 : Measures.disabled
        activeFocusOnTab: enabled

        Keys.onReturnPressed: preview.toggle()
        Keys.onEnterPressed: preview.toggle()
        Keys.onSpacePressed: preview.toggle()

        Accessible.role: Accessible.Button
        Accessible.name: text
        Accessible.focusable: enabled
        Accessible.onPressAction: preview.toggle()

        PaletteImage {
            anchors { centerIn: parent; horizontalCenterOffset: preview.playing ? 0 : 1 }
            imageName: preview.playing ? "pause_on_highlight" : "play_on_highlight"
        }

        FocusRing {
            inset: -3
            radius: width / 2
        }

        MouseArea {
            id: mouseArea

            anchors.fill: parent
            hoverEnabled: true
            onClicked: preview.toggle()
        }
    }

    PlaybackSlider {
        anchors {
            left: playButton.right; right: elapsed.left; verticalCenter: parent.verticalCenter
            leftMargin: 1.5 * Measures.grid; rightMargin: 1.5 * Measures.grid
        }
        visible: !preview.failed
        position: preview.position
        duration: preview.player !== null && preview.player.seekable ? preview.player.duration : 0
        spokenPosition: elapsed.text
        onSeekRequested: preview.player.seek(position)
    }

    Text {
        id: elapsed

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: !preview.failed
        text: Duration.text(preview.position / 1000)
        textFormat: Text.PlainText
        font.pixelSize: Measures.textFont
        color: appPalette.windowText
        opacity: Measures.quiet
    }

    Text {
        anchors { left: playButton.right; right: parent.right; verticalCenter: parent.verticalCenter; leftMargin: 1.5 * Measures.grid }
        visible: preview.failed
        text: preview.missing ? qsTr("No preview: the Qt module QtMultimedia is missing (package qml-module-qtmultimedia).")
                              : qsTr("This file cannot be played here.")
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
        font { pixelSize: Measures.textFont; italic: true }
        color: appPalette.windowText
        opacity: Measures.quiet

        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
