// SPDX-License-Identifier: MIT
pragma Singleton
import QtQuick 2.2

// All sizes and distances of the scene in pixels, its durations in milliseconds, and how strong its quiet parts are.
QtObject {
    // Everything stands on a grid of this.
    readonly property int grid: 8
    readonly property int halfGrid: 4
    readonly property int margin: 16
    readonly property int radius: 4
    readonly property int hairline: 1
    readonly property int focusRing: 2

    readonly property int listWidth: 400
    readonly property int listMinimumWidth: 200
    readonly property int detailsMinimumWidth: 300
    // What a key moves the border between list and details by.
    readonly property int splitterStep: 16

    readonly property int rowHeight: 60
    readonly property int coverSide: 44
    readonly property int coverMargin: 10
    readonly property int textColumn: 66
    readonly property int titleTop: 7
    readonly property int artistTop: 24
    readonly property int fileNameTop: 41
    readonly property int rowMargin: 14
    readonly property int light: 16
    readonly property int locateButton: 24

    readonly property int barHeight: 34
    readonly property int fieldHeight: 28
    readonly property int toolbarHeight: 37
    readonly property int button: 28
    readonly property int icon: 16
    readonly property int playButton: 32
    readonly property int sliderGroove: 4
    readonly property int sliderKnob: 12
    readonly property int emptyPicture: 96
    readonly property int scrollBar: 10
    // Below this width the names of found lyrics stand under the buttons instead of beside them.
    readonly property int sideBySideWidth: 480

    readonly property int titleFont: 13
    readonly property int textFont: 12
    readonly property int smallFont: 11
    readonly property int fieldFont: 13
    readonly property int invitationFont: 16
    readonly property real lyricsLineHeight: 1.35

    readonly property real quiet: 0.8
    readonly property real quieter: 0.65
    readonly property real disabled: 0.35
    readonly property real hairlineStrength: 0.14
    readonly property real hoverStrength: 0.1

    readonly property int scanPollInterval: 200
    readonly property int toolTipDelay: 700
    // What an arrow key moves the sound by, and how finely Page Up and Page Down do.
    readonly property int seekStep: 5000
    readonly property int seekPage: 30000

    // What is drawn of very long lyrics at first, and as many as can be edited here: with 200,000 letters the window
    // still answers within the blink of an eye.
    readonly property int lyricsLimit: 100000
}
