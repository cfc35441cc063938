// SPDX-License-Identifier: MIT
import QtQuick 2.4
import QtTest 1.2
import "qrc:/qml"

// Run with text of the usual size, and with large text.
TestCase {
    name: "Measures"

    FontMetrics { id: desktopText }

    function cleanup() {
        appPalette.updateColorProperties();
        Measures.screenRatio = 1;
    }

    // The limit is a contrast of 20, between that of #f9f9f9 and that of #fafafa on black.
    function test_nothing_is_quiet_in_high_contrast_data() {
        var black = "#000000", white = "#ffffff", least = "#fafafa", less = "#f9f9f9";
        return [
            { tag: "black on white", window: [black, white], view: [black, white], stark: true },
            { tag: "the least that is high contrast", window: [least, black], view: [least, black], stark: true },
            { tag: "a window just below", window: [less, black], view: [white, black], stark: false },
            { tag: "views just below", window: [black, white], view: [black, less], stark: false },
            { tag: "usual colours", window: [black, "#eff0f1"], view: [black, white], stark: false }
        ];
    }

    function test_nothing_is_quiet_in_high_contrast(row) {
        [appPalette.windowText, appPalette.window] = row.window;
        [appPalette.text, appPalette.base] = row.view;
        compare(Measures.highContrast, row.stark);
        for (var name of ["quiet", "quieter", "quietOnHighlight", "quieterOnHighlight"])
            compare(Measures[name] === 1, row.stark, name);
    }

    function test_pictures_for_the_highlight_have_the_colour_of_its_text() {
        for (var [text, white] of [["#ffffff", true], ["#000000", false], ["#ffff00", true]]) {
            appPalette.highlightedText = text;
            compare(Measures.whiteOnHighlight, white, text);
        }
    }

    function test_pictures_are_no_smaller_than_shown() {
        for (var [pixels, end] of [[0.5, ".png"], [1, ".png"], [1.25, "@2x.png"], [2, "@2x.png"], [2.25, "@4x.png"]]) {
            Measures.screenRatio = pixels / Measures.textScale;
            compare(Measures.pictureEnd, end);
        }
    }

    function test_all_that_holds_text_grows_with_it() {
        compare(Measures.textScale > 1, desktopText.height > 20);
        compare(Measures.rowHeight, 60 * Measures.textScale);
        verify(Measures.artistTop - Measures.titleTop >= Measures.titleFont);
        verify(Measures.coverSide <= 72 && Measures.coverSide + 16 <= Measures.rowHeight);
    }
}
