// SPDX-License-Identifier: MIT
pragma Singleton
import QtQuick 2.2
import com.quillmarsh 1.0

// All sizes and distances of the scene in pixels, its durations in milliseconds, and how strong its quiet parts are.
// Texts, what holds them, pictures and what is pressed grow with the desktop's text; distances stay.
QtObject {
    readonly property Legibility legibility: Legibility {}
    readonly property real textScale: legibility.textScale
    // The desktop asks for black on white or for white on black: nothing is quiet then.
    readonly property bool highContrast: legibility.contrast(appPalette.windowText, appPalette.window) > 20
                                         && legibility.contrast(appPalette.text, appPalette.base) > 20
    // Pictures for the highlight colour are white, and some palettes write on it in black.
    readonly property bool whiteOnHighlight: legibility.contrast(appPalette.highlightedText, "white")
                                             < legibility.contrast(appPalette.highlightedText, "black")

    // The end of the name of a picture in the resources that is sharp at this size of text. Pictures of rows are named by it;
    // those that come from the provider are asked for by their size.
    readonly property string pictureEnd: textScale * screenRatio <= 1 ? ".png" : textScale * screenRatio <= 2 ? "@2x.png" : "@4x.png"
    // Device pixels in a pixel of the scene. Set by the scene, since a singleton is on no screen.
    property real screenRatio: 1

    function scaled(pixels) {
        return Math.round(textScale * pixels);
    }

    // Everything stands on a grid of this.
    readonly property int grid: 8
    readonly property int halfGrid: 4
    readonly property int margin: 16
    readonly property int radius: 4
    readonly property int hairline: 1
    readonly property int focusRing: 2

    readonly property int listWidth: scaled(400)
    readonly property int listMinimumWidth: scaled(200)
    readonly property int detailsMinimumWidth: scaled(300)
    // The preview, two fields, a header of two lines, some lines of lyrics and what is said below them.
    readonly property int minimumHeight: 6 * margin + playButton + 2 * fieldHeight + grid + toolbarHeight + leastWords + barHeight
    // Three lines of usual lyrics.
    readonly property int leastWords: scaled(100)
    // What a key moves the border between list and details by.
    readonly property int splitterStep: 16

    readonly property int rowHeight: scaled(60)
    // Covers are kept small, and a large one would leave large words no room.
    readonly property int coverSide: Math.min(scaled(44), 72)
    readonly property int coverMargin: 10
    readonly property int textColumn: coverMargin + coverSide + 12
    readonly property int titleTop: scaled(7)
    readonly property int artistTop: scaled(24)
    readonly property int fileNameTop: scaled(41)
    readonly property int rowMargin: 14
    // Of the text's width at most; the file's name has the rest. Large text has few letters in a row.
    readonly property real wordShare: textScale > 1 ? 0.75 : 0.5
    readonly property int light: scaled(16)
    readonly property int locateButton: scaled(24)
    readonly property int textButton: scaled(24)

    readonly property int barHeight: scaled(34)
    readonly property int fieldHeight: scaled(28)
    readonly property int toolbarHeight: scaled(37)
    readonly property int button: scaled(28)
    readonly property int icon: scaled(16)
    readonly property int playButton: scaled(32)
    readonly property int sliderGroove: scaled(4)
    readonly property int sliderKnob: scaled(12)
    readonly property int emptyPicture: scaled(96)
    readonly property int scrollBar: scaled(10)
    // Below this width the names of found lyrics stand under the buttons instead of beside them.
    readonly property int sideBySideWidth: scaled(480)

    readonly property int titleFont: scaled(13)
    readonly property int textFont: scaled(12)
    readonly property int smallFont: scaled(11)
    readonly property int fieldFont: scaled(13)
    readonly property int invitationFont: scaled(16)
    readonly property real lyricsLineHeight: 1.35

    readonly property real quiet: highContrast ? 1 : 0.8
    readonly property real quieter: highContrast ? 1 : 0.65
    readonly property real quietOnHighlight: highContrast ? 1 : 0.95
    readonly property real quieterOnHighlight: highContrast ? 1 : 0.9
    readonly property real disabled: highContrast ? 0.5 : 0.35
    readonly property real hairlineStrength: highContrast ? 0.6 : 0.14
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
