// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtTest 1.2
import com.quillmarsh 1.0
import "qrc:/qml"
import "qrc:/qml/duration.js" as Duration

TestCase {
    id: testCase

    name: "SongState"

    Component {
        id: state

        SongState {}
    }

    function row(tag, processState, others, light, word, line) {
        var properties = others;
        properties.processState = processState;
        return { tag: tag, properties: properties, light: light, word: word, line: line };
    }

    function test_lights_and_words_data() {
        var idle = ModelItem.ProcessIdle, waiting = ModelItem.ProcessWaiting, working = ModelItem.ProcessWorking;
        var complete = ModelItem.ProcessComplete, unsuitable = ModelItem.ProcessNotSuitable;
        var queued = "in queue to search...", noNames = "A search needs an artist and a title.";
        return [
            row("just added, not known to be bad", idle, { badFile: true }, "", "", ""),
            row("waiting", waiting, {}, "yellow", "queued", queued),
            row("searched for", working, { hasLyrics: true }, "yellow", "searching...", "searching..."),
            row("being written", ModelItem.ProcessWritingTags, {}, "yellow", "saving...", "saving the lyrics..."),
            row("with lyrics, never searched for", idle, { hasLyrics: true }, "green", "", ""),
            row("nothing found", complete, {}, "", "no lyrics found", "no lyrics found"),
            row("search failed", complete, { errorString: "down" }, "", "search failed", "down"),
            row("search failed for a song with lyrics", complete, { hasLyrics: true, errorString: "down" },
                "green", "search failed", "down"),
            row("nothing found for a song with lyrics", complete, { hasLyrics: true, foundNothing: true },
                "green", "no lyrics found", "no lyrics found"),
            row("write failed, then a search", complete, { writeError: "disk full", errorString: "down" },
                "", "not saved", "Not saved: disk full"),
            row("names that are in no file yet", complete, { namesEdited: true }, "", "not saved", "no lyrics found"),
            row("other names, searched for", waiting, { namesEdited: true }, "yellow", "queued", queued),
            row("failed", ModelItem.ProcessFailed, {}, "", "failed", "failed"),
            row("no names, after a search that failed", unsuitable, { errorString: "down" },
                "red", "no names", noNames),
            row("its reader died", unsuitable, { readFailed: true, errorString: "broken" },
                "red", "cannot be read", "broken"),
            row("bad file", complete, { tagsLoaded: true, badFile: true, hasLyrics: true },
                "red", "cannot be read", "This file cannot be read."),
            row("of unknown length, searched for", working, { tagsLoaded: true, badFile: true },
                "yellow", "searching...", "searching...")
        ];
    }

    function test_lights_and_words(row) {
        var made = createTemporaryObject(state, testCase, row.properties);
        compare([made.light, made.word, made.line], [row.light, row.word, row.line]);
        verify(made.spokenWord !== "", "a light is never the only sign");
    }

    function test_duration() {
        var texts = { "0": "0:00", "9.9": "0:09", "75": "1:15", "3725": "1:02:05", "-5": "0:00", "NaN": "0:00" };
        for (var seconds in texts)
            compare(Duration.text(Number(seconds)), texts[seconds]);
    }
}
